/* SipsnHeaderContentLanguage: the Content-Language header field, RFC 3261 section 20.13; a list of language tags.
 *
 * Example: Content-Language: en-GB
 *
 * Tags are kept as written. A header field without lines does not decode. Each is encoded as a line of its own. An
 * invalid one aborts. */
#ifndef SIPSN_HEADER_CONTENT_LANGUAGE_H
#define SIPSN_HEADER_CONTENT_LANGUAGE_H

#include "sipsn_header.h"
#include "sipsn_language_tag.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderContentLanguage ), see sipsn_header.h */
typedef struct SipsnHeaderContentLanguage SipsnHeaderContentLanguage;

PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageCreateFrom( SipsnHeaderContentLanguage *source );
PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageRetain( SipsnHeaderContentLanguage *obj );
PB_API void                        sipsnHeaderContentLanguageRelease( SipsnHeaderContentLanguage *obj );
PB_API PbObj                      *sipsnHeaderContentLanguageObj( SipsnHeaderContentLanguage *obj );
PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageFrom( PbObj *obj );
PB_API PbSort                     *sipsnHeaderContentLanguageSort( void );
PB_API PbString                   *sipsnHeaderContentLanguageToString( SipsnHeaderContentLanguage *obj );
PB_API int64_t sipsnHeaderContentLanguageCompare( SipsnHeaderContentLanguage *a, SipsnHeaderContentLanguage *b );
PB_API bool    sipsnHeaderContentLanguageEquals( SipsnHeaderContentLanguage *a, SipsnHeaderContentLanguage *b );

PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader         *sipsnHeaderContentLanguageEncode( SipsnHeaderContentLanguage *hdr );
PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentLanguageEncodeToMessage( SipsnHeaderContentLanguage *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderContentLanguagePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentLanguageRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderContentLanguageStore( SipsnHeaderContentLanguage *hdr );
PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( LanguageTags, LanguageTag, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderContentLanguageLanguageTagsLength( SipsnHeaderContentLanguage *hdr );
PB_API void    sipsnHeaderContentLanguageAppendLanguageTag( SipsnHeaderContentLanguage **hdr, PbString *languageTag );
PB_API void    sipsnHeaderContentLanguagePrependLanguageTag( SipsnHeaderContentLanguage **hdr, PbString *languageTag );
PB_API void    sipsnHeaderContentLanguageInsertLanguageTag( SipsnHeaderContentLanguage **hdr, int64_t index,
                                                            PbString *languageTag );
PB_API void    sipsnHeaderContentLanguageSetLanguageTagAt( SipsnHeaderContentLanguage **hdr, int64_t index,
                                                           PbString *languageTag );
PB_API void    sipsnHeaderContentLanguageDelLanguageTagAt( SipsnHeaderContentLanguage **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderContentLanguage *sipsnHeaderContentLanguageCreate( void );
PB_API PbString *sipsnHeaderContentLanguageLanguageTagAt( SipsnHeaderContentLanguage *hdr, int64_t index );
PB_API void      sipsnHeaderContentLanguageClearLanguageTags( SipsnHeaderContentLanguage **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
