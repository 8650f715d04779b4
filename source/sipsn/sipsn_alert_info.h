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

PB_BEGIN_DECLS

PB_DECLARE_TYPE( SipsnAlertInfo, sipsnAlertInfo )

PB_API SipsnAlertInfo *sipsnAlertInfoCreate( PbString *iri );

PB_API PbString *sipsnAlertInfoIri( SipsnAlertInfo *alertInfo );
PB_API void      sipsnAlertInfoSetIri( SipsnAlertInfo **alertInfo, PbString *iri );

PB_API SipsnGenericParams *sipsnAlertInfoGenericParams( SipsnAlertInfo *alertInfo );
PB_API void sipsnAlertInfoSetGenericParams( SipsnAlertInfo **alertInfo, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
