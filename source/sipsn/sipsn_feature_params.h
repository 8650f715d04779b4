/* SipsnFeatureParams: one set of features of Accept-Contact, Reject-Contact or Feature-Caps, RFC 3841 section 10 and
 * RFC 6809 section 6.
 *
 * Example: *;require;explicit;+sip.newparam;mobility="mobile"
 *
 *     ac-value = "*" *( SEMI ( "require" / "explicit" / feature-param / generic-param ) )
 *
 *     require          whether a contact without the features is dropped; false by default
 *     is explicit      whether a contact has to say that it has them; false by default
 *     generic params   every other parameter; never absent, may be empty
 *
 * Feature tags are generic parameters, with "+" where they have it, and what they say is the content of a quoted
 * string. Accept-Contact alone gives the flags a meaning. A decoded parameter whose value does not fit its member is
 * kept as a generic one. Values compare in the order above. */
#ifndef SIPSN_FEATURE_PARAMS_H
#define SIPSN_FEATURE_PARAMS_H

#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnFeatureParams ), see pb_types.h */
typedef struct SipsnFeatureParams SipsnFeatureParams;

PB_API SipsnFeatureParams *sipsnFeatureParamsCreateFrom( SipsnFeatureParams *source );
PB_API SipsnFeatureParams *sipsnFeatureParamsRetain( SipsnFeatureParams *obj );
PB_API void                sipsnFeatureParamsRelease( SipsnFeatureParams *obj );
PB_API PbObj              *sipsnFeatureParamsObj( SipsnFeatureParams *obj );
PB_API SipsnFeatureParams *sipsnFeatureParamsFrom( PbObj *obj );
PB_API PbSort             *sipsnFeatureParamsSort( void );
PB_API PbString           *sipsnFeatureParamsToString( SipsnFeatureParams *obj );
PB_API int64_t             sipsnFeatureParamsCompare( SipsnFeatureParams *a, SipsnFeatureParams *b );
PB_API bool                sipsnFeatureParamsEquals( SipsnFeatureParams *a, SipsnFeatureParams *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnFeatureParams *sipsnFeatureParamsCreate( void );

PB_API bool sipsnFeatureParamsRequire( SipsnFeatureParams *features );
PB_API void sipsnFeatureParamsSetRequire( SipsnFeatureParams **features, bool require );

PB_API bool sipsnFeatureParamsIsExplicit( SipsnFeatureParams *features );
PB_API void sipsnFeatureParamsSetIsExplicit( SipsnFeatureParams **features, bool isExplicit );

PB_API SipsnGenericParams *sipsnFeatureParamsGenericParams( SipsnFeatureParams *features );
PB_API void sipsnFeatureParamsSetGenericParams( SipsnFeatureParams **features, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
