/* SipsnHeaderRequire: the Require header field, RFC 3261 section 20.32; a set of option tags.
 *
 * Example: Require: 100rel,timer
 *
 * Option tags are kept in lower case, in whatever case they are given. All are encoded into one line. A header field
 * without lines does not decode. The Cstr and Wcstr forms take text with its length, -1 meaning up to the terminating
 * zero. */
#ifndef SIPSN_HEADER_REQUIRE_H
#define SIPSN_HEADER_REQUIRE_H

#include "sipsn_header.h"
#include "sipsn_option_tag.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRequire ), see sipsn_header.h */
typedef struct SipsnHeaderRequire SipsnHeaderRequire;

PB_API SipsnHeaderRequire *sipsnHeaderRequireCreateFrom( SipsnHeaderRequire *source );
PB_API SipsnHeaderRequire *sipsnHeaderRequireRetain( SipsnHeaderRequire *obj );
PB_API void                sipsnHeaderRequireRelease( SipsnHeaderRequire *obj );
PB_API PbObj              *sipsnHeaderRequireObj( SipsnHeaderRequire *obj );
PB_API SipsnHeaderRequire *sipsnHeaderRequireFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderRequireSort( void );
PB_API PbString           *sipsnHeaderRequireToString( SipsnHeaderRequire *obj );
PB_API int64_t             sipsnHeaderRequireCompare( SipsnHeaderRequire *a, SipsnHeaderRequire *b );
PB_API bool                sipsnHeaderRequireEquals( SipsnHeaderRequire *a, SipsnHeaderRequire *b );

PB_API SipsnHeaderRequire *sipsnHeaderRequireTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderRequireEncode( SipsnHeaderRequire *hdr );
PB_API SipsnHeaderRequire *sipsnHeaderRequireTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRequireEncodeToMessage( SipsnHeaderRequire *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderRequirePresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRequireRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderRequireStore( SipsnHeaderRequire *hdr );
PB_API SipsnHeaderRequire *sipsnHeaderRequireTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRequire *sipsnHeaderRequireCreate( void );

/* ./dev lists: SET( OptionTags, OptionTag ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderRequireOptionTagsLength( SipsnHeaderRequire *hdr );
PB_API PbString *sipsnHeaderRequireOptionTagAt( SipsnHeaderRequire *hdr, int64_t index );
PB_API PbVector *sipsnHeaderRequireOptionTagsVector( SipsnHeaderRequire *hdr );
PB_API void      sipsnHeaderRequireSetOptionTagsVector( SipsnHeaderRequire **hdr, PbVector *vec );
PB_API bool      sipsnHeaderRequireHasOptionTag( SipsnHeaderRequire *hdr, PbString *optionTag );
PB_API void      sipsnHeaderRequireSetOptionTag( SipsnHeaderRequire **hdr, PbString *optionTag );
PB_API void      sipsnHeaderRequireDelOptionTag( SipsnHeaderRequire **hdr, PbString *optionTag );
PB_API void      sipsnHeaderRequireClearOptionTags( SipsnHeaderRequire **hdr );
/* ./dev lists: end */

PB_API bool sipsnHeaderRequireHasOptionTagCstr( SipsnHeaderRequire *hdr, const char *optionTag,
                                                int64_t optionTagLength );
PB_API bool sipsnHeaderRequireHasOptionTagWcstr( SipsnHeaderRequire *hdr, const wchar_t *optionTag,
                                                 int64_t optionTagLength );
PB_API void sipsnHeaderRequireSetOptionTagCstr( SipsnHeaderRequire **hdr, const char *optionTag,
                                                int64_t optionTagLength );
PB_API void sipsnHeaderRequireSetOptionTagWcstr( SipsnHeaderRequire **hdr, const wchar_t *optionTag,
                                                 int64_t optionTagLength );
PB_API void sipsnHeaderRequireDelOptionTagCstr( SipsnHeaderRequire **hdr, const char *optionTag,
                                                int64_t optionTagLength );
PB_API void sipsnHeaderRequireDelOptionTagWcstr( SipsnHeaderRequire **hdr, const wchar_t *optionTag,
                                                 int64_t optionTagLength );

PB_END_DECLS
#endif
