/* SipsnAcceptEncoding: one element of an Accept-Encoding header field, RFC 3261 section 20.2.
 *
 * Example: gzip;q=0.500;level=9
 *
 *     encoding     = ( content-coding / "*" ) *( SEMI accept-param )
 *     accept-param = "q" EQUAL qvalue / generic-param
 *
 *     content coding   a token, in lower case; null stands for "*"
 *     generic params   every parameter but q; never absent, may be empty
 *     qvalue           thousandths, 0 to 1000; -1 when absent
 *
 * "*" is a token too: an element decoded from it has the content coding "*", one that was created without a coding has
 * none. Both are written as "*", but they are not equal. On the wire q comes before all other parameters, and takes the
 * place of a generic parameter of its name.
 *
 * Getters return a new reference, null or -1 when the member is absent. Setters and deleters replace *acceptEncoding by
 * a private copy when it is shared. A null or invalid argument aborts. Values compare by content coding, qvalue and
 * generic parameters. */
#ifndef SIPSN_ACCEPT_ENCODING_H
#define SIPSN_ACCEPT_ENCODING_H

#include "sipsn_generic_params.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnAcceptEncoding ), see pb_types.h */
typedef struct SipsnAcceptEncoding SipsnAcceptEncoding;

PB_API SipsnAcceptEncoding *sipsnAcceptEncodingCreateFrom( SipsnAcceptEncoding *source );
PB_API SipsnAcceptEncoding *sipsnAcceptEncodingRetain( SipsnAcceptEncoding *obj );
PB_API void                 sipsnAcceptEncodingRelease( SipsnAcceptEncoding *obj );
PB_API PbObj               *sipsnAcceptEncodingObj( SipsnAcceptEncoding *obj );
PB_API SipsnAcceptEncoding *sipsnAcceptEncodingFrom( PbObj *obj );
PB_API PbSort              *sipsnAcceptEncodingSort( void );
PB_API PbString            *sipsnAcceptEncodingToString( SipsnAcceptEncoding *obj );
PB_API int64_t              sipsnAcceptEncodingCompare( SipsnAcceptEncoding *a, SipsnAcceptEncoding *b );
PB_API bool                 sipsnAcceptEncodingEquals( SipsnAcceptEncoding *a, SipsnAcceptEncoding *b );
/* ./dev lists: end */

PB_API SipsnAcceptEncoding *sipsnAcceptEncodingCreate( void ); /* no content coding, no parameters */
PB_API SipsnAcceptEncoding *sipsnAcceptEncodingCreateWithContentCoding( PbString *contentCoding );

PB_API PbString *sipsnAcceptEncodingContentCoding( SipsnAcceptEncoding *acceptEncoding );
PB_API bool      sipsnAcceptEncodingHasContentCoding( SipsnAcceptEncoding *acceptEncoding );
PB_API void      sipsnAcceptEncodingSetContentCoding( SipsnAcceptEncoding **acceptEncoding, PbString *contentCoding );
PB_API void      sipsnAcceptEncodingDelContentCoding( SipsnAcceptEncoding **acceptEncoding );

PB_API SipsnGenericParams *sipsnAcceptEncodingGenericParams( SipsnAcceptEncoding *acceptEncoding );
PB_API void                sipsnAcceptEncodingSetGenericParams( SipsnAcceptEncoding **acceptEncoding,
                                                                SipsnGenericParams   *genericParams );

PB_API int64_t sipsnAcceptEncodingQvalue( SipsnAcceptEncoding *acceptEncoding );
PB_API bool    sipsnAcceptEncodingHasQvalue( SipsnAcceptEncoding *acceptEncoding );
PB_API void    sipsnAcceptEncodingSetQvalue( SipsnAcceptEncoding **acceptEncoding, int64_t qvalue );
PB_API void    sipsnAcceptEncodingDelQvalue( SipsnAcceptEncoding **acceptEncoding );

PB_END_DECLS
#endif
