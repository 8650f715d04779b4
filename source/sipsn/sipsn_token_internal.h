// The wire forms of the token families. Exported, but no part of the public interface; never installed.
//
// An Encode function returns the wire text of a value as a new reference and aborts on a value that the family's Ok
// function refuses. A TryDecode function returns the value that the whole text is, a new reference or an integer; or
// null or -1 when the text is not exactly one value. A negative length aborts, and null characters with a length above
// 0.
#pragma once

#include "pb/pb_string.h"

PB_BEGIN_DECLS

// Integers in decimal.
PB_API PbString *sipsn___PortEncode( int64_t port );
PB_API int64_t   sipsn___PortTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___DeltaSecondsEncode( int64_t deltaSeconds );
PB_API int64_t   sipsn___DeltaSecondsTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___TtlEncode( int64_t ttl );
PB_API int64_t   sipsn___TtlTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___DiversionCounterEncode( int64_t diversionCounter );
PB_API int64_t   sipsn___DiversionCounterTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___DiversionLimitEncode( int64_t diversionLimit );
PB_API int64_t   sipsn___DiversionLimitTryDecode( const PbChar *chs, int64_t length );

// Decimal without padding. Decode takes what sipsn___SkipWarnCode has matched and aborts on text that is not a number.
PB_API PbString *sipsn___WarnCodeEncode( int64_t warnCode );
PB_API int64_t   sipsn___WarnCodeDecode( const PbChar *chs, int64_t length );

// Thousandths, always written with three decimals. No text at all decodes to 0.
PB_API PbString *sipsn___QvalueEncode( int64_t qvalue );
PB_API int64_t   sipsn___QvalueTryDecode( const PbChar *chs, int64_t length );

// Free text, written as a quoted string. TryDecode allows blanks before the opening quote and nothing after the closing
// one.
PB_API PbString *sipsn___QuotableStringEncode( PbString *quotableString );
PB_API PbString *sipsn___QuotableStringTryDecode( const PbChar *chs, int64_t length );

// Always written as a quoted string; read as one, or as tokens, which single spaces then separate.
PB_API PbString *sipsn___DisplayNameEncode( PbString *displayName );
PB_API PbString *sipsn___DisplayNameTryDecode( const PbChar *chs, int64_t length );

// Percent escapes for what a status line cannot hold; the string itself when there is none to write. Decode never
// fails: a "%" that begins no escape stands for itself.
PB_API PbString *sipsn___ReasonPhraseEncode( PbString *pbs );
PB_API PbString *sipsn___ReasonPhraseDecode( const PbChar *chs, int64_t length );

// Unicode here, ASCII on the wire (RFC 5891); the string itself when it is ASCII.
PB_API PbString *sipsn___HostEncode( PbString *host );
PB_API PbString *sipsn___HostTryDecode( const PbChar *chs, int64_t length );

// A token as it is, everything else as a quoted string; only null aborts, and a CR or LF.
PB_API PbString *sipsn___DiversionPrivacyEncode( PbString *diversionPrivacy );
PB_API PbString *sipsn___DiversionPrivacyTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___DiversionReasonEncode( PbString *diversionReason );
PB_API PbString *sipsn___DiversionReasonTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___DiversionScreenEncode( PbString *diversionScreen );
PB_API PbString *sipsn___DiversionScreenTryDecode( const PbChar *chs, int64_t length );

// Make and drop the nil session UUID.
PB_API void sipsn___SessUuidStartup( void );
PB_API void sipsn___SessUuidShutdown( void );

PB_END_DECLS

namespace sipsn {

// What sipsn___QuotableStringTryDecode and sipsn___DisplayNameTryDecode give for a text that sipsn___SkipQuotedString
// or sipsn___SkipDisplayName has matched whole, without matching it again.
PbString *Unquote( const PbChar *chs, int64_t length );
PbString *DisplayNameOf( const PbChar *chs, int64_t length );

// The name in letters, digits and hyphens, as nearly every host is, at the start of a text: one that the grammar and
// IDNA accept and that neither of them changes. 0 when there is none; what begins otherwise may still be a host.
int64_t SkipPlainName( const PbChar *chs, int64_t length );

} // namespace sipsn
