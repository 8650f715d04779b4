/* SipsnHeaderAcceptLanguage: the Accept-Language header field, RFC 3261 section 20.3; a list of languages.
 *
 * Example: Accept-Language: en-gb;q=0.800
 *
 * Each language is kept as its text, and decoded when TryDecodeAcceptLanguageAt asks for it. A header field without
 * lines decodes to an empty list. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ACCEPT_LANGUAGE_H
#define SIPSN_HEADER_ACCEPT_LANGUAGE_H

#include "sipsn_accept_language.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAcceptLanguage ), see sipsn_header.h */
typedef struct SipsnHeaderAcceptLanguage SipsnHeaderAcceptLanguage;

PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageCreateFrom( SipsnHeaderAcceptLanguage *source );
PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageRetain( SipsnHeaderAcceptLanguage *obj );
PB_API void                       sipsnHeaderAcceptLanguageRelease( SipsnHeaderAcceptLanguage *obj );
PB_API PbObj                     *sipsnHeaderAcceptLanguageObj( SipsnHeaderAcceptLanguage *obj );
PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderAcceptLanguageSort( void );
PB_API PbString                  *sipsnHeaderAcceptLanguageToString( SipsnHeaderAcceptLanguage *obj );
PB_API int64_t sipsnHeaderAcceptLanguageCompare( SipsnHeaderAcceptLanguage *a, SipsnHeaderAcceptLanguage *b );
PB_API bool    sipsnHeaderAcceptLanguageEquals( SipsnHeaderAcceptLanguage *a, SipsnHeaderAcceptLanguage *b );

PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderAcceptLanguageEncode( SipsnHeaderAcceptLanguage *hdr );
PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptLanguageEncodeToMessage( SipsnHeaderAcceptLanguage *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAcceptLanguagePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptLanguageRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAcceptLanguageStore( SipsnHeaderAcceptLanguage *hdr );
PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( AcceptLanguages, AcceptLanguage, SipsnAcceptLanguage ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAcceptLanguageAcceptLanguagesLength( SipsnHeaderAcceptLanguage *hdr );
PB_API void    sipsnHeaderAcceptLanguageAppendAcceptLanguage( SipsnHeaderAcceptLanguage **hdr,
                                                              SipsnAcceptLanguage        *acceptLanguage );
PB_API void    sipsnHeaderAcceptLanguagePrependAcceptLanguage( SipsnHeaderAcceptLanguage **hdr,
                                                               SipsnAcceptLanguage        *acceptLanguage );
PB_API void    sipsnHeaderAcceptLanguageInsertAcceptLanguage( SipsnHeaderAcceptLanguage **hdr, int64_t index,
                                                              SipsnAcceptLanguage *acceptLanguage );
PB_API void    sipsnHeaderAcceptLanguageSetAcceptLanguageAt( SipsnHeaderAcceptLanguage **hdr, int64_t index,
                                                             SipsnAcceptLanguage *acceptLanguage );
PB_API void    sipsnHeaderAcceptLanguageDelAcceptLanguageAt( SipsnHeaderAcceptLanguage **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAcceptLanguage *sipsnHeaderAcceptLanguageCreate( void );
PB_API SipsnAcceptLanguage       *sipsnHeaderAcceptLanguageTryDecodeAcceptLanguageAt( SipsnHeaderAcceptLanguage *hdr,
                                                                                      int64_t                    index );
PB_API void                       sipsnHeaderAcceptLanguageClearAcceptLanguages( SipsnHeaderAcceptLanguage **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
