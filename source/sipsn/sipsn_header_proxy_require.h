/* SipsnHeaderProxyRequire: the Proxy-Require header field, RFC 3261 section 20.29; a set of option tags.
 *
 * Example: Proxy-Require: gruu,sec-agree
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines does not decode. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating
 * zero. */
#ifndef SIPSN_HEADER_PROXY_REQUIRE_H
#define SIPSN_HEADER_PROXY_REQUIRE_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderProxyRequire ), see sipsn_header.h */
typedef struct SipsnHeaderProxyRequire SipsnHeaderProxyRequire;

PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireCreateFrom( SipsnHeaderProxyRequire *source );
PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireRetain( SipsnHeaderProxyRequire *obj );
PB_API void                     sipsnHeaderProxyRequireRelease( SipsnHeaderProxyRequire *obj );
PB_API PbObj                   *sipsnHeaderProxyRequireObj( SipsnHeaderProxyRequire *obj );
PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireFrom( PbObj *obj );
PB_API PbSort                  *sipsnHeaderProxyRequireSort( void );
PB_API PbString                *sipsnHeaderProxyRequireToString( SipsnHeaderProxyRequire *obj );
PB_API int64_t sipsnHeaderProxyRequireCompare( SipsnHeaderProxyRequire *a, SipsnHeaderProxyRequire *b );
PB_API bool    sipsnHeaderProxyRequireEquals( SipsnHeaderProxyRequire *a, SipsnHeaderProxyRequire *b );

PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader      *sipsnHeaderProxyRequireEncode( SipsnHeaderProxyRequire *hdr );
PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderProxyRequireEncodeToMessage( SipsnHeaderProxyRequire *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderProxyRequirePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderProxyRequireRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderProxyRequireStore( SipsnHeaderProxyRequire *hdr );
PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderProxyRequire *sipsnHeaderProxyRequireCreate( void );

/* ./dev lists: SET( OptionTags, OptionTag ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderProxyRequireOptionTagsLength( SipsnHeaderProxyRequire *hdr );
PB_API PbString *sipsnHeaderProxyRequireOptionTagAt( SipsnHeaderProxyRequire *hdr, int64_t index );
PB_API PbVector *sipsnHeaderProxyRequireOptionTagsVector( SipsnHeaderProxyRequire *hdr );
PB_API void      sipsnHeaderProxyRequireSetOptionTagsVector( SipsnHeaderProxyRequire **hdr, PbVector *vec );
PB_API bool      sipsnHeaderProxyRequireHasOptionTag( SipsnHeaderProxyRequire *hdr, PbString *optionTag );
PB_API void      sipsnHeaderProxyRequireSetOptionTag( SipsnHeaderProxyRequire **hdr, PbString *optionTag );
PB_API void      sipsnHeaderProxyRequireDelOptionTag( SipsnHeaderProxyRequire **hdr, PbString *optionTag );
PB_API void      sipsnHeaderProxyRequireClearOptionTags( SipsnHeaderProxyRequire **hdr );
/* ./dev lists: end */

PB_API bool sipsnHeaderProxyRequireHasOptionTagCstr( SipsnHeaderProxyRequire *hdr, const char *optionTag,
                                                     int64_t optionTagLength );
PB_API bool sipsnHeaderProxyRequireHasOptionTagWcstr( SipsnHeaderProxyRequire *hdr, const wchar_t *optionTag,
                                                      int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireSetOptionTagCstr( SipsnHeaderProxyRequire **hdr, const char *optionTag,
                                                     int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireSetOptionTagWcstr( SipsnHeaderProxyRequire **hdr, const wchar_t *optionTag,
                                                      int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireDelOptionTagCstr( SipsnHeaderProxyRequire **hdr, const char *optionTag,
                                                     int64_t optionTagLength );
PB_API void sipsnHeaderProxyRequireDelOptionTagWcstr( SipsnHeaderProxyRequire **hdr, const wchar_t *optionTag,
                                                      int64_t optionTagLength );

PB_END_DECLS
#endif
