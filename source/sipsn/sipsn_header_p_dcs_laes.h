/* SipsnHeaderPDcsLaes: the P-DCS-LAES header field, RFC 5503 section 8.1; where a call is to be intercepted.
 *
 * Example: P-Dcs-Laes: laes.example.com:5060;content=cc.example.com:6000;bcid=01ab;cccid=1f;lang=en
 *
 *     P-DCS-LAES = hostport *( SEMI ( "content" EQUAL hostport / "bcid" EQUAL 1*48HEXDIG / "cccid" EQUAL 1*8HEXDIG /
 *                  generic-param ) )
 *
 *     laes sig         the host, and a port or none, of the signalling, in ASCII; never absent
 *     content          those of the content; optional
 *     bcid             1 to 48 hexadecimal digits; optional
 *     cccid            1 to 8 hexadecimal digits; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_DCS_LAES_H
#define SIPSN_HEADER_P_DCS_LAES_H

#include "sipsn_header.h"
#include "sipsn_hex_digits.h"
#include "sipsn_host_port.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPDcsLaes ), see sipsn_header.h */
typedef struct SipsnHeaderPDcsLaes SipsnHeaderPDcsLaes;

PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesCreateFrom( SipsnHeaderPDcsLaes *source );
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesRetain( SipsnHeaderPDcsLaes *obj );
PB_API void                 sipsnHeaderPDcsLaesRelease( SipsnHeaderPDcsLaes *obj );
PB_API PbObj               *sipsnHeaderPDcsLaesObj( SipsnHeaderPDcsLaes *obj );
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesFrom( PbObj *obj );
PB_API PbSort              *sipsnHeaderPDcsLaesSort( void );
PB_API PbString            *sipsnHeaderPDcsLaesToString( SipsnHeaderPDcsLaes *obj );
PB_API int64_t              sipsnHeaderPDcsLaesCompare( SipsnHeaderPDcsLaes *a, SipsnHeaderPDcsLaes *b );
PB_API bool                 sipsnHeaderPDcsLaesEquals( SipsnHeaderPDcsLaes *a, SipsnHeaderPDcsLaes *b );

PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader  *sipsnHeaderPDcsLaesEncode( SipsnHeaderPDcsLaes *hdr );
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPDcsLaesEncodeToMessage( SipsnHeaderPDcsLaes *hdr, SipsnMessage **msg );
PB_API bool                 sipsnHeaderPDcsLaesPresentInMessage( SipsnMessage *msg );
PB_API void                 sipsnHeaderPDcsLaesRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore             *sipsnHeaderPDcsLaesStore( SipsnHeaderPDcsLaes *hdr );
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesCreate( PbString *laesSig );
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesCreateCstr( const char *laesSig, int64_t length );
PB_API SipsnHeaderPDcsLaes *sipsnHeaderPDcsLaesCreateWcstr( const wchar_t *laesSig, int64_t length );

PB_API PbString *sipsnHeaderPDcsLaesLaesSig( SipsnHeaderPDcsLaes *hdr );
PB_API void      sipsnHeaderPDcsLaesSetLaesSig( SipsnHeaderPDcsLaes **hdr, PbString *laesSig );
PB_API void      sipsnHeaderPDcsLaesSetLaesSigCstr( SipsnHeaderPDcsLaes **hdr, const char *laesSig, int64_t length );
PB_API void sipsnHeaderPDcsLaesSetLaesSigWcstr( SipsnHeaderPDcsLaes **hdr, const wchar_t *laesSig, int64_t length );

PB_API PbString *sipsnHeaderPDcsLaesContent( SipsnHeaderPDcsLaes *hdr );
PB_API bool      sipsnHeaderPDcsLaesHasContent( SipsnHeaderPDcsLaes *hdr );
PB_API void      sipsnHeaderPDcsLaesSetContent( SipsnHeaderPDcsLaes **hdr, PbString *content );
PB_API void      sipsnHeaderPDcsLaesSetContentCstr( SipsnHeaderPDcsLaes **hdr, const char *content, int64_t length );
PB_API void sipsnHeaderPDcsLaesSetContentWcstr( SipsnHeaderPDcsLaes **hdr, const wchar_t *content, int64_t length );
PB_API void sipsnHeaderPDcsLaesDelContent( SipsnHeaderPDcsLaes **hdr );

PB_API PbString *sipsnHeaderPDcsLaesBcid( SipsnHeaderPDcsLaes *hdr );
PB_API bool      sipsnHeaderPDcsLaesHasBcid( SipsnHeaderPDcsLaes *hdr );
PB_API void      sipsnHeaderPDcsLaesSetBcid( SipsnHeaderPDcsLaes **hdr, PbString *bcid );
PB_API void      sipsnHeaderPDcsLaesSetBcidCstr( SipsnHeaderPDcsLaes **hdr, const char *bcid, int64_t length );
PB_API void      sipsnHeaderPDcsLaesSetBcidWcstr( SipsnHeaderPDcsLaes **hdr, const wchar_t *bcid, int64_t length );
PB_API void      sipsnHeaderPDcsLaesDelBcid( SipsnHeaderPDcsLaes **hdr );

PB_API PbString *sipsnHeaderPDcsLaesCccid( SipsnHeaderPDcsLaes *hdr );
PB_API bool      sipsnHeaderPDcsLaesHasCccid( SipsnHeaderPDcsLaes *hdr );
PB_API void      sipsnHeaderPDcsLaesSetCccid( SipsnHeaderPDcsLaes **hdr, PbString *cccid );
PB_API void      sipsnHeaderPDcsLaesSetCccidCstr( SipsnHeaderPDcsLaes **hdr, const char *cccid, int64_t length );
PB_API void      sipsnHeaderPDcsLaesSetCccidWcstr( SipsnHeaderPDcsLaes **hdr, const wchar_t *cccid, int64_t length );
PB_API void      sipsnHeaderPDcsLaesDelCccid( SipsnHeaderPDcsLaes **hdr );

PB_API SipsnGenericParams *sipsnHeaderPDcsLaesGenericParams( SipsnHeaderPDcsLaes *hdr );
PB_API void sipsnHeaderPDcsLaesSetGenericParams( SipsnHeaderPDcsLaes **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
