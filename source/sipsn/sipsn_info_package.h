/* SipsnInfoPackage: one package of Recv-Info, RFC 6086 section 9.2.
 *
 * Example: bar;v=1
 *
 *     Info-package-type = token *( SEMI generic-param )
 *
 *     name             a token, kept as written and compared letter by letter; never absent
 *     generic params   the parameters; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_INFO_PACKAGE_H
#define SIPSN_INFO_PACKAGE_H

#include "sipsn_member.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnInfoPackage ), see pb_types.h */
typedef struct SipsnInfoPackage SipsnInfoPackage;

PB_API SipsnInfoPackage *sipsnInfoPackageCreateFrom( SipsnInfoPackage *source );
PB_API SipsnInfoPackage *sipsnInfoPackageRetain( SipsnInfoPackage *obj );
PB_API void              sipsnInfoPackageRelease( SipsnInfoPackage *obj );
PB_API PbObj            *sipsnInfoPackageObj( SipsnInfoPackage *obj );
PB_API SipsnInfoPackage *sipsnInfoPackageFrom( PbObj *obj );
PB_API PbSort           *sipsnInfoPackageSort( void );
PB_API PbString         *sipsnInfoPackageToString( SipsnInfoPackage *obj );
PB_API int64_t           sipsnInfoPackageCompare( SipsnInfoPackage *a, SipsnInfoPackage *b );
PB_API bool              sipsnInfoPackageEquals( SipsnInfoPackage *a, SipsnInfoPackage *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnInfoPackage *sipsnInfoPackageCreate( PbString *name );
PB_API SipsnInfoPackage *sipsnInfoPackageCreateCstr( const char *name, int64_t length );
PB_API SipsnInfoPackage *sipsnInfoPackageCreateWcstr( const wchar_t *name, int64_t length );

PB_API PbString *sipsnInfoPackageName( SipsnInfoPackage *package );
PB_API void      sipsnInfoPackageSetName( SipsnInfoPackage **package, PbString *name );
PB_API void      sipsnInfoPackageSetNameCstr( SipsnInfoPackage **package, const char *name, int64_t length );
PB_API void      sipsnInfoPackageSetNameWcstr( SipsnInfoPackage **package, const wchar_t *name, int64_t length );

PB_API SipsnGenericParams *sipsnInfoPackageGenericParams( SipsnInfoPackage *package );
PB_API void sipsnInfoPackageSetGenericParams( SipsnInfoPackage **package, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
