/* SipsnAlertInfo: one alert-param of an Alert-Info header field, RFC 3261 section 20.4.
 *
 * Example: <http://www.example.com/sounds/moo.wav>;appearance=2
 *
 *     alert-param = LAQUOT URI RAQUOT *( SEMI generic-param )
 *
 *     iri              an absolute IRI, a URI on the wire; never absent
 *     generic params   never absent, may be empty
 *
 * Getters return a new reference. Setters replace *alertInfo by a private copy when it is shared. A null or invalid
 * argument aborts. Values compare in the order above. */
#ifndef SIPSN_ALERT_INFO_H
#define SIPSN_ALERT_INFO_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnAlertInfo ), see pb_types.h */
typedef struct SipsnAlertInfo SipsnAlertInfo;

PB_API SipsnAlertInfo *sipsnAlertInfoCreateFrom( SipsnAlertInfo *source );
PB_API SipsnAlertInfo *sipsnAlertInfoRetain( SipsnAlertInfo *obj );
PB_API void            sipsnAlertInfoRelease( SipsnAlertInfo *obj );
PB_API PbObj          *sipsnAlertInfoObj( SipsnAlertInfo *obj );
PB_API SipsnAlertInfo *sipsnAlertInfoFrom( PbObj *obj );
PB_API PbSort         *sipsnAlertInfoSort( void );
PB_API PbString       *sipsnAlertInfoToString( SipsnAlertInfo *obj );
PB_API int64_t         sipsnAlertInfoCompare( SipsnAlertInfo *a, SipsnAlertInfo *b );
PB_API bool            sipsnAlertInfoEquals( SipsnAlertInfo *a, SipsnAlertInfo *b );
/* ./dev lists: end */

PB_API SipsnAlertInfo *sipsnAlertInfoCreate( PbString *iri );

PB_API PbString *sipsnAlertInfoIri( SipsnAlertInfo *alertInfo );
PB_API void      sipsnAlertInfoSetIri( SipsnAlertInfo **alertInfo, PbString *iri );

/* ./dev lists: URI( alertInfo ), see sipsn_uri.h */
PB_API SipsnUri *sipsnAlertInfoTryDecodeUri( SipsnAlertInfo *alertInfo );
PB_API void      sipsnAlertInfoSetUri( SipsnAlertInfo **alertInfo, SipsnUri *uri );
/* ./dev lists: end */

PB_API SipsnGenericParams *sipsnAlertInfoGenericParams( SipsnAlertInfo *alertInfo );
PB_API void sipsnAlertInfoSetGenericParams( SipsnAlertInfo **alertInfo, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
