/* SipsnHeaderAcceptContact: the Accept-Contact header field, RFC 3841 section 10; a list of feature sets.
 *
 * Example: Accept-Contact: *;+sip.newparam;mobility="mobile"
 *
 * Each feature set is kept as its text, and decoded when TryDecodeFeatureAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_ACCEPT_CONTACT_H
#define SIPSN_HEADER_ACCEPT_CONTACT_H

#include "sipsn_feature_params.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAcceptContact ), see sipsn_header.h */
typedef struct SipsnHeaderAcceptContact SipsnHeaderAcceptContact;

PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactCreateFrom( SipsnHeaderAcceptContact *source );
PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactRetain( SipsnHeaderAcceptContact *obj );
PB_API void                      sipsnHeaderAcceptContactRelease( SipsnHeaderAcceptContact *obj );
PB_API PbObj                    *sipsnHeaderAcceptContactObj( SipsnHeaderAcceptContact *obj );
PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactFrom( PbObj *obj );
PB_API PbSort                   *sipsnHeaderAcceptContactSort( void );
PB_API PbString                 *sipsnHeaderAcceptContactToString( SipsnHeaderAcceptContact *obj );
PB_API int64_t sipsnHeaderAcceptContactCompare( SipsnHeaderAcceptContact *a, SipsnHeaderAcceptContact *b );
PB_API bool    sipsnHeaderAcceptContactEquals( SipsnHeaderAcceptContact *a, SipsnHeaderAcceptContact *b );

PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader       *sipsnHeaderAcceptContactEncode( SipsnHeaderAcceptContact *hdr );
PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptContactEncodeToMessage( SipsnHeaderAcceptContact *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderAcceptContactPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptContactRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAcceptContactStore( SipsnHeaderAcceptContact *hdr );
PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Features, Feature, SipsnFeatureParams ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAcceptContactFeaturesLength( SipsnHeaderAcceptContact *hdr );
PB_API void sipsnHeaderAcceptContactAppendFeature( SipsnHeaderAcceptContact **hdr, SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderAcceptContactPrependFeature( SipsnHeaderAcceptContact **hdr, SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderAcceptContactInsertFeature( SipsnHeaderAcceptContact **hdr, int64_t index,
                                                   SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderAcceptContactSetFeatureAt( SipsnHeaderAcceptContact **hdr, int64_t index,
                                                  SipsnFeatureParams *featureParams );
PB_API void sipsnHeaderAcceptContactDelFeatureAt( SipsnHeaderAcceptContact **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderAcceptContact *sipsnHeaderAcceptContactCreate( void );
PB_API SipsnFeatureParams *sipsnHeaderAcceptContactTryDecodeFeatureAt( SipsnHeaderAcceptContact *hdr, int64_t index );
PB_API void                sipsnHeaderAcceptContactClearFeatures( SipsnHeaderAcceptContact **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
