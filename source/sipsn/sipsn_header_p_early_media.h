/* SipsnHeaderPEarlyMedia: the P-Early-Media header field, RFC 5009 section 8; a list of em-params.
 *
 * Example: P-Early-Media: sendrecv
 *
 * Em-params are kept as written. A header field without lines decodes to an empty list. Each is encoded as a line of
 * its own. An invalid one aborts. */
#ifndef SIPSN_HEADER_P_EARLY_MEDIA_H
#define SIPSN_HEADER_P_EARLY_MEDIA_H

#include "sipsn_em_param.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderPEarlyMedia ), see sipsn_header.h */
typedef struct SipsnHeaderPEarlyMedia SipsnHeaderPEarlyMedia;

PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaCreateFrom( SipsnHeaderPEarlyMedia *source );
PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaRetain( SipsnHeaderPEarlyMedia *obj );
PB_API void                    sipsnHeaderPEarlyMediaRelease( SipsnHeaderPEarlyMedia *obj );
PB_API PbObj                  *sipsnHeaderPEarlyMediaObj( SipsnHeaderPEarlyMedia *obj );
PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderPEarlyMediaSort( void );
PB_API PbString               *sipsnHeaderPEarlyMediaToString( SipsnHeaderPEarlyMedia *obj );
PB_API int64_t                 sipsnHeaderPEarlyMediaCompare( SipsnHeaderPEarlyMedia *a, SipsnHeaderPEarlyMedia *b );
PB_API bool                    sipsnHeaderPEarlyMediaEquals( SipsnHeaderPEarlyMedia *a, SipsnHeaderPEarlyMedia *b );

PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderPEarlyMediaEncode( SipsnHeaderPEarlyMedia *hdr );
PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPEarlyMediaEncodeToMessage( SipsnHeaderPEarlyMedia *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderPEarlyMediaPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderPEarlyMediaRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderPEarlyMediaStore( SipsnHeaderPEarlyMedia *hdr );
PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderPEarlyMedia *sipsnHeaderPEarlyMediaCreate( void );

/* ./dev lists: LIST( EmParams, EmParam, PbString ), see sipsn_header.h */
PB_API int64_t sipsnHeaderPEarlyMediaEmParamsLength( SipsnHeaderPEarlyMedia *hdr );
PB_API void    sipsnHeaderPEarlyMediaAppendEmParam( SipsnHeaderPEarlyMedia **hdr, PbString *emParam );
PB_API void    sipsnHeaderPEarlyMediaPrependEmParam( SipsnHeaderPEarlyMedia **hdr, PbString *emParam );
PB_API void    sipsnHeaderPEarlyMediaInsertEmParam( SipsnHeaderPEarlyMedia **hdr, int64_t index, PbString *emParam );
PB_API void    sipsnHeaderPEarlyMediaSetEmParamAt( SipsnHeaderPEarlyMedia **hdr, int64_t index, PbString *emParam );
PB_API void    sipsnHeaderPEarlyMediaDelEmParamAt( SipsnHeaderPEarlyMedia **hdr, int64_t index );
/* ./dev lists: end */

PB_API PbString *sipsnHeaderPEarlyMediaEmParamAt( SipsnHeaderPEarlyMedia *hdr, int64_t index );
PB_API void      sipsnHeaderPEarlyMediaClearEmParams( SipsnHeaderPEarlyMedia **hdr );

PB_END_DECLS
#endif
