// The header names that are recognised without allocating, and the canonical form of those that are not.
#pragma once

#include "sipsn_char_class.h"
#include "sipsn_internal.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace sipsn {

// The known names. Each has a number, its place here; they are in the order of code points.
inline constexpr std::string_view headerNames[] = {
    "Accept",
    "Accept-Contact",
    "Accept-Encoding",
    "Accept-Language",
    "Accept-Resource-Priority",
    "Additional-Identity",
    "Alert-Info",
    "Alertmsg-Error",
    "Allow",
    "Allow-Events",
    "Answer-Mode",
    "Attestation-Info",
    "Authentication-Info",
    "Authorization",
    "Call-Id",
    "Call-Info",
    "Cellular-Network-Info",
    "Contact",
    "Content-Disposition",
    "Content-Encoding",
    "Content-Id",
    "Content-Language",
    "Content-Length",
    "Content-Type",
    "Cseq",
    "Date",
    "Diversion",
    "Error-Info",
    "Event",
    "Expires",
    "Feature-Caps",
    "Flow-Timer",
    "From",
    "Geolocation",
    "Geolocation-Error",
    "Geolocation-Routing",
    "History-Info",
    "Identity",
    "Identity-Info",
    "In-Reply-To",
    "Info-Package",
    "Join",
    "Max-Breadth",
    "Max-Forwards",
    "Mime-Version",
    "Min-Expires",
    "Min-Se",
    "Organization",
    "Origination-Id",
    "P-Access-Network-Info",
    "P-Answer-State",
    "P-Asserted-Identity",
    "P-Asserted-Service",
    "P-Associated-Uri",
    "P-Called-Party-Id",
    "P-Charge-Info",
    "P-Charging-Function-Addresses",
    "P-Charging-Vector",
    "P-Dcs-Billing-Info",
    "P-Dcs-Laes",
    "P-Dcs-Osps",
    "P-Dcs-Redirect",
    "P-Dcs-Trace-Party-Id",
    "P-Early-Media",
    "P-Media-Authorization",
    "P-Preferred-Identity",
    "P-Preferred-Service",
    "P-Private-Network-Indication",
    "P-Profile-Key",
    "P-Refused-Uri-List",
    "P-Served-User",
    "P-User-Database",
    "P-Visited-Network-Id",
    "Path",
    "Permission-Missing",
    "Policy-Contact",
    "Policy-Id",
    "Priority",
    "Priority-Share",
    "Priv-Answer-Mode",
    "Privacy",
    "Proxy-Authenticate",
    "Proxy-Authentication-Info",
    "Proxy-Authorization",
    "Proxy-Require",
    "Rack",
    "Reason",
    "Record-Route",
    "Recv-Info",
    "Refer-Events-At",
    "Refer-Sub",
    "Refer-To",
    "Referred-By",
    "Reject-Contact",
    "Relayed-Charge",
    "Remote-Party-Id",
    "Replaces",
    "Reply-To",
    "Request-Disposition",
    "Require",
    "Resource-Priority",
    "Resource-Share",
    "Response-Source",
    "Restoration-Info",
    "Retry-After",
    "Route",
    "Rseq",
    "Security-Client",
    "Security-Server",
    "Security-Verify",
    "Server",
    "Service-Interact-Info",
    "Service-Route",
    "Session-Expires",
    "Session-Id",
    "Sip-Etag",
    "Sip-If-Match",
    "Subject",
    "Subscription-State",
    "Supported",
    "Suppress-If-Match",
    "Target-Dialog",
    "Timestamp",
    "To",
    "Trigger-Consent",
    "Unsupported",
    "User-Agent",
    "User-To-User",
    "Via",
    "Warning",
    "Www-Authenticate",
};

inline constexpr int64_t headerNameCount = int64_t( std::size( headerNames ) );

// The number of a known name in any letter case; -1 when it is none.
consteval int64_t HeaderNumber( std::string_view name )
{
    const auto sameLetter = []( char a, char b ) { return AsciiLower( a ) == AsciiLower( b ); };
    for( int64_t number = 0; number < headerNameCount; ++number )
        if( std::ranges::equal( headerNames[ number ], name, sameLetter ) ) return number;
    return -1;
}

// The canonical name of that number, a constant.
inline constexpr size_t                                                             longestHeaderName = 32;
extern const std::array< pb::ConstantString< longestHeaderName >, headerNameCount > headerNameStrings;
inline PbString *HeaderNameAt( int64_t number ) { return headerNameStrings[ size_t( number ) ].Get(); }

// The name that a text begins with: how many token characters there are, none when it begins with no name, and the
// number of the known name that they are, in any letter case or compact; -1 for every other.
struct HeaderNameToken
{
    int64_t length;
    int64_t number;
};
HeaderNameToken ScanHeaderName( const PbChar *chs, int64_t length );
HeaderNameToken ScanHeaderName( const PbByte *bytes, int64_t length );

// The number of the known name that is the whole text, in any letter case or compact; -1 for every other.
int64_t KnownHeaderNumber( const PbChar *chs, int64_t length );
int64_t KnownHeaderNumber( const PbByte *bytes, int64_t length );

// As ScanHeaderName for a known name with a colon behind it, in a text that goes on, as fields usually begin; the
// number is -1 for everything else.
HeaderNameToken ScanUsualHeaderName( const PbByte *bytes, int64_t length );

// A token in lower case but for the first letter of each word, as a new string.
PbString *CapitaliseHeaderName( const PbChar *chs, int64_t length );
PbString *CapitaliseHeaderName( const PbByte *bytes, int64_t length );

} // namespace sipsn
