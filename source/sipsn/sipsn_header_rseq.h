/* SipsnHeaderRseq: the RSeq header field, RFC 3262 section 7.1; the number of a provisional response.
 *
 * Example: Rseq: 988789
 *
 *     RSeq = 1*DIGIT
 *
 *     response num   1 to 4294967295; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. The setter replaces *hdr by a
 * private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_RSEQ_H
#define SIPSN_HEADER_RSEQ_H

#include "sipsn_header.h"
#include "sipsn_response_num.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderRseq ), see sipsn_header.h */
typedef struct SipsnHeaderRseq SipsnHeaderRseq;

PB_API SipsnHeaderRseq *sipsnHeaderRseqCreateFrom( SipsnHeaderRseq *source );
PB_API SipsnHeaderRseq *sipsnHeaderRseqRetain( SipsnHeaderRseq *obj );
PB_API void             sipsnHeaderRseqRelease( SipsnHeaderRseq *obj );
PB_API PbObj           *sipsnHeaderRseqObj( SipsnHeaderRseq *obj );
PB_API SipsnHeaderRseq *sipsnHeaderRseqFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderRseqSort( void );
PB_API PbString        *sipsnHeaderRseqToString( SipsnHeaderRseq *obj );
PB_API int64_t          sipsnHeaderRseqCompare( SipsnHeaderRseq *a, SipsnHeaderRseq *b );
PB_API bool             sipsnHeaderRseqEquals( SipsnHeaderRseq *a, SipsnHeaderRseq *b );

PB_API SipsnHeaderRseq    *sipsnHeaderRseqTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderRseqEncode( SipsnHeaderRseq *hdr );
PB_API SipsnHeaderRseq    *sipsnHeaderRseqTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRseqEncodeToMessage( SipsnHeaderRseq *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderRseqPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderRseqRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderRseqStore( SipsnHeaderRseq *hdr );
PB_API SipsnHeaderRseq    *sipsnHeaderRseqTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderRseq *sipsnHeaderRseqCreate( int64_t responseNum );

PB_API int64_t sipsnHeaderRseqResponseNum( SipsnHeaderRseq *hdr );
PB_API void    sipsnHeaderRseqSetResponseNum( SipsnHeaderRseq **hdr, int64_t responseNum );

PB_END_DECLS
#endif
