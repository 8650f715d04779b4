/* SipsnHeaderResourcePriority: the Resource-Priority header field, RFC 4412 section 3.1; a list of r-values.
 *
 * Example: Resource-Priority: dsn.flash
 *
 * R-values are kept as written. A header field without lines decodes to an empty list. Each is encoded as a line of its
 * own. An invalid one aborts. */
#ifndef SIPSN_HEADER_RESOURCE_PRIORITY_H
#define SIPSN_HEADER_RESOURCE_PRIORITY_H

#include "sipsn_header.h"
#include "sipsn_rvalue.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderResourcePriority ), see sipsn_header.h */
typedef struct SipsnHeaderResourcePriority SipsnHeaderResourcePriority;

PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityCreateFrom( SipsnHeaderResourcePriority *source );
PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityRetain( SipsnHeaderResourcePriority *obj );
PB_API void                         sipsnHeaderResourcePriorityRelease( SipsnHeaderResourcePriority *obj );
PB_API PbObj                       *sipsnHeaderResourcePriorityObj( SipsnHeaderResourcePriority *obj );
PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityFrom( PbObj *obj );
PB_API PbSort                      *sipsnHeaderResourcePrioritySort( void );
PB_API PbString                    *sipsnHeaderResourcePriorityToString( SipsnHeaderResourcePriority *obj );
PB_API int64_t sipsnHeaderResourcePriorityCompare( SipsnHeaderResourcePriority *a, SipsnHeaderResourcePriority *b );
PB_API bool    sipsnHeaderResourcePriorityEquals( SipsnHeaderResourcePriority *a, SipsnHeaderResourcePriority *b );

PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader          *sipsnHeaderResourcePriorityEncode( SipsnHeaderResourcePriority *hdr );
PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderResourcePriorityEncodeToMessage( SipsnHeaderResourcePriority *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderResourcePriorityPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderResourcePriorityRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderResourcePriorityStore( SipsnHeaderResourcePriority *hdr );
PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderResourcePriority *sipsnHeaderResourcePriorityCreate( void );

/* ./dev lists: LIST( Rvalues, Rvalue, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderResourcePriorityRvaluesLength( SipsnHeaderResourcePriority *hdr );
PB_API void    sipsnHeaderResourcePriorityAppendRvalue( SipsnHeaderResourcePriority **hdr, PbString *rvalue );
PB_API void    sipsnHeaderResourcePriorityPrependRvalue( SipsnHeaderResourcePriority **hdr, PbString *rvalue );
PB_API void    sipsnHeaderResourcePriorityInsertRvalue( SipsnHeaderResourcePriority **hdr, int64_t index,
                                                        PbString *rvalue );
PB_API void    sipsnHeaderResourcePrioritySetRvalueAt( SipsnHeaderResourcePriority **hdr, int64_t index,
                                                       PbString *rvalue );
PB_API void    sipsnHeaderResourcePriorityDelRvalueAt( SipsnHeaderResourcePriority **hdr, int64_t index );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderResourcePriorityRvalueAt( SipsnHeaderResourcePriority *hdr, int64_t index );
PB_API void      sipsnHeaderResourcePriorityClearRvalues( SipsnHeaderResourcePriority **hdr );

PB_END_DECLS
#endif
