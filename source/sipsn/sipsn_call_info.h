/* SipsnCallInfo: one info of a Call-Info header field, RFC 3261 section 20.9.
 *
 * Example: <http://www.example.com/alice/photo.jpg>;purpose=icon;version=2
 *
 *     info = LAQUOT URI RAQUOT *( SEMI ( "purpose" EQUAL token / generic-param ) )
 *
 *     iri              an absolute IRI, a URI on the wire; never absent
 *     purpose          a token, in lower case; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * On the wire a purpose comes before all other parameters, and takes the place of a generic parameter of its name.
 *
 * Getters return a new reference, or null when the member is absent. Setters and deleters replace *callInfo by a
 * private copy when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_CALL_INFO_H
#define SIPSN_CALL_INFO_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnCallInfo ), see pb_types.h */
typedef struct SipsnCallInfo SipsnCallInfo;

PB_API SipsnCallInfo *sipsnCallInfoCreateFrom( SipsnCallInfo *source );
PB_API SipsnCallInfo *sipsnCallInfoRetain( SipsnCallInfo *obj );
PB_API void           sipsnCallInfoRelease( SipsnCallInfo *obj );
PB_API PbObj         *sipsnCallInfoObj( SipsnCallInfo *obj );
PB_API SipsnCallInfo *sipsnCallInfoFrom( PbObj *obj );
PB_API PbSort        *sipsnCallInfoSort( void );
PB_API PbString      *sipsnCallInfoToString( SipsnCallInfo *obj );
PB_API int64_t        sipsnCallInfoCompare( SipsnCallInfo *a, SipsnCallInfo *b );
PB_API bool           sipsnCallInfoEquals( SipsnCallInfo *a, SipsnCallInfo *b );
/* ./dev lists: end */

PB_API SipsnCallInfo *sipsnCallInfoCreate( PbString *iri );

PB_API PbString *sipsnCallInfoIri( SipsnCallInfo *callInfo );
PB_API void      sipsnCallInfoSetIri( SipsnCallInfo **callInfo, PbString *iri );

/* ./dev lists: URI( callInfo ), see sipsn_uri.h */
PB_API SipsnUri *sipsnCallInfoTryDecodeUri( SipsnCallInfo *callInfo );
PB_API void      sipsnCallInfoSetUri( SipsnCallInfo **callInfo, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnCallInfoPurpose( SipsnCallInfo *callInfo );
PB_API bool      sipsnCallInfoHasPurpose( SipsnCallInfo *callInfo );
PB_API void      sipsnCallInfoSetPurpose( SipsnCallInfo **callInfo, PbString *purpose );
PB_API void      sipsnCallInfoDelPurpose( SipsnCallInfo **callInfo );

PB_API SipsnGenericParams *sipsnCallInfoGenericParams( SipsnCallInfo *callInfo );
PB_API void                sipsnCallInfoSetGenericParams( SipsnCallInfo **callInfo, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
