/* SipsnHeaderRack: the RAck header field, RFC 3262 section 7.2; which provisional response a PRACK request
 * acknowledges.
 *
 * Example: Rack: 776656 4711 INVITE
 *
 *     RAck = response-num LWS 1*DIGIT LWS Method
 *
 *     response num   1 to 4294967295, the RSeq of the response; never absent
 *     cseq           0 to 2147483647, from the CSeq of the response; never absent
 *     method         from the same, case kept; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. Getters return new references.
 * Setters replace *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_RACK_H
#define SIPSN_HEADER_RACK_H

#include "sipsn_cseq.h"
#include "sipsn_header.h"
#include "sipsn_method.h"
#include "sipsn_response_num.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRack ), see sipsn_header.h */
typedef struct SipsnHeaderRack SipsnHeaderRack;

PB_API SipsnHeaderRack *sipsnHeaderRackCreateFrom( SipsnHeaderRack *source );
PB_API SipsnHeaderRack *sipsnHeaderRackRetain( SipsnHeaderRack *obj );
PB_API void             sipsnHeaderRackRelease( SipsnHeaderRack *obj );
PB_API PbObj           *sipsnHeaderRackObj( SipsnHeaderRack *obj );
PB_API SipsnHeaderRack *sipsnHeaderRackFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderRackSort( void );
PB_API PbString        *sipsnHeaderRackToString( SipsnHeaderRack *obj );
PB_API int64_t          sipsnHeaderRackCompare( SipsnHeaderRack *a, SipsnHeaderRack *b );
PB_API bool             sipsnHeaderRackEquals( SipsnHeaderRack *a, SipsnHeaderRack *b );

PB_API SipsnHeaderRack    *sipsnHeaderRackTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderRackEncode( SipsnHeaderRack *hdr );
PB_API SipsnHeaderRack    *sipsnHeaderRackTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRackEncodeToMessage( SipsnHeaderRack *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderRackPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRackRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderRackStore( SipsnHeaderRack *hdr );
PB_API SipsnHeaderRack    *sipsnHeaderRackTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRack *sipsnHeaderRackCreate( int64_t responseNum, int64_t cseq, PbString *method );

PB_API int64_t sipsnHeaderRackResponseNum( SipsnHeaderRack *hdr );
PB_API void    sipsnHeaderRackSetResponseNum( SipsnHeaderRack **hdr, int64_t responseNum );

PB_API int64_t sipsnHeaderRackCseq( SipsnHeaderRack *hdr );
PB_API void    sipsnHeaderRackSetCseq( SipsnHeaderRack **hdr, int64_t cseq );

PB_API PbString *sipsnHeaderRackMethod( SipsnHeaderRack *hdr );
PB_API void      sipsnHeaderRackSetMethod( SipsnHeaderRack **hdr, PbString *method );

PB_END_DECLS
#endif
