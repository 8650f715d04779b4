/* SipsnHeaderRequestDisposition: the Request-Disposition header field, RFC 3841 section 9.1; a list of directives.
 *
 * Example: Request-Disposition: proxy
 *
 * Directives are kept in lower case. Two that exclude each other are not refused. A header field without lines does
 * not decode. Each is encoded as a line of its own. An invalid one aborts. */
#ifndef SIPSN_HEADER_REQUEST_DISPOSITION_H
#define SIPSN_HEADER_REQUEST_DISPOSITION_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_request_directive.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRequestDisposition ), see sipsn_header.h */
typedef struct SipsnHeaderRequestDisposition SipsnHeaderRequestDisposition;

PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionCreateFrom( SipsnHeaderRequestDisposition *source );
PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionRetain( SipsnHeaderRequestDisposition *obj );
PB_API void                           sipsnHeaderRequestDispositionRelease( SipsnHeaderRequestDisposition *obj );
PB_API PbObj                         *sipsnHeaderRequestDispositionObj( SipsnHeaderRequestDisposition *obj );
PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionFrom( PbObj *obj );
PB_API PbSort                        *sipsnHeaderRequestDispositionSort( void );
PB_API PbString                      *sipsnHeaderRequestDispositionToString( SipsnHeaderRequestDisposition *obj );
PB_API int64_t                        sipsnHeaderRequestDispositionCompare( SipsnHeaderRequestDisposition *a,
                                                                            SipsnHeaderRequestDisposition *b );
PB_API bool sipsnHeaderRequestDispositionEquals( SipsnHeaderRequestDisposition *a, SipsnHeaderRequestDisposition *b );

PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader            *sipsnHeaderRequestDispositionEncode( SipsnHeaderRequestDisposition *hdr );
PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRequestDispositionEncodeToMessage( SipsnHeaderRequestDisposition *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderRequestDispositionPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderRequestDispositionRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderRequestDispositionStore( SipsnHeaderRequestDisposition *hdr );
PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( RequestDirectives, RequestDirective, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderRequestDispositionRequestDirectivesLength( SipsnHeaderRequestDisposition *hdr );
PB_API void    sipsnHeaderRequestDispositionAppendRequestDirective( SipsnHeaderRequestDisposition **hdr,
                                                                    PbString                       *requestDirective );
PB_API void    sipsnHeaderRequestDispositionPrependRequestDirective( SipsnHeaderRequestDisposition **hdr,
                                                                     PbString                       *requestDirective );
PB_API void    sipsnHeaderRequestDispositionInsertRequestDirective( SipsnHeaderRequestDisposition **hdr, int64_t index,
                                                                    PbString *requestDirective );
PB_API void    sipsnHeaderRequestDispositionSetRequestDirectiveAt( SipsnHeaderRequestDisposition **hdr, int64_t index,
                                                                   PbString *requestDirective );
PB_API void    sipsnHeaderRequestDispositionDelRequestDirectiveAt( SipsnHeaderRequestDisposition **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderRequestDisposition *sipsnHeaderRequestDispositionCreate( void );
PB_API PbString *sipsnHeaderRequestDispositionRequestDirectiveAt( SipsnHeaderRequestDisposition *hdr, int64_t index );
PB_API void      sipsnHeaderRequestDispositionClearRequestDirectives( SipsnHeaderRequestDisposition **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
