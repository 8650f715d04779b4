/* SipsnAcceptLanguage: one language of Accept-Language, RFC 3261 section 20.3.
 *
 * Example: en-gb;q=0.800;lang=en
 *
 *     language = language-range *( SEMI ( "q" EQUAL qvalue / generic-param ) )
 *
 *     language range   a language tag or "*", kept as written; never absent
 *     q                preference, 0 to 1000 thousandths; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_ACCEPT_LANGUAGE_H
#define SIPSN_ACCEPT_LANGUAGE_H

#include "sipsn_language_tag.h"
#include "sipsn_member.h"
#include "sipsn_qvalue.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnAcceptLanguage ), see pb_types.h */
typedef struct SipsnAcceptLanguage SipsnAcceptLanguage;

PB_API SipsnAcceptLanguage *sipsnAcceptLanguageCreateFrom( SipsnAcceptLanguage *source );
PB_API SipsnAcceptLanguage *sipsnAcceptLanguageRetain( SipsnAcceptLanguage *obj );
PB_API void                 sipsnAcceptLanguageRelease( SipsnAcceptLanguage *obj );
PB_API PbObj               *sipsnAcceptLanguageObj( SipsnAcceptLanguage *obj );
PB_API SipsnAcceptLanguage *sipsnAcceptLanguageFrom( PbObj *obj );
PB_API PbSort              *sipsnAcceptLanguageSort( void );
PB_API PbString            *sipsnAcceptLanguageToString( SipsnAcceptLanguage *obj );
PB_API int64_t              sipsnAcceptLanguageCompare( SipsnAcceptLanguage *a, SipsnAcceptLanguage *b );
PB_API bool                 sipsnAcceptLanguageEquals( SipsnAcceptLanguage *a, SipsnAcceptLanguage *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnAcceptLanguage *sipsnAcceptLanguageCreate( PbString *languageRange );
PB_API SipsnAcceptLanguage *sipsnAcceptLanguageCreateCstr( const char *languageRange, int64_t length );
PB_API SipsnAcceptLanguage *sipsnAcceptLanguageCreateWcstr( const wchar_t *languageRange, int64_t length );

PB_API PbString *sipsnAcceptLanguageLanguageRange( SipsnAcceptLanguage *language );
PB_API void      sipsnAcceptLanguageSetLanguageRange( SipsnAcceptLanguage **language, PbString *languageRange );
PB_API void      sipsnAcceptLanguageSetLanguageRangeCstr( SipsnAcceptLanguage **language, const char *languageRange,
                                                          int64_t length );
PB_API void      sipsnAcceptLanguageSetLanguageRangeWcstr( SipsnAcceptLanguage **language, const wchar_t *languageRange,
                                                           int64_t length );

PB_API int64_t sipsnAcceptLanguageQvalue( SipsnAcceptLanguage *language );
PB_API bool    sipsnAcceptLanguageHasQvalue( SipsnAcceptLanguage *language );
PB_API void    sipsnAcceptLanguageSetQvalue( SipsnAcceptLanguage **language, int64_t qvalue );
PB_API void    sipsnAcceptLanguageDelQvalue( SipsnAcceptLanguage **language );

PB_API SipsnGenericParams *sipsnAcceptLanguageGenericParams( SipsnAcceptLanguage *language );
PB_API void sipsnAcceptLanguageSetGenericParams( SipsnAcceptLanguage **language, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
