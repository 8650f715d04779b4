// The rules of texts that few types have: language tags, identifiers, and URIs that quotes or angle brackets enclose.
// C++ only; never installed.
#pragma once

#include "sipsn_bare_iri.h"
#include "sipsn_content_id.h"
#include "sipsn_hex_digits.h"
#include "sipsn_host_port.h"
#include "sipsn_identity_digest.h"
#include "sipsn_language_tag.h"
#include "sipsn_origination_id.h"
#include "sipsn_refer_sub.h"
#include "sipsn_request_directive.h"
#include "sipsn_rules.h"
#include "sipsn_service_id.h"

namespace sipsn {

Production SkipLanguageTag, SkipLanguageRange, SkipHexDigits, SkipServiceId, SkipContentId, SkipIdentityDigest;
Production SkipOriginationId;

// A URI between "<" and ">" or, as others send it, in a quoted string: what both enclose, and the same written.
Production SkipEnclosedUri;
FromChars  EnclosedIriFromChars; // null when it is not a URI
PbString  *QuotedUri( PbString *iri );
PbString  *BracketedUri( PbString *iri );

FromChars BareIriFromChars; // null where the library's own form would not be read again
PbString *BareUri( PbString *iri );

FromChars ContentIdFromChars;
PbString *ContentIdToWire( PbString *contentId );

// In lower case where the text is valid; else null.
template< bool ( *ok )( PbString *text ) > PbString *LowerIf( const PbChar *chs, int64_t length )
{
    pb::Ref text{ LowerFromChars( chs, length ) };
    return ok( text.Get() ) ? text.Detach() : nullptr;
}

// As written where it is valid; else null.
template< bool ( *ok )( PbString *text ) > PbString *CopyIf( const PbChar *chs, int64_t length )
{
    pb::Ref text{ pbStringCreateFromCharsCopy( chs, length ) };
    return ok( text.Get() ) ? text.Detach() : nullptr;
}

} // namespace sipsn

namespace sipsn::rule {

inline constexpr TextRule languageTag{
    .words = "a language tag", .ok = sipsnLanguageTagOk, .production = SkipLanguageTag };
inline constexpr TextRule languageRange{
    .words = "a language tag or \"*\"", .ok = sipsnLanguageRangeOk, .production = SkipLanguageRange };
inline constexpr TextRule requestDirective{ .words      = "a directive",
                                            .ok         = sipsnRequestDirectiveOk,
                                            .production = sipsn___SkipToken,
                                            .decoded    = LowerIf< sipsnRequestDirectiveOk >,
                                            .normal     = ToLower };
inline constexpr TextRule referSub{ .words      = "\"true\" or \"false\"",
                                    .ok         = sipsnReferSubOk,
                                    .production = sipsn___SkipToken,
                                    .decoded    = LowerIf< sipsnReferSubOk >,
                                    .normal     = ToLower };
inline constexpr TextRule hexDigits{
    .words = "hexadecimal digits", .ok = sipsnHexDigitsOk, .production = SkipHexDigits };
inline constexpr TextRule correlationId{ .words      = "1 to 48 hexadecimal digits",
                                         .ok         = sipsnCorrelationIdOk,
                                         .production = SkipHexDigits,
                                         .decoded    = CopyIf< sipsnCorrelationIdOk > };
inline constexpr TextRule elementId{ .words      = "1 to 16 hexadecimal digits",
                                     .ok         = sipsnElementIdOk,
                                     .production = SkipHexDigits,
                                     .decoded    = CopyIf< sipsnElementIdOk > };
inline constexpr TextRule contentConnectionId{ .words      = "1 to 8 hexadecimal digits",
                                               .ok         = sipsnContentConnectionIdOk,
                                               .production = SkipHexDigits,
                                               .decoded    = CopyIf< sipsnContentConnectionIdOk > };
inline constexpr TextRule serviceId{ .words      = "a service identifier",
                                     .ok         = sipsnServiceIdOk,
                                     .production = SkipServiceId,
                                     .decoded    = LowerFromChars,
                                     .normal     = ToLower };
inline constexpr TextRule contentId{ .words      = "an identifier in angle brackets",
                                     .ok         = sipsnContentIdOk,
                                     .production = SkipContentId,
                                     .decoded    = ContentIdFromChars,
                                     .encoded    = ContentIdToWire };
inline constexpr TextRule identityDigest{
    .words = "a signature", .ok = sipsnIdentityDigestOk, .production = SkipIdentityDigest };
inline constexpr TextRule originationId{
    .words = "a UUID", .ok = sipsnOriginationIdOk, .production = SkipOriginationId };
inline constexpr TextRule hostPort{ .words = "a host", .ok = sipsnHostPortOk, .production = sipsn___SkipHostPort };
inline constexpr TextRule quotedIri{ .words      = "a quoted URI",
                                     .ok         = sipsnIriOk,
                                     .production = SkipEnclosedUri,
                                     .decoded    = EnclosedIriFromChars,
                                     .encoded    = QuotedUri };
inline constexpr TextRule bracketedIri{ .words      = "a URI in angle brackets",
                                        .ok         = sipsnIriOk,
                                        .production = SkipEnclosedUri,
                                        .decoded    = EnclosedIriFromChars,
                                        .encoded    = BracketedUri };
inline constexpr TextRule bareIri{ .words      = "a URI",
                                   .ok         = sipsnBareIriOk,
                                   .production = sipsn___SkipAddrSpec,
                                   .decoded    = BareIriFromChars,
                                   .encoded    = BareUri };

} // namespace sipsn::rule
