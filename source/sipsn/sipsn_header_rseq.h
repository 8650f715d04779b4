/* SipsnHeaderRseq: the RSeq header field, RFC 3262 section 7.1; the number of a provisional response.
 *
 * Example: Rseq: 988789
 *
 *     RSeq = 1*DIGIT
 *
 *     response num   1 to 4294967295; never absent
 *
 * The last line of the header field counts, and no line is no header. The setter replaces *hdr by a private copy when
 * it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_RSEQ_H
#define SIPSN_HEADER_RSEQ_H

#include "sipsn_header.h"
#include "sipsn_response_num.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderRseq, sipsnHeaderRseq )

PB_API SipsnHeaderRseq *sipsnHeaderRseqCreate( int64_t responseNum );

PB_API int64_t sipsnHeaderRseqResponseNum( SipsnHeaderRseq *hdr );
PB_API void    sipsnHeaderRseqSetResponseNum( SipsnHeaderRseq **hdr, int64_t responseNum );

PB_END_DECLS
#endif
