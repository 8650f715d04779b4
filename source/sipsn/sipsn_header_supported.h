/* SipsnHeaderSupported: the Supported header field, RFC 3261 section 20.37; a set of option tags.
 *
 * Example: Supported: 100rel,replaces,timer
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines does not decode. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating
 * zero. */
#ifndef SIPSN_HEADER_SUPPORTED_H
#define SIPSN_HEADER_SUPPORTED_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderSupported ), see sipsn_header.h */
typedef struct SipsnHeaderSupported SipsnHeaderSupported;

PB_API SipsnHeaderSupported *sipsnHeaderSupportedCreateFrom( SipsnHeaderSupported *source );
PB_API SipsnHeaderSupported *sipsnHeaderSupportedRetain( SipsnHeaderSupported *obj );
PB_API void                  sipsnHeaderSupportedRelease( SipsnHeaderSupported *obj );
PB_API PbObj                *sipsnHeaderSupportedObj( SipsnHeaderSupported *obj );
PB_API SipsnHeaderSupported *sipsnHeaderSupportedFrom( PbObj *obj );
PB_API PbSort               *sipsnHeaderSupportedSort( void );
PB_API PbString             *sipsnHeaderSupportedToString( SipsnHeaderSupported *obj );
PB_API int64_t               sipsnHeaderSupportedCompare( SipsnHeaderSupported *a, SipsnHeaderSupported *b );
PB_API bool                  sipsnHeaderSupportedEquals( SipsnHeaderSupported *a, SipsnHeaderSupported *b );

PB_API SipsnHeaderSupported *sipsnHeaderSupportedTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader   *sipsnHeaderSupportedEncode( SipsnHeaderSupported *hdr );
PB_API SipsnHeaderSupported *sipsnHeaderSupportedTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderSupportedEncodeToMessage( SipsnHeaderSupported *hdr, SipsnMessage **msg );
PB_API bool                  sipsnHeaderSupportedPresentInMessage( SipsnMessage *msg );
PB_API void                  sipsnHeaderSupportedRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore              *sipsnHeaderSupportedStore( SipsnHeaderSupported *hdr );
PB_API SipsnHeaderSupported *sipsnHeaderSupportedTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderSupported *sipsnHeaderSupportedCreate( void );

/* ./dev lists: SET( OptionTags, OptionTag ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderSupportedOptionTagsLength( SipsnHeaderSupported *hdr );
PB_API PbString *sipsnHeaderSupportedOptionTagAt( SipsnHeaderSupported *hdr, int64_t index );
PB_API PbVector *sipsnHeaderSupportedOptionTagsVector( SipsnHeaderSupported *hdr );
PB_API void      sipsnHeaderSupportedSetOptionTagsVector( SipsnHeaderSupported **hdr, PbVector *vec );
PB_API bool      sipsnHeaderSupportedHasOptionTag( SipsnHeaderSupported *hdr, PbString *optionTag );
PB_API void      sipsnHeaderSupportedSetOptionTag( SipsnHeaderSupported **hdr, PbString *optionTag );
PB_API void      sipsnHeaderSupportedDelOptionTag( SipsnHeaderSupported **hdr, PbString *optionTag );
PB_API void      sipsnHeaderSupportedClearOptionTags( SipsnHeaderSupported **hdr );
/* ./dev lists: end */

PB_API bool sipsnHeaderSupportedHasOptionTagCstr( SipsnHeaderSupported *hdr, const char *optionTag,
                                                  int64_t optionTagLength );
PB_API bool sipsnHeaderSupportedHasOptionTagWcstr( SipsnHeaderSupported *hdr, const wchar_t *optionTag,
                                                   int64_t optionTagLength );
PB_API void sipsnHeaderSupportedSetOptionTagCstr( SipsnHeaderSupported **hdr, const char *optionTag,
                                                  int64_t optionTagLength );
PB_API void sipsnHeaderSupportedSetOptionTagWcstr( SipsnHeaderSupported **hdr, const wchar_t *optionTag,
                                                   int64_t optionTagLength );
PB_API void sipsnHeaderSupportedDelOptionTagCstr( SipsnHeaderSupported **hdr, const char *optionTag,
                                                  int64_t optionTagLength );
PB_API void sipsnHeaderSupportedDelOptionTagWcstr( SipsnHeaderSupported **hdr, const wchar_t *optionTag,
                                                   int64_t optionTagLength );

PB_END_DECLS
#endif
