// The tokens that are constants, and a hash table over them that is made at compile time.
#include "sipsn_known_tokens.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

namespace sipsn {

static constexpr std::string_view texts[] = {
    // Methods
    "ACK",
    "BYE",
    "CANCEL",
    "INFO",
    "INVITE",
    "MESSAGE",
    "NOTIFY",
    "OPTIONS",
    "PRACK",
    "PUBLISH",
    "REFER",
    "REGISTER",
    "SUBSCRIBE",
    "UPDATE",
    // Transports, in the case in which they are kept
    "sctp",
    "tcp",
    "tls",
    "udp",
    "ws",
    "wss",
    // Option tags
    "100rel",
    "answermode",
    "early-session",
    "eventlist",
    "explicitsub",
    "from-change",
    "gruu",
    "histinfo",
    "ice",
    "join",
    "multiple-refer",
    "norefersub",
    "nosub",
    "outbound",
    "path",
    "precondition",
    "pref",
    "privacy",
    "replaces",
    "sec-agree",
    "tdialog",
    "timer",
    // Media types, event types, parameters and what else is short and common
    "active",
    "application",
    "audio",
    "conference",
    "dialog",
    "en",
    "gzip",
    "header",
    "id",
    "identity",
    "message-summary",
    "mixed",
    "multipart",
    "none",
    "pending",
    "plain",
    "presence",
    "refresher",
    "reg",
    "sdp",
    "session",
    "terminated",
    "text",
    "uac",
    "uas",
    "user",
    "video",
    "xml",
};
static constexpr size_t  count = std::size( texts );
static constexpr uint8_t none  = 255;
static_assert( count < none );

template< size_t... at > static consteval auto MakeStrings( std::index_sequence< at... > )
{
    return std::array{ pb::ConstantString< size_t( longestKnownToken ) >{ texts[ at ] }... };
}
static constinit const auto strings = MakeStrings( std::make_index_sequence< count >{} );

// With these factors, no two tokens share a slot.
static constexpr size_t                        slotCount = 256;
template< class Text > static constexpr size_t FirstSlot( const Text &text, size_t length )
{
    const auto at = [ & ]( size_t n ) { return size_t( uint32_t( text[ n ] ) ); };
    return ( length * 35 + at( 0 ) * 53 + at( length / 2 ) * 55 + at( length - 1 ) * 12 ) % slotCount;
}

static constexpr auto slots = [] {
    std::array< uint8_t, slotCount > table{};
    for( uint8_t &slot : table ) slot = none;
    for( size_t at = 0; at < count; ++at ) {
        size_t slot = FirstSlot( texts[ at ], texts[ at ].size() );
        while( table[ slot ] != none ) slot = ( slot + 1 ) % slotCount;
        table[ slot ] = uint8_t( at );
    }
    return table;
}();

// Four characters at a time, the last ones together with some before them again.
static bool Equal( const PbChar *a, const PbChar *b, int64_t length )
{
    const auto same = [ = ]( int64_t at ) { return std::memcmp( a + at, b + at, 4 * sizeof( PbChar ) ) == 0; };
    if( length < 4 ) return std::equal( a, a + length, b );
    for( int64_t at = 0; at < length - 4; at += 4 )
        if( !same( at ) ) return false;
    return same( length - 4 );
}

PbString *KnownToken( const PbChar *chs, int64_t length )
{
    if( length == 0 || length > longestKnownToken ) return nullptr;
    for( size_t slot = FirstSlot( chs, size_t( length ) ); slots[ slot ] != none; slot = ( slot + 1 ) % slotCount ) {
        const auto &known = strings[ slots[ slot ] ];
        if( known.length == length && Equal( known.chs, chs, length ) ) return known.Get();
    }
    return nullptr;
}

PbString *TokenFromChars( const PbChar *chs, int64_t length )
{
    PbString *known = KnownToken( chs, length );
    return known ? known : pbStringCreateFromCharsCopy( chs, length );
}

} // namespace sipsn
