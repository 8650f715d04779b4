/* SipsnAccept: one accept-range of an Accept header field, RFC 3261 section 20.1.
 *
 * Example: application/sdp;q=0.700;level=1
 *
 *     accept-range = ( "*" SLASH "*" / media-type SLASH "*" / media-type SLASH media-subtype ) *( SEMI accept-param )
 *     accept-param = "q" EQUAL qvalue / generic-param
 *
 *     media type       a token, in lower case; null stands for "*"
 *     media subtype    a token, in lower case; null stands for "*"
 *     generic params   every parameter but q; never absent, may be empty
 *     qvalue           thousandths, 0 to 1000; -1 when absent
 *
 * Without a media type the range is written as "*" "/" "*", also when it has a subtype. On the wire q comes before all
 * other parameters, and takes the place of a generic parameter of its name.
 *
 * Getters return a new reference, null or -1 when the member is absent. Setters and deleters replace *accept by a
 * private copy when it is shared. A null or invalid argument aborts. Values compare by media type, media subtype,
 * qvalue and generic parameters. */
#ifndef SIPSN_ACCEPT_H
#define SIPSN_ACCEPT_H

#include "sipsn_generic_params.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnAccept ), see pb_types.h */
typedef struct SipsnAccept SipsnAccept;

PB_API SipsnAccept *sipsnAcceptCreateFrom( SipsnAccept *source );
PB_API SipsnAccept *sipsnAcceptRetain( SipsnAccept *obj );
PB_API void         sipsnAcceptRelease( SipsnAccept *obj );
PB_API PbObj       *sipsnAcceptObj( SipsnAccept *obj );
PB_API SipsnAccept *sipsnAcceptFrom( PbObj *obj );
PB_API PbSort      *sipsnAcceptSort( void );
PB_API PbString    *sipsnAcceptToString( SipsnAccept *obj );
PB_API int64_t      sipsnAcceptCompare( SipsnAccept *a, SipsnAccept *b );
PB_API bool         sipsnAcceptEquals( SipsnAccept *a, SipsnAccept *b );
/* ./dev lists: end */

PB_API SipsnAccept *sipsnAcceptCreate( void ); /* any type, any subtype, no parameters */

PB_API PbString *sipsnAcceptMediaType( SipsnAccept *accept );
PB_API bool      sipsnAcceptHasMediaType( SipsnAccept *accept );
PB_API void      sipsnAcceptSetMediaType( SipsnAccept **accept, PbString *mediaType );
PB_API void      sipsnAcceptDelMediaType( SipsnAccept **accept );

PB_API PbString *sipsnAcceptMediaSubtype( SipsnAccept *accept );
PB_API bool      sipsnAcceptHasMediaSubtype( SipsnAccept *accept );
PB_API void      sipsnAcceptSetMediaSubtype( SipsnAccept **accept, PbString *mediaSubtype );
PB_API void      sipsnAcceptDelMediaSubtype( SipsnAccept **accept );

PB_API SipsnGenericParams *sipsnAcceptGenericParams( SipsnAccept *accept );
PB_API void                sipsnAcceptSetGenericParams( SipsnAccept **accept, SipsnGenericParams *genericParams );

PB_API int64_t sipsnAcceptQvalue( SipsnAccept *accept );
PB_API bool    sipsnAcceptHasQvalue( SipsnAccept *accept );
PB_API void    sipsnAcceptSetQvalue( SipsnAccept **accept, int64_t qvalue );
PB_API void    sipsnAcceptDelQvalue( SipsnAccept **accept );

PB_END_DECLS
#endif
