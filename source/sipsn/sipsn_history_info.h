/* SipsnHistoryInfo: one hi-entry of a History-Info header field, RFC 7044 section 5.
 *
 * Example: "Bob" <sip:bob@192.0.2.4>;index=1.1;rc=1;mp=1;np=1;lang=en
 *
 *     hi-entry = name-addr *( SEMI ( index-param / rc-param / mp-param / np-param / generic-param ) )
 *
 *     iri              the address, an IRI (a URI on the wire); never absent
 *     display name     free text without line ends; optional
 *     index            the entry's place in the history, such as "1.2.1"; never absent
 *     rc, mp, np       the index of the entry that this one was retargeted from; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * Indices are texts: "1.10" and "1.1" differ, and "1.10" comes before "1.9". A text without angle brackets, or without
 * an index, is not an entry. A decoded parameter whose value does not fit its member is kept as a generic one. On the
 * wire a member that is present takes the place of a generic parameter of its name.
 *
 * Getters return a new reference, or null when the member is absent. Setters and deleters replace *hi by a private copy
 * when it is shared. A null or invalid argument aborts. Values compare in the order above. */
#ifndef SIPSN_HISTORY_INFO_H
#define SIPSN_HISTORY_INFO_H

#include "sipsn_generic_params.h"
#include "sipsn_uri.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnHistoryInfo ), see pb_types.h */
typedef struct SipsnHistoryInfo SipsnHistoryInfo;

PB_API SipsnHistoryInfo *sipsnHistoryInfoCreateFrom( SipsnHistoryInfo *source );
PB_API SipsnHistoryInfo *sipsnHistoryInfoRetain( SipsnHistoryInfo *obj );
PB_API void              sipsnHistoryInfoRelease( SipsnHistoryInfo *obj );
PB_API PbObj            *sipsnHistoryInfoObj( SipsnHistoryInfo *obj );
PB_API SipsnHistoryInfo *sipsnHistoryInfoFrom( PbObj *obj );
PB_API PbSort           *sipsnHistoryInfoSort( void );
PB_API PbString         *sipsnHistoryInfoToString( SipsnHistoryInfo *obj );
PB_API int64_t           sipsnHistoryInfoCompare( SipsnHistoryInfo *a, SipsnHistoryInfo *b );
PB_API bool              sipsnHistoryInfoEquals( SipsnHistoryInfo *a, SipsnHistoryInfo *b );
/* ./dev lists: end */

PB_API SipsnHistoryInfo *sipsnHistoryInfoCreate( PbString *iri, PbString *index );

PB_API PbString *sipsnHistoryInfoIri( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetIri( SipsnHistoryInfo **hi, PbString *iri );

/* ./dev lists: URI( hi ), see sipsn_uri.h */
PB_API SipsnUri *sipsnHistoryInfoTryDecodeUri( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetUri( SipsnHistoryInfo **hi, SipsnUri *uri );
/* ./dev lists: end */

PB_API PbString *sipsnHistoryInfoDisplayName( SipsnHistoryInfo *hi );
PB_API bool      sipsnHistoryInfoHasDisplayName( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetDisplayName( SipsnHistoryInfo **hi, PbString *displayName );
PB_API void      sipsnHistoryInfoDelDisplayName( SipsnHistoryInfo **hi );

PB_API PbString *sipsnHistoryInfoIndex( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetIndex( SipsnHistoryInfo **hi, PbString *index );

PB_API PbString *sipsnHistoryInfoRc( SipsnHistoryInfo *hi );
PB_API bool      sipsnHistoryInfoHasRc( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetRc( SipsnHistoryInfo **hi, PbString *rc );
PB_API void      sipsnHistoryInfoDelRc( SipsnHistoryInfo **hi );

PB_API PbString *sipsnHistoryInfoMp( SipsnHistoryInfo *hi );
PB_API bool      sipsnHistoryInfoHasMp( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetMp( SipsnHistoryInfo **hi, PbString *mp );
PB_API void      sipsnHistoryInfoDelMp( SipsnHistoryInfo **hi );

PB_API PbString *sipsnHistoryInfoNp( SipsnHistoryInfo *hi );
PB_API bool      sipsnHistoryInfoHasNp( SipsnHistoryInfo *hi );
PB_API void      sipsnHistoryInfoSetNp( SipsnHistoryInfo **hi, PbString *np );
PB_API void      sipsnHistoryInfoDelNp( SipsnHistoryInfo **hi );

PB_API SipsnGenericParams *sipsnHistoryInfoGenericParams( SipsnHistoryInfo *hi );
PB_API void                sipsnHistoryInfoSetGenericParams( SipsnHistoryInfo **hi, SipsnGenericParams *genericParams );

PB_END_DECLS
#endif
