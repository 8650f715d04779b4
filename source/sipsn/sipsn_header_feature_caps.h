/* SipsnHeaderFeatureCaps: the Feature-Caps header field, RFC 6809 section 6; a list of feature sets.
 *
 * Example: Feature-Caps: *;+sip.newparam;mobility="mobile"
 *
 * Each feature set is kept as its text, and decoded when TryDecodeFeatureAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_FEATURE_CAPS_H
#define SIPSN_HEADER_FEATURE_CAPS_H

#include "sipsn_feature_params.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderFeatureCaps ), see sipsn_header.h */
typedef struct SipsnHeaderFeatureCaps SipsnHeaderFeatureCaps;

PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsCreateFrom( SipsnHeaderFeatureCaps *source );
PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsRetain( SipsnHeaderFeatureCaps *obj );
PB_API void                    sipsnHeaderFeatureCapsRelease( SipsnHeaderFeatureCaps *obj );
PB_API PbObj                  *sipsnHeaderFeatureCapsObj( SipsnHeaderFeatureCaps *obj );
PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderFeatureCapsSort( void );
PB_API PbString               *sipsnHeaderFeatureCapsToString( SipsnHeaderFeatureCaps *obj );
PB_API int64_t                 sipsnHeaderFeatureCapsCompare( SipsnHeaderFeatureCaps *a, SipsnHeaderFeatureCaps *b );
PB_API bool                    sipsnHeaderFeatureCapsEquals( SipsnHeaderFeatureCaps *a, SipsnHeaderFeatureCaps *b );

PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderFeatureCapsEncode( SipsnHeaderFeatureCaps *hdr );
PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderFeatureCapsEncodeToMessage( SipsnHeaderFeatureCaps *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderFeatureCapsPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderFeatureCapsRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderFeatureCapsStore( SipsnHeaderFeatureCaps *hdr );
PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Features, Feature, SipsnFeatureParams ), see sipsn_header.h */
PB_API int64_t sipsnHeaderFeatureCapsFeaturesLength( SipsnHeaderFeatureCaps *hdr );
PB_API void    sipsnHeaderFeatureCapsAppendFeature( SipsnHeaderFeatureCaps **hdr, SipsnFeatureParams *featureParams );
PB_API void    sipsnHeaderFeatureCapsPrependFeature( SipsnHeaderFeatureCaps **hdr, SipsnFeatureParams *featureParams );
PB_API void    sipsnHeaderFeatureCapsInsertFeature( SipsnHeaderFeatureCaps **hdr, int64_t index,
                                                    SipsnFeatureParams *featureParams );
PB_API void    sipsnHeaderFeatureCapsSetFeatureAt( SipsnHeaderFeatureCaps **hdr, int64_t index,
                                                   SipsnFeatureParams *featureParams );
PB_API void    sipsnHeaderFeatureCapsDelFeatureAt( SipsnHeaderFeatureCaps **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderFeatureCaps *sipsnHeaderFeatureCapsCreate( void );
PB_API SipsnFeatureParams     *sipsnHeaderFeatureCapsTryDecodeFeatureAt( SipsnHeaderFeatureCaps *hdr, int64_t index );
PB_API void                    sipsnHeaderFeatureCapsClearFeatures( SipsnHeaderFeatureCaps **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
