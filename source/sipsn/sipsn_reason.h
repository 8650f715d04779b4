/* SipsnReason: one reason-value of a Reason header field, RFC 3326 section 2.
 *
 * Example: Q.850;cause=16;text="Normal call clearing";location=LN
 *
 *     reason-value = protocol *( ";" ( "cause" "=" 1*DIGIT / "text" "=" quoted-string / generic-param ) )
 *
 *     protocol        a token, case kept; never absent
 *     cause           decimal digits exactly as given ("0016" stays "0016"); optional
 *     text            the content of the quoted string, without quotes and escapes; optional
 *     generic params  every other parameter; never absent, may be empty
 *
 * Getters return a new reference, or null when the member is absent. Setters and deleters replace
 * *reason by a private copy when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_REASON_H
#define SIPSN_REASON_H

#include "sipsn_generic_params.h"
#include "sipsn_reason_cause.h"
#include "sipsn_reason_protocol.h"
#include "sipsn_reason_text.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnReason ), see pb_types.h */
typedef struct SipsnReason SipsnReason;

PB_API SipsnReason *sipsnReasonCreateFrom( SipsnReason *source );
PB_API SipsnReason *sipsnReasonRetain( SipsnReason *obj );
PB_API void         sipsnReasonRelease( SipsnReason *obj );
PB_API PbObj       *sipsnReasonObj( SipsnReason *obj );
PB_API SipsnReason *sipsnReasonFrom( PbObj *obj );
PB_API PbSort      *sipsnReasonSort( void );
PB_API PbString    *sipsnReasonToString( SipsnReason *obj );
PB_API int64_t      sipsnReasonCompare( SipsnReason *a, SipsnReason *b );
PB_API bool         sipsnReasonEquals( SipsnReason *a, SipsnReason *b );
/* ./dev lists: end */

PB_API SipsnReason *sipsnReasonCreate( PbString *reasonProtocol );

PB_API PbString *sipsnReasonProtocol( SipsnReason *reason );
PB_API void      sipsnReasonSetProtocol( SipsnReason **reason, PbString *reasonProtocol );

PB_API PbString *sipsnReasonCause( SipsnReason *reason );
PB_API bool      sipsnReasonHasCause( SipsnReason *reason );
PB_API void      sipsnReasonSetCause( SipsnReason **reason, PbString *reasonCause );
PB_API void      sipsnReasonDelCause( SipsnReason **reason );

PB_API PbString *sipsnReasonText( SipsnReason *reason );
PB_API bool      sipsnReasonHasText( SipsnReason *reason );
PB_API void      sipsnReasonSetText( SipsnReason **reason, PbString *reasonText );
PB_API void      sipsnReasonDelText( SipsnReason **reason );

PB_API SipsnGenericParams *sipsnReasonGenericParams( SipsnReason *reason );
PB_API void                sipsnReasonSetGenericParams( SipsnReason **reason, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
