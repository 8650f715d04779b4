// The rules of the members that several types have: what such a text or number may be, how it is read, kept and
// written. A rule that one type alone needs stands with that type. C++ only; never installed.
#pragma once

#include "sipsn_branch.h"
#include "sipsn_call_id.h"
#include "sipsn_content_coding.h"
#include "sipsn_cseq.h"
#include "sipsn_delta_seconds.h"
#include "sipsn_display_name.h"
#include "sipsn_event_type.h"
#include "sipsn_history_info_index.h"
#include "sipsn_host.h"
#include "sipsn_iri.h"
#include "sipsn_media_subtype.h"
#include "sipsn_media_type.h"
#include "sipsn_members.h"
#include "sipsn_method.h"
#include "sipsn_name_addr.h"
#include "sipsn_number.h"
#include "sipsn_option_tag.h"
#include "sipsn_port.h"
#include "sipsn_quotable_string.h"
#include "sipsn_qvalue.h"
#include "sipsn_response_num.h"
#include "sipsn_rvalue.h"
#include "sipsn_sess_uuid.h"
#include "sipsn_tag.h"
#include "sipsn_token.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"
#include "sipsn_transport.h"
#include "sipsn_ttl.h"

namespace sipsn {

// A token, a host or a quoted string (RFC 3261 gen-value), kept as the text that it stands for. It is written as a
// quoted string where it is neither of the others.
Production SkipGenValue;
PbString  *GenValueFromChars( const PbChar *chs, int64_t length );
PbString  *GenValueToWire( PbString *text );

// Digits, as far as they fit.
inline int64_t DecimalFromChars( const PbChar *chs, int64_t length ) { return DecodeInt( chs, length, INT64_MAX ); }

} // namespace sipsn

