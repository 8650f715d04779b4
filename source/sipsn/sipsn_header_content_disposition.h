/* SipsnHeaderContentDisposition: the Content-Disposition header field, RFC 3261 section 20.11; what a body is for.
 *
 * Example: Content-Disposition: session;handling=optional;lang=en
 *
 *     Content-Disposition = disp-type *( ";" ( "handling" "=" token / generic-param ) )
 *
 *     disposition type   a token, kept in lower case; never absent
 *     handling           a token, kept in lower case; optional
 *     generic params     every other parameter; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. Of several handlings the last
 * counts; one that is no token is a generic parameter. Getters return new references, or null when the member is
 * absent. Setters and deleters replace *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_CONTENT_DISPOSITION_H
#define SIPSN_HEADER_CONTENT_DISPOSITION_H

#include "sipsn_disposition_type.h"
#include "sipsn_generic_params.h"
#include "sipsn_handling.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderContentDisposition ), see sipsn_header.h */
typedef struct SipsnHeaderContentDisposition SipsnHeaderContentDisposition;

PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionCreateFrom( SipsnHeaderContentDisposition *source );
PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionRetain( SipsnHeaderContentDisposition *obj );
PB_API void                           sipsnHeaderContentDispositionRelease( SipsnHeaderContentDisposition *obj );
PB_API PbObj                         *sipsnHeaderContentDispositionObj( SipsnHeaderContentDisposition *obj );
PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderContentDispositionSort( void );
PB_API PbString                      *sipsnHeaderContentDispositionToString( SipsnHeaderContentDisposition *obj );
PB_API int64_t                        sipsnHeaderContentDispositionCompare( SipsnHeaderContentDisposition *a,
                                                                            SipsnHeaderContentDisposition *b );
PB_API bool sipsnHeaderContentDispositionEquals( SipsnHeaderContentDisposition *a, SipsnHeaderContentDisposition *b );

PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderContentDispositionEncode( SipsnHeaderContentDisposition *hdr );
PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentDispositionEncodeToMessage( SipsnHeaderContentDisposition *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderContentDispositionPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderContentDispositionRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderContentDispositionStore( SipsnHeaderContentDisposition *hdr );
PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderContentDisposition *sipsnHeaderContentDispositionCreate( PbString *dispositionType );

PB_API PbString *sipsnHeaderContentDispositionDispositionType( SipsnHeaderContentDisposition *hdr );
PB_API void      sipsnHeaderContentDispositionSetDispositionType( SipsnHeaderContentDisposition **hdr,
                                                                  PbString                       *dispositionType );

PB_API PbString *sipsnHeaderContentDispositionHandling( SipsnHeaderContentDisposition *hdr );
PB_API bool      sipsnHeaderContentDispositionHasHandling( SipsnHeaderContentDisposition *hdr );
PB_API void      sipsnHeaderContentDispositionDelHandling( SipsnHeaderContentDisposition **hdr );
PB_API void      sipsnHeaderContentDispositionSetHandling( SipsnHeaderContentDisposition **hdr, PbString *handling );

PB_API SipsnGenericParams *sipsnHeaderContentDispositionGenericParams( SipsnHeaderContentDisposition *hdr );
PB_API void                sipsnHeaderContentDispositionSetGenericParams( SipsnHeaderContentDisposition **hdr,
                                                                          SipsnGenericParams             *genericParams );

PB_END_DECLS
#endif
