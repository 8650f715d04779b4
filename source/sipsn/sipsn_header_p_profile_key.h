/* SipsnHeaderPProfileKey: the P-Profile-Key header field, RFC 5002 section 5; the key of a profile.
 *
 * Example: P-Profile-Key: "Room" <sip:chatroom-!.*!@example.com>;lang=en
 *
 *     P-Profile-Key = ( name-addr / addr-spec ) *( SEMI generic-param )
 *
 *     iri              an address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     generic params   the parameters; never absent, may be empty
 *
 * A wildcard stands between "!" in the user part. Only the last line of the header field counts; without lines it
 * does not decode. */
#ifndef SIPSN_HEADER_P_PROFILE_KEY_H
#define SIPSN_HEADER_P_PROFILE_KEY_H

#include "sipsn_display_name.h"
#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPProfileKey ), see sipsn_header.h */
typedef struct SipsnHeaderPProfileKey SipsnHeaderPProfileKey;

PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyCreateFrom( SipsnHeaderPProfileKey *source );
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyRetain( SipsnHeaderPProfileKey *obj );
PB_API void                    sipsnHeaderPProfileKeyRelease( SipsnHeaderPProfileKey *obj );
PB_API PbObj                  *sipsnHeaderPProfileKeyObj( SipsnHeaderPProfileKey *obj );
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderPProfileKeySort( void );
PB_API PbString               *sipsnHeaderPProfileKeyToString( SipsnHeaderPProfileKey *obj );
PB_API int64_t                 sipsnHeaderPProfileKeyCompare( SipsnHeaderPProfileKey *a, SipsnHeaderPProfileKey *b );
PB_API bool                    sipsnHeaderPProfileKeyEquals( SipsnHeaderPProfileKey *a, SipsnHeaderPProfileKey *b );

PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderPProfileKeyEncode( SipsnHeaderPProfileKey *hdr );
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPProfileKeyEncodeToMessage( SipsnHeaderPProfileKey *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderPProfileKeyPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPProfileKeyRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderPProfileKeyStore( SipsnHeaderPProfileKey *hdr );
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyCreate( PbString *iri );
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderPProfileKey *sipsnHeaderPProfileKeyCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPProfileKeyIri( SipsnHeaderPProfileKey *hdr );
PB_API void      sipsnHeaderPProfileKeySetIri( SipsnHeaderPProfileKey **hdr, PbString *iri );
PB_API void      sipsnHeaderPProfileKeySetIriCstr( SipsnHeaderPProfileKey **hdr, const char *iri, int64_t length );
PB_API void      sipsnHeaderPProfileKeySetIriWcstr( SipsnHeaderPProfileKey **hdr, const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPProfileKeyDisplayName( SipsnHeaderPProfileKey *hdr );
PB_API bool      sipsnHeaderPProfileKeyHasDisplayName( SipsnHeaderPProfileKey *hdr );
PB_API void      sipsnHeaderPProfileKeySetDisplayName( SipsnHeaderPProfileKey **hdr, PbString *displayName );
PB_API void      sipsnHeaderPProfileKeySetDisplayNameCstr( SipsnHeaderPProfileKey **hdr, const char *displayName,
                                                           int64_t length );
PB_API void      sipsnHeaderPProfileKeySetDisplayNameWcstr( SipsnHeaderPProfileKey **hdr, const wchar_t *displayName,
                                                            int64_t length );
PB_API void      sipsnHeaderPProfileKeyDelDisplayName( SipsnHeaderPProfileKey **hdr );

PB_API SipsnGenericParams *sipsnHeaderPProfileKeyGenericParams( SipsnHeaderPProfileKey *hdr );
PB_API void sipsnHeaderPProfileKeySetGenericParams( SipsnHeaderPProfileKey **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderPProfileKeyTryDecodeUri( SipsnHeaderPProfileKey *hdr );
PB_API void      sipsnHeaderPProfileKeySetUri( SipsnHeaderPProfileKey **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
