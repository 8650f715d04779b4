/* SipsnHeaderUnsupported: the Unsupported header field, RFC 3261 section 20.40; a set of option tags.
 *
 * Example: Unsupported: 100rel,resource-priority
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines does not decode. */
#ifndef SIPSN_HEADER_UNSUPPORTED_H
#define SIPSN_HEADER_UNSUPPORTED_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderUnsupported ), see sipsn_header.h */
typedef struct SipsnHeaderUnsupported SipsnHeaderUnsupported;

PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedCreateFrom( SipsnHeaderUnsupported *source );
PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedRetain( SipsnHeaderUnsupported *obj );
PB_API void                    sipsnHeaderUnsupportedRelease( SipsnHeaderUnsupported *obj );
PB_API PbObj                  *sipsnHeaderUnsupportedObj( SipsnHeaderUnsupported *obj );
PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderUnsupportedSort( void );
PB_API PbString               *sipsnHeaderUnsupportedToString( SipsnHeaderUnsupported *obj );
PB_API int64_t                 sipsnHeaderUnsupportedCompare( SipsnHeaderUnsupported *a, SipsnHeaderUnsupported *b );
PB_API bool                    sipsnHeaderUnsupportedEquals( SipsnHeaderUnsupported *a, SipsnHeaderUnsupported *b );

PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderUnsupportedEncode( SipsnHeaderUnsupported *hdr );
PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderUnsupportedEncodeToMessage( SipsnHeaderUnsupported *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderUnsupportedPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderUnsupportedRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderUnsupportedStore( SipsnHeaderUnsupported *hdr );
PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderUnsupported *sipsnHeaderUnsupportedCreate( void );

/* ./dev lists: SET( OptionTags, OptionTag ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderUnsupportedOptionTagsLength( SipsnHeaderUnsupported *hdr );
PB_API PbString *sipsnHeaderUnsupportedOptionTagAt( SipsnHeaderUnsupported *hdr, int64_t index );
PB_API PbVector *sipsnHeaderUnsupportedOptionTagsVector( SipsnHeaderUnsupported *hdr );
PB_API void      sipsnHeaderUnsupportedSetOptionTagsVector( SipsnHeaderUnsupported **hdr, PbVector *vec );
PB_API bool      sipsnHeaderUnsupportedHasOptionTag( SipsnHeaderUnsupported *hdr, PbString *optionTag );
PB_API void      sipsnHeaderUnsupportedSetOptionTag( SipsnHeaderUnsupported **hdr, PbString *optionTag );
PB_API void      sipsnHeaderUnsupportedDelOptionTag( SipsnHeaderUnsupported **hdr, PbString *optionTag );
PB_API void      sipsnHeaderUnsupportedClearOptionTags( SipsnHeaderUnsupported **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