namespace sipsn::rule {

// ---- Texts -----------------------------------------------------------------------------------------

// An IRI here, a URI on the wire; a NameAddr reads and writes both of these.
inline constexpr TextRule iri{ .words = "an IRI", .ok = sipsnIriOk, .production = sipsn___SkipUri };

inline constexpr TextRule displayName{ .words      = "a display name",
                                       .ok         = sipsnDisplayNameOk,
                                       .production = sipsn___SkipDisplayName,
                                       .decoded    = DisplayNameOf,
                                       .encoded    = sipsn___DisplayNameEncode };

inline constexpr TextRule branch{ .words = "a branch", .ok = sipsnBranchOk, .production = sipsn___SkipBranch };
inline constexpr TextRule callId{ .words = "a Call-ID", .ok = sipsnCallIdOk, .production = sipsn___SkipCallId };
inline constexpr TextRule eventType{
    .words = "an event type", .ok = sipsnEventTypeOk, .production = sipsn___SkipEventType };
inline constexpr TextRule historyInfoIndex{
    .words = "an index", .ok = sipsnHistoryInfoIndexOk, .production = sipsn___SkipHistoryInfoIndex };
inline constexpr TextRule method{
    .words = "a method", .ok = sipsnMethodOk, .production = sipsn___SkipMethod, .decoded = TokenFromChars };
inline constexpr TextRule rvalue{
    .words = "a namespace and a priority", .ok = sipsnRvalueOk, .production = sipsn___SkipRvalue };
inline constexpr TextRule sessUuid{
    .words = "a session UUID", .ok = sipsnSessUuidOk, .production = sipsn___SkipSessUuid };
inline constexpr TextRule tag{ .words = "a tag", .ok = sipsnTagOk, .production = sipsn___SkipTag };
inline constexpr TextRule token{ .words = "a token", .ok = sipsnTokenOk, .production = sipsn___SkipToken };

// Kept without quotes and escapes, where it has them.
inline constexpr TextRule genValue{ .words      = "a token, a host or a quoted string",
                                    .ok         = sipsnQuotableStringOk,
                                    .production = SkipGenValue,
                                    .decoded    = GenValueFromChars,
                                    .encoded    = GenValueToWire };

// The same, but always written as a quoted string.
inline constexpr TextRule quotedWord{ .words      = "a quoted string",
                                      .ok         = sipsnQuotableStringOk,
                                      .production = SkipGenValue,
                                      .decoded    = GenValueFromChars,
                                      .encoded    = sipsn___QuotableStringEncode };

// In lower case.
inline constexpr TextRule lowerToken{ .words      = "a token",
                                      .ok         = sipsnTokenOk,
                                      .production = sipsn___SkipToken,
                                      .decoded    = LowerFromChars,
                                      .normal     = ToLower };
inline constexpr TextRule mediaType{ .words      = "a media type",
                                     .ok         = sipsnMediaTypeOk,
                                     .production = sipsn___SkipMediaType,
                                     .decoded    = LowerFromChars,
                                     .normal     = ToLower };
inline constexpr TextRule mediaSubtype{ .words      = "a media subtype",
                                        .ok         = sipsnMediaSubtypeOk,
                                        .production = sipsn___SkipMediaSubtype,
                                        .decoded    = LowerFromChars,
                                        .normal     = ToLower };
inline constexpr TextRule contentCoding{ .words      = "a content coding",
                                         .ok         = sipsnContentCodingOk,
                                         .production = sipsn___SkipContentCoding,
                                         .decoded    = LowerFromChars,
                                         .normal     = ToLower };
inline constexpr TextRule optionTag{ .words      = "an option tag",
                                     .ok         = sipsnOptionTagOk,
                                     .production = sipsn___SkipOptionTag,
                                     .decoded    = LowerFromChars,
                                     .normal     = ToLower };

// Unicode here, ASCII on the wire.
inline constexpr TextRule host{ .words      = "a host",
                                .ok         = sipsnHostOk,
                                .production = sipsn___SkipHost,
                                .decoded    = sipsn___HostTryDecode,
                                .encoded    = sipsn___HostEncode };

// ---- Numbers ---------------------------------------------------------------------------------------

inline constexpr IntRule cseq{ .words      = "a sequence number",
                               .ok         = sipsnCseqOk,
                               .lowest     = 0,
                               .highest    = INT32_MAX,
                               .production = sipsn___SkipDigits,
                               .decoded    = DecimalFromChars };
inline constexpr IntRule responseNum{ .words      = "a response number",
                                      .ok         = sipsnResponseNumOk,
                                      .lowest     = 1,
                                      .highest    = UINT32_MAX,
                                      .production = sipsn___SkipDigits,
                                      .decoded    = DecimalFromChars };
inline constexpr IntRule deltaSeconds{ .words      = "a number of seconds",
                                       .ok         = sipsnDeltaSecondsOk,
                                       .lowest     = 0,
                                       .highest    = INT64_MAX,
                                       .production = sipsn___SkipDeltaSeconds,
                                       .decoded    = DecimalFromChars };
inline constexpr IntRule errorCode{ .words      = "a code of three digits",
                                    .ok         = sipsnErrorCodeOk,
                                    .lowest     = 0,
                                    .highest    = 999,
                                    .production = sipsn___SkipDigits,
                                    .decoded    = DecimalFromChars };
inline constexpr IntRule number{ .words      = "a number",
                                 .ok         = sipsnNumberOk,
                                 .lowest     = 0,
                                 .highest    = INT64_MAX,
                                 .production = sipsn___SkipDigits,
                                 .decoded    = DecimalFromChars };
inline constexpr IntRule port{ .words      = "a port",
                               .ok         = sipsnPortOk,
                               .lowest     = 0,
                               .highest    = INT64_MAX,
                               .production = sipsn___SkipPort,
                               .decoded    = DecimalFromChars };
inline constexpr IntRule qvalue{ .words       = "a q-value",
                                 .ok          = sipsnQvalueOk,
                                 .lowest      = 0,
                                 .highest     = 1000,
                                 .production  = sipsn___SkipQvalue,
                                 .decoded     = sipsn___QvalueTryDecode,
                                 .encoded     = sipsn___QvalueEncode,
                                 .thousandths = true };

} // namespace sipsn::rule
