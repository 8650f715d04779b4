/* SipsnErrorInfo: one error-uri of an Error-Info header field, RFC 3261 section 20.18.
 *
 * Example: <sip:not-in-service@announce.example.com>;lang=en
 *
 *     error-uri = LAQUOT URI RAQUOT *( SEMI generic-param )
 *
 *     iri              an absolute IRI, a URI on the wire; never absent
 *     generic params   never absent, may be empty
 *
 * Getters return a new reference. Setters replace *errorInfo by a private copy when it is shared. A null or invalid
 * argument aborts. Values compare in the order above. */
#ifndef SIPSN_ERROR_INFO_H
#define SIPSN_ERROR_INFO_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnErrorInfo ), see pb_types.h */
typedef struct SipsnErrorInfo SipsnErrorInfo;

PB_API SipsnErrorInfo *sipsnErrorInfoCreateFrom( SipsnErrorInfo *source );
PB_API SipsnErrorInfo *sipsnErrorInfoRetain( SipsnErrorInfo *obj );
PB_API void            sipsnErrorInfoRelease( SipsnErrorInfo *obj );
PB_API PbObj          *sipsnErrorInfoObj( SipsnErrorInfo *obj );
PB_API SipsnErrorInfo *sipsnErrorInfoFrom( PbObj *obj );
PB_API PbSort         *sipsnErrorInfoSort( void );
PB_API PbString       *sipsnErrorInfoToString( SipsnErrorInfo *obj );
PB_API int64_t         sipsnErrorInfoCompare( SipsnErrorInfo *a, SipsnErrorInfo *b );
PB_API bool            sipsnErrorInfoEquals( SipsnErrorInfo *a, SipsnErrorInfo *b );
/* ./dev lists: end */

PB_API SipsnErrorInfo *sipsnErrorInfoCreate( PbString *iri );

PB_API PbString *sipsnErrorInfoIri( SipsnErrorInfo *errorInfo );
PB_API void      sipsnErrorInfoSetIri( SipsnErrorInfo **errorInfo, PbString *iri );

/* ./dev lists: URI( errorInfo ), see sipsn_uri.h */
PB_API SipsnUri *sipsnErrorInfoTryDecodeUri( SipsnErrorInfo *errorInfo );
PB_API void      sipsnErrorInfoSetUri( SipsnErrorInfo **errorInfo, SipsnUri *uri );
/* ./dev lists: end */

PB_API SipsnGenericParams *sipsnErrorInfoGenericParams( SipsnErrorInfo *errorInfo );
PB_API void sipsnErrorInfoSetGenericParams( SipsnErrorInfo **errorInfo, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
