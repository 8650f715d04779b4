/* SipsnHeaderRejectContact: the Reject-Contact header field, RFC 3841 section 10; a list of feature sets.
 *
 * Example: Reject-Contact: *;+sip.newparam;mobility="mobile"
 *
 * Each feature set is kept as its text, and decoded when TryDecodeFeatureAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_REJECT_CONTACT_H
#define SIPSN_HEADER_REJECT_CONTACT_H

#include "sipsn_feature_params.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRejectContact ), see sipsn_header.h */
typedef struct SipsnHeaderRejectContact SipsnHeaderRejectContact;

PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactCreateFrom( SipsnHeaderRejectContact *source );
PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactRetain( SipsnHeaderRejectContact *obj );
PB_API void                      sipsnHeaderRejectContactRelease( SipsnHeaderRejectContact *obj );
PB_API PbObj                    *sipsnHeaderRejectContactObj( SipsnHeaderRejectContact *obj );
PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderRejectContactSort( void );
PB_API PbString                 *sipsnHeaderRejectContactToString( SipsnHeaderRejectContact *obj );
PB_API int64_t sipsnHeaderRejectContactCompare( SipsnHeaderRejectContact *a, SipsnHeaderRejectContact *b );
PB_API bool    sipsnHeaderRejectContactEquals( SipsnHeaderRejectContact *a, SipsnHeaderRejectContact *b );

PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderRejectContactEncode( SipsnHeaderRejectContact *hdr );
PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRejectContactEncodeToMessage( SipsnHeaderRejectContact *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderRejectContactPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRejectContactRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderRejectContactStore( SipsnHeaderRejectContact *hdr );
PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Features, Feature, SipsnFeatureParams ), see sipsn_header.h */
PB_API int64_t sipsnHeaderRejectContactFeaturesLength( SipsnHeaderRejectContact *hdr );
PB_API void sipsnHeaderRejectContactAppendFeature( SipsnHeaderRejectContact **hdr, SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderRejectContactPrependFeature( SipsnHeaderRejectContact **hdr, SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderRejectContactInsertFeature( SipsnHeaderRejectContact **hdr, int64_t index,
                                                   SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderRejectContactSetFeatureAt( SipsnHeaderRejectContact **hdr, int64_t index,
                                                  SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderRejectContactDelFeatureAt( SipsnHeaderRejectContact **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderRejectContact *sipsnHeaderRejectContactCreate( void );
PB_API SipsnFeatureParams *sipsnHeaderRejectContactTryDecodeFeatureAt( SipsnHeaderRejectContact *hdr, int64_t index );
PB_API void                sipsnHeaderRejectContactClearFeatures( SipsnHeaderRejectContact **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
