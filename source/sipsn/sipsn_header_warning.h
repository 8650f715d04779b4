/* SipsnHeaderWarning: the Warning header field, RFC 3261 section 20.43; a list of warning-values.
 *
 * Example: Warning: 307 proxy.example.com "Session parameter 'foo' not understood"
 *
 * Each value is kept as its text and decoded when TryDecodeWarningAt asks for it, which gives null when it is not a
 * warning-value. A header field without lines decodes to an empty list. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_WARNING_H
#define SIPSN_HEADER_WARNING_H

#include "sipsn_header.h"
#include "sipsn_warning_value.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderWarning ), see sipsn_header.h */
typedef struct SipsnHeaderWarning SipsnHeaderWarning;

PB_API SipsnHeaderWarning *sipsnHeaderWarningCreateFrom( SipsnHeaderWarning *source );
PB_API SipsnHeaderWarning *sipsnHeaderWarningRetain( SipsnHeaderWarning *obj );
PB_API void                sipsnHeaderWarningRelease( SipsnHeaderWarning *obj );
PB_API PbObj              *sipsnHeaderWarningObj( SipsnHeaderWarning *obj );
PB_API SipsnHeaderWarning *sipsnHeaderWarningFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderWarningSort( void );
PB_API PbString           *sipsnHeaderWarningToString( SipsnHeaderWarning *obj );
PB_API int64_t             sipsnHeaderWarningCompare( SipsnHeaderWarning *a, SipsnHeaderWarning *b );
PB_API bool                sipsnHeaderWarningEquals( SipsnHeaderWarning *a, SipsnHeaderWarning *b );

PB_API SipsnHeaderWarning *sipsnHeaderWarningTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderWarningEncode( SipsnHeaderWarning *hdr );
PB_API SipsnHeaderWarning *sipsnHeaderWarningTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderWarningEncodeToMessage( SipsnHeaderWarning *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderWarningPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderWarningRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderWarningStore( SipsnHeaderWarning *hdr );
PB_API SipsnHeaderWarning *sipsnHeaderWarningTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderWarning *sipsnHeaderWarningCreate( void );

/* ./dev lists: LIST( Warnings, Warning, SipsnWarningValue ), see sipsn_header.h */
PB_API int64_t sipsnHeaderWarningWarningsLength( SipsnHeaderWarning *hdr );
PB_API void    sipsnHeaderWarningAppendWarning( SipsnHeaderWarning **hdr, SipsnWarningValue *warningValue );
PB_API void    sipsnHeaderWarningPrependWarning( SipsnHeaderWarning **hdr, SipsnWarningValue *warningValue );
PB_API void sipsnHeaderWarningInsertWarning( SipsnHeaderWarning **hdr, int64_t index, SipsnWarningValue *warningValue );
PB_API void sipsnHeaderWarningSetWarningAt( SipsnHeaderWarning **hdr, int64_t index, SipsnWarningValue *warningValue );
PB_API void sipsnHeaderWarningDelWarningAt( SipsnHeaderWarning **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnWarningValue *sipsnHeaderWarningTryDecodeWarningAt( SipsnHeaderWarning *hdr, int64_t index );
PB_API void               sipsnHeaderWarningWarningsClear( SipsnHeaderWarning **hdr );

PB_END_DECLS
#endif
