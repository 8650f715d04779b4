/* SipsnHeaderInfoPackage: the Info-Package header field, RFC 6086 section 9.2; what an INFO request carries.
 *
 * Example: Info-Package: infoDtmf;version=2
 *
 *     Info-Package = token *( SEMI generic-param )
 *
 *     info package     a token, kept as written and compared letter by letter; never absent
 *     generic params   the parameters; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_INFO_PACKAGE_H
#define SIPSN_HEADER_INFO_PACKAGE_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderInfoPackage ), see sipsn_header.h */
typedef struct SipsnHeaderInfoPackage SipsnHeaderInfoPackage;

PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageCreateFrom( SipsnHeaderInfoPackage *source );
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageRetain( SipsnHeaderInfoPackage *obj );
PB_API void                    sipsnHeaderInfoPackageRelease( SipsnHeaderInfoPackage *obj );
PB_API PbObj                  *sipsnHeaderInfoPackageObj( SipsnHeaderInfoPackage *obj );
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderInfoPackageSort( void );
PB_API PbString               *sipsnHeaderInfoPackageToString( SipsnHeaderInfoPackage *obj );
PB_API int64_t                 sipsnHeaderInfoPackageCompare( SipsnHeaderInfoPackage *a, SipsnHeaderInfoPackage *b );
PB_API bool                    sipsnHeaderInfoPackageEquals( SipsnHeaderInfoPackage *a, SipsnHeaderInfoPackage *b );

PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderInfoPackageEncode( SipsnHeaderInfoPackage *hdr );
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderInfoPackageEncodeToMessage( SipsnHeaderInfoPackage *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderInfoPackagePresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderInfoPackageRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderInfoPackageStore( SipsnHeaderInfoPackage *hdr );
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageCreate( PbString *infoPackage );
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageCreateCstr( const char *infoPackage, int64_t length );
PB_API SipsnHeaderInfoPackage *sipsnHeaderInfoPackageCreateWcstr( const wchar_t *infoPackage, int64_t length );

PB_API PbString *sipsnHeaderInfoPackageInfoPackage( SipsnHeaderInfoPackage *hdr );
PB_API void      sipsnHeaderInfoPackageSetInfoPackage( SipsnHeaderInfoPackage **hdr, PbString *infoPackage );
PB_API void      sipsnHeaderInfoPackageSetInfoPackageCstr( SipsnHeaderInfoPackage **hdr, const char *infoPackage,
                                                           int64_t length );
PB_API void      sipsnHeaderInfoPackageSetInfoPackageWcstr( SipsnHeaderInfoPackage **hdr, const wchar_t *infoPackage,
                                                            int64_t length );

PB_API SipsnGenericParams *sipsnHeaderInfoPackageGenericParams( SipsnHeaderInfoPackage *hdr );
PB_API void sipsnHeaderInfoPackageSetGenericParams( SipsnHeaderInfoPackage **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
