/* SipsnHeaderPUserDatabase: the P-User-Database header field, RFC 4457 section 4; the database of a user.
 *
 * Example: P-User-Database: <aaa://host.example.com;transport=tcp>;lang=en
 *
 *     P-User-Database = LAQUOT URI RAQUOT *( SEMI generic-param )
 *
 *     iri              an address, an IRI (a URI on the wire), always in angle brackets; never
 *                      absent
 *     generic params   the parameters; never absent, may be empty
 *
 * The URI is one of Diameter (RFC 6733 section 4.3.1); its parts are not looked into. Only the last line of the
 * header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_P_USER_DATABASE_H
#define SIPSN_HEADER_P_USER_DATABASE_H

#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPUserDatabase ), see sipsn_header.h */
typedef struct SipsnHeaderPUserDatabase SipsnHeaderPUserDatabase;

PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseCreateFrom( SipsnHeaderPUserDatabase *source );
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseRetain( SipsnHeaderPUserDatabase *obj );
PB_API void                      sipsnHeaderPUserDatabaseRelease( SipsnHeaderPUserDatabase *obj );
PB_API PbObj                    *sipsnHeaderPUserDatabaseObj( SipsnHeaderPUserDatabase *obj );
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderPUserDatabaseSort( void );
PB_API PbString                 *sipsnHeaderPUserDatabaseToString( SipsnHeaderPUserDatabase *obj );
PB_API int64_t sipsnHeaderPUserDatabaseCompare( SipsnHeaderPUserDatabase *a, SipsnHeaderPUserDatabase *b );
PB_API bool    sipsnHeaderPUserDatabaseEquals( SipsnHeaderPUserDatabase *a, SipsnHeaderPUserDatabase *b );

PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderPUserDatabaseEncode( SipsnHeaderPUserDatabase *hdr );
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPUserDatabaseEncodeToMessage( SipsnHeaderPUserDatabase *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderPUserDatabasePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderPUserDatabaseRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderPUserDatabaseStore( SipsnHeaderPUserDatabase *hdr );
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseCreate( PbString *iri );
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseCreateCstr( const char *iri, int64_t length );
PB_API SipsnHeaderPUserDatabase *sipsnHeaderPUserDatabaseCreateWcstr( const wchar_t *iri, int64_t length );

PB_API PbString *sipsnHeaderPUserDatabaseIri( SipsnHeaderPUserDatabase *hdr );
PB_API void      sipsnHeaderPUserDatabaseSetIri( SipsnHeaderPUserDatabase **hdr, PbString *iri );
PB_API void      sipsnHeaderPUserDatabaseSetIriCstr( SipsnHeaderPUserDatabase **hdr, const char *iri, int64_t length );
PB_API void sipsnHeaderPUserDatabaseSetIriWcstr( SipsnHeaderPUserDatabase **hdr, const wchar_t *iri, int64_t length );

PB_API SipsnGenericParams *sipsnHeaderPUserDatabaseGenericParams( SipsnHeaderPUserDatabase *hdr );
PB_API void                sipsnHeaderPUserDatabaseSetGenericParams( SipsnHeaderPUserDatabase **hdr,
                                                                     SipsnGenericParams        *genericParams );
/* ./dev lists: end */

/* ./dev lists: URI( hdr ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHeaderPUserDatabaseTryDecodeUri( SipsnHeaderPUserDatabase *hdr );
PB_API void      sipsnHeaderPUserDatabaseSetUri( SipsnHeaderPUserDatabase **hdr, SipsnUri *uri );
/* ./dev lists: end */

PB_END_DECLS
#endif
