/* SipsnHeaderCseq: the CSeq header field, RFC 3261 section 20.16; a sequence number and a method.
 *
 * Example: Cseq: 4711 INVITE
 *
 *     CSeq = 1*DIGIT LWS Method
 *
 *     cseq     0 to 2147483647; never absent
 *     method   case kept; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. Getters return new references.
 * Setters replace *hdr by a private copy when it is shared. A null or invalid argument aborts. The Cstr and Wcstr forms
 * take text with its length, -1 meaning up to the terminating zero. */
#ifndef SIPSN_HEADER_CSEQ_H
#define SIPSN_HEADER_CSEQ_H

#include "sipsn_cseq.h"
#include "sipsn_header.h"
#include "sipsn_method.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderCseq ), see sipsn_header.h */
typedef struct SipsnHeaderCseq SipsnHeaderCseq;

PB_API SipsnHeaderCseq *sipsnHeaderCseqCreateFrom( SipsnHeaderCseq *source );
PB_API SipsnHeaderCseq *sipsnHeaderCseqRetain( SipsnHeaderCseq *obj );
PB_API void             sipsnHeaderCseqRelease( SipsnHeaderCseq *obj );
PB_API PbObj           *sipsnHeaderCseqObj( SipsnHeaderCseq *obj );
PB_API SipsnHeaderCseq *sipsnHeaderCseqFrom( PbObj *obj );
PB_API PbSort          *sipsnHeaderCseqSort( void );
PB_API PbString        *sipsnHeaderCseqToString( SipsnHeaderCseq *obj );
PB_API int64_t          sipsnHeaderCseqCompare( SipsnHeaderCseq *a, SipsnHeaderCseq *b );
PB_API bool             sipsnHeaderCseqEquals( SipsnHeaderCseq *a, SipsnHeaderCseq *b );

PB_API SipsnHeaderCseq    *sipsnHeaderCseqTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderCseqEncode( SipsnHeaderCseq *hdr );
PB_API SipsnHeaderCseq    *sipsnHeaderCseqTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderCseqEncodeToMessage( SipsnHeaderCseq *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderCseqPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderCseqRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderCseqStore( SipsnHeaderCseq *hdr );
PB_API SipsnHeaderCseq    *sipsnHeaderCseqTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderCseq *sipsnHeaderCseqCreate( int64_t cseq, PbString *method );

PB_API int64_t sipsnHeaderCseqCseq( SipsnHeaderCseq *hdr );
PB_API void    sipsnHeaderCseqSetCseq( SipsnHeaderCseq **hdr, int64_t cseq );

PB_API PbString *sipsnHeaderCseqMethod( SipsnHeaderCseq *hdr );
PB_API void      sipsnHeaderCseqSetMethod( SipsnHeaderCseq **hdr, PbString *method );
PB_API void      sipsnHeaderCseqSetMethodCstr( SipsnHeaderCseq **hdr, const char *method, int64_t methodLength );
PB_API void      sipsnHeaderCseqSetMethodWcstr( SipsnHeaderCseq **hdr, const wchar_t *method, int64_t methodLength );

PB_END_DECLS
#endif
