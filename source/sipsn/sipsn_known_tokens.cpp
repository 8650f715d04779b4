// The tokens that are constants, and a hash table over them that is made at compile time.
#include "sipsn_known_tokens.h"

#include "pb/pb_text.h"

#include <algorithm>
#include <array>
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
    // Transports, as they are written and as they are kept
    "SCTP",
    "TCP",
    "TLS",
    "UDP",
    "WS",
    "WSS",
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

// Tells the tokens apart; a new one may want other factors.
static constexpr size_t                        slotCount = 256;
template< class Text > static constexpr size_t SlotOf( const Text &text, size_t length )
{
    const auto at = [ & ]( size_t n ) { return size_t( uint32_t( text[ n ] ) ); };
    return ( length * 60 + at( 0 ) * 242 + at( length / 2 ) * 126 + at( length - 1 ) * 199 ) % slotCount;
}

static constexpr auto slots = [] {
    std::array< uint8_t, slotCount > table{};
    for( uint8_t &slot : table ) slot = none;
    for( size_t at = 0; at < count; ++at ) table[ SlotOf( texts[ at ], texts[ at ].size() ) ] = uint8_t( at );
    return table;
}();
static_assert( std::ranges::count_if( slots, []( uint8_t slot ) { return slot != none; } ) == count );

// Four characters at a time, the last ones together with some before them again.
static bool Equal( const PbChar *a, const PbChar *b, int64_t length )
{
    const auto load = []( const PbChar *chs ) { return pb::Block::Load( reinterpret_cast< const PbByte * >( chs ) ); };
    const auto same = [ = ]( int64_t at ) { return load( a + at ).Equal( load( b + at ) ) == 0xFFFF; };
    if( length < 4 ) {
        while( length > 0 && a[ length - 1 ] == b[ length - 1 ] ) --length;
        return length == 0;
    }
    for( int64_t at = 0; at < length - 4; at += 4 )
        if( !same( at ) ) return false;
    return same( length - 4 );
}

PbString *KnownToken( const PbChar *chs, int64_t length )
{
    if( length == 0 || length > longestKnownToken ) return nullptr;
    const uint8_t slot = slots[ SlotOf( chs, size_t( length ) ) ];
    if( slot == none ) return nullptr;
    const auto &known = strings[ slot ];
    return known.length == length && Equal( known.chs, chs, length ) ? known.Get() : nullptr;
}

PbString *TokenFromChars( const PbChar *chs, int64_t length )
{
    PbString *known = KnownToken( chs, length );
    return known ? known : pbStringCreateFromCharsCopy( chs, length );
}

} // namespace sipsn
