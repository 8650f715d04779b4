/* SipsnHeaderAcceptResourcePriority: the Accept-Resource-Priority header field, RFC 4412 section 3.2; a list of
 * r-values.
 *
 * Example: Accept-Resource-Priority: dsn.flash-override
 *
 * R-values are kept as written. A header field without lines does not decode. Each is encoded as a line of its own. An
 * invalid one aborts. */
#ifndef SIPSN_HEADER_ACCEPT_RESOURCE_PRIORITY_H
#define SIPSN_HEADER_ACCEPT_RESOURCE_PRIORITY_H

#include "sipsn_header.h"
#include "sipsn_rvalue.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAcceptResourcePriority ), see sipsn_header.h */
typedef struct SipsnHeaderAcceptResourcePriority SipsnHeaderAcceptResourcePriority;

PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityCreateFrom(
    SipsnHeaderAcceptResourcePriority *source );
PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityRetain(
    SipsnHeaderAcceptResourcePriority *obj );
PB_API void   sipsnHeaderAcceptResourcePriorityRelease( SipsnHeaderAcceptResourcePriority *obj );
PB_API PbObj *sipsnHeaderAcceptResourcePriorityObj( SipsnHeaderAcceptResourcePriority *obj );
PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityFrom( PbObj *obj );
PB_API PbSort                            *sipsnHeaderAcceptResourcePrioritySort( void );
PB_API PbString *sipsnHeaderAcceptResourcePriorityToString( SipsnHeaderAcceptResourcePriority *obj );
PB_API int64_t   sipsnHeaderAcceptResourcePriorityCompare( SipsnHeaderAcceptResourcePriority *a,
                                                           SipsnHeaderAcceptResourcePriority *b );
PB_API bool      sipsnHeaderAcceptResourcePriorityEquals( SipsnHeaderAcceptResourcePriority *a,
                                                          SipsnHeaderAcceptResourcePriority *b );

PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderAcceptResourcePriorityEncode( SipsnHeaderAcceptResourcePriority *hdr );
PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptResourcePriorityEncodeToMessage( SipsnHeaderAcceptResourcePriority *hdr,
                                                                  SipsnMessage                     **msg );
PB_API bool     sipsnHeaderAcceptResourcePriorityPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderAcceptResourcePriorityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderAcceptResourcePriorityStore( SipsnHeaderAcceptResourcePriority *hdr );
PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderAcceptResourcePriority *sipsnHeaderAcceptResourcePriorityCreate( void );

/* ./dev lists: LIST( Rvalues, Rvalue, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderAcceptResourcePriorityRvaluesLength( SipsnHeaderAcceptResourcePriority *hdr );
PB_API void sipsnHeaderAcceptResourcePriorityAppendRvalue( SipsnHeaderAcceptResourcePriority **hdr, PbString *rvalue );
PB_API void sipsnHeaderAcceptResourcePriorityPrependRvalue( SipsnHeaderAcceptResourcePriority **hdr, PbString *rvalue );
PB_API void sipsnHeaderAcceptResourcePriorityInsertRvalue( SipsnHeaderAcceptResourcePriority **hdr, int64_t index,
                                                           PbString *rvalue );
PB_API void sipsnHeaderAcceptResourcePrioritySetRvalueAt( SipsnHeaderAcceptResourcePriority **hdr, int64_t index,
                                                          PbString *rvalue );
PB_API void sipsnHeaderAcceptResourcePriorityDelRvalueAt( SipsnHeaderAcceptResourcePriority **hdr, int64_t index );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderAcceptResourcePriorityRvalueAt( SipsnHeaderAcceptResourcePriority *hdr, int64_t index );
PB_API void      sipsnHeaderAcceptResourcePriorityClearRvalues( SipsnHeaderAcceptResourcePriority **hdr );

PB_END_DECLS
#endif
