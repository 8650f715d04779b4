/* SipsnWarningValue: one warning-value of a Warning header field, RFC 3261 section 20.43.
 *
 * Example: 307 proxy.example.com "Session parameter 'foo' not understood"
 *
 *     warning-value = warn-code SP warn-agent SP warn-text
 *
 *     warn code     0 to 999
 *     warn agent    host [ ":" port ] or a token, as written
 *     warn text     the content of the quoted string, without quotes and escapes
 *
 * All members are always present. Decoding wants three digits as code and ignores what follows the text. The code is
 * written without leading zeros, so that one below 100 cannot be decoded again.
 *
 * Getters return a new reference. Setters replace *wv by a private copy when it is shared. A null or invalid argument
 * aborts. Values compare in the order above. */
#ifndef SIPSN_WARNING_VALUE_H
#define SIPSN_WARNING_VALUE_H

#include "sipsn_warn_agent.h"
#include "sipsn_warn_code.h"
#include "sipsn_warn_text.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnWarningValue ), see pb_types.h */
typedef struct SipsnWarningValue SipsnWarningValue;

PB_API SipsnWarningValue *sipsnWarningValueCreateFrom( SipsnWarningValue *source );
PB_API SipsnWarningValue *sipsnWarningValueRetain( SipsnWarningValue *obj );
PB_API void               sipsnWarningValueRelease( SipsnWarningValue *obj );
PB_API PbObj             *sipsnWarningValueObj( SipsnWarningValue *obj );
PB_API SipsnWarningValue *sipsnWarningValueFrom( PbObj *obj );
PB_API PbSort            *sipsnWarningValueSort( void );
PB_API PbString          *sipsnWarningValueToString( SipsnWarningValue *obj );
PB_API int64_t            sipsnWarningValueCompare( SipsnWarningValue *a, SipsnWarningValue *b );
PB_API bool               sipsnWarningValueEquals( SipsnWarningValue *a, SipsnWarningValue *b );
/* ./dev lists: end */

/* With the default text of the code. */
PB_API SipsnWarningValue *sipsnWarningValueCreate( int64_t warnCode, PbString *warnAgent );
PB_API SipsnWarningValue *sipsnWarningValueCreateWithWarnText( int64_t warnCode, PbString *warnAgent,
                                                               PbString *warnText );

/* The text stays as it is unless setDefaultText asks for that of the new code. */
PB_API int64_t sipsnWarningValueWarnCode( SipsnWarningValue *wv );
PB_API void    sipsnWarningValueSetWarnCode( SipsnWarningValue **wv, int64_t warnCode, bool setDefaultText );

PB_API PbString *sipsnWarningValueWarnAgent( SipsnWarningValue *wv );
PB_API void      sipsnWarningValueSetWarnAgent( SipsnWarningValue **wv, PbString *warnAgent );

PB_API PbString *sipsnWarningValueWarnText( SipsnWarningValue *wv );
PB_API void      sipsnWarningValueSetWarnText( SipsnWarningValue **wv, PbString *warnText );

PB_END_DECLS
#endif
