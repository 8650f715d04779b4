// The header fields that have a type: the families of header types, and what each makes of a header field.
#include "family.h"

#include "describe.h"
#include "text.h"

#include <algorithm>

namespace tool {

namespace {

// ---- Decoding, once for each shape -----------------------------------------------------------------

template< auto tryDecode, auto release > std::optional< Typed > Single( SipsnMessageHeader *header )
{
    const Owned< std::remove_pointer_t< decltype( tryDecode( header ) ) >, release > hdr{ tryDecode( header ) };
    if( !hdr ) return std::nullopt;
    return Typed{ Describe( hdr.Get() ) };
}

// Each value is encoded into a line of its own, which is its text as it was received.
template< class Header >
std::vector< Item > ValuesOf( Header *hdr, SipsnMessageHeader *( *encode )(Header *), auto tryDecodeAt )
{
    std::vector< Item >               items;
    const Owned< SipsnMessageHeader > lines{ encode( hdr ) };
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( lines.Get() ); ++at ) {
        const Owned value{ tryDecodeAt( hdr, at ) };
        items.push_back( { Utf8( Owned{ sipsnMessageHeaderLineAt( lines.Get(), at ) } ),
                           value ? Describe( value.Get() ) : Json() } );
    }
    return items;
}

template< auto tryDecode, auto release, auto encode, auto tryDecodeAt >
std::optional< Typed > Values( SipsnMessageHeader *header )
{
    const Owned< std::remove_pointer_t< decltype( tryDecode( header ) ) >, release > hdr{ tryDecode( header ) };
    if( !hdr ) return std::nullopt;
    return Typed{ {}, ValuesOf( hdr.Get(), encode, tryDecodeAt ) };
}

template< auto tryDecode, auto release, auto length, auto tokenAt >
std::optional< Typed > Tokens( SipsnMessageHeader *header )
{
    const Owned< std::remove_pointer_t< decltype( tryDecode( header ) ) >, release > hdr{ tryDecode( header ) };
    if( !hdr ) return std::nullopt;
    Typed typed;
    for( int64_t at = 0; at < length( hdr.Get() ); ++at ) {
        const std::string token = Utf8( Owned{ tokenAt( hdr.Get(), at ) } );
        typed.items.push_back( { token, token } );
    }
    return typed;
}

std::optional< Typed > Contacts( SipsnMessageHeader *header )
{
    const Owned< SipsnHeaderContact > hdr{ sipsnHeaderContactTryDecode( header ) };
    if( !hdr ) return std::nullopt;
    if( sipsnHeaderContactIsStarForm( hdr.Get() ) ) return Typed{ {}, { { "*", "*" } } };
    return Typed{ {}, ValuesOf( hdr.Get(), sipsnHeaderContactEncode, sipsnHeaderContactTryDecodeContactAt ) };
}

// ---- The families ----------------------------------------------------------------------------------

// How a family is decoded: the library's functions by the names of the type and of its items.
#define SINGLE( Type ) Single< sipsnHeader##Type##TryDecode, sipsnHeader##Type##Release >
#define VALUES( Type, Value )                                                                                          \
    Values< sipsnHeader##Type##TryDecode, sipsnHeader##Type##Release, sipsnHeader##Type##Encode,                       \
            sipsnHeader##Type##TryDecode##Value##At >
#define TOKENS( Type, Tokens_, Token )                                                                                 \
    Tokens< sipsnHeader##Type##TryDecode, sipsnHeader##Type##Release, sipsnHeader##Type##Tokens_##Length,              \
            sipsnHeader##Type##Token##At >

constexpr Family families[] = {
    { "Accept", Shape::list, "RFC 3261", VALUES( Accept, Accept ) },
    { "Accept-Encoding", Shape::list, "RFC 3261", VALUES( AcceptEncoding, AcceptEncoding ) },
    { "Accept-Resource-Priority", Shape::tokenList, "RFC 4412", TOKENS( AcceptResourcePriority, Rvalues, Rvalue ) },
    { "Alert-Info", Shape::list, "RFC 3261", VALUES( AlertInfo, AlertInfo ) },
    { "Allow", Shape::tokenSet, "RFC 3261", TOKENS( Allow, Methods, Method ) },
    { "Allow-Events", Shape::tokenSet, "RFC 6665", TOKENS( AllowEvents, EventTypes, EventType ) },
    { "Call-Id", Shape::single, "RFC 3261", SINGLE( CallId ) },
    { "Call-Info", Shape::list, "RFC 3261", VALUES( CallInfo, CallInfo ) },
    { "Contact", Shape::list, "RFC 3261", Contacts },
    { "Content-Disposition", Shape::single, "RFC 3261", SINGLE( ContentDisposition ) },
    { "Content-Encoding", Shape::tokenList, "RFC 3261", TOKENS( ContentEncoding, ContentCodings, ContentCoding ) },
    { "Cseq", Shape::single, "RFC 3261", SINGLE( Cseq ) },
    { "Date", Shape::single, "RFC 3261", SINGLE( Date ) },
    { "Diversion", Shape::list, "RFC 5806", VALUES( Diversion, Diversion ) },
    { "Error-Info", Shape::list, "RFC 3261", VALUES( ErrorInfo, ErrorInfo ) },
    { "Event", Shape::single, "RFC 6665", SINGLE( Event ) },
    { "Expires", Shape::single, "RFC 3261", SINGLE( Expires ) },
    { "From", Shape::single, "RFC 3261", SINGLE( From ) },
    { "History-Info", Shape::list, "RFC 7044", VALUES( HistoryInfo, HistoryInfo ) },
    { "In-Reply-To", Shape::tokenSet, "RFC 3261", TOKENS( InReplyTo, CallIds, CallId ) },
    { "Max-Forwards", Shape::single, "RFC 3261", SINGLE( MaxForwards ) },
    { "Min-Expires", Shape::single, "RFC 3261", SINGLE( MinExpires ) },
    { "Min-Se", Shape::single, "RFC 4028", SINGLE( MinSe ) },
    { "Organization", Shape::single, "RFC 3261", SINGLE( Organization ) },
    { "P-Asserted-Identity", Shape::list, "RFC 3325", VALUES( PAssertedIdentity, IdentityValue ) },
    { "P-Called-Party-Id", Shape::single, "RFC 7315", SINGLE( PCalledPartyId ) },
    { "P-Early-Media", Shape::tokenList, "RFC 5009", TOKENS( PEarlyMedia, EmParams, EmParam ) },
    { "P-Preferred-Identity", Shape::list, "RFC 3325", VALUES( PPreferredIdentity, IdentityValue ) },
    { "Priority", Shape::single, "RFC 3261", SINGLE( Priority ) },
    { "Privacy", Shape::tokenSet, "RFC 3323", TOKENS( Privacy, PrivValues, PrivValue ) },
    { "Proxy-Require", Shape::tokenSet, "RFC 3261", TOKENS( ProxyRequire, OptionTags, OptionTag ) },
    { "Rack", Shape::single, "RFC 3262", SINGLE( Rack ) },
    { "Reason", Shape::list, "RFC 3326", VALUES( Reason, Reason ) },
    { "Record-Route", Shape::list, "RFC 3261", VALUES( RecordRoute, Route ) },
    { "Refer-To", Shape::single, "RFC 3515", SINGLE( ReferTo ) },
    { "Referred-By", Shape::single, "RFC 3892", SINGLE( ReferredBy ) },
    { "Remote-Party-Id", Shape::single, "draft-ietf-sip-privacy-04", SINGLE( RemotePartyId ) },
    { "Replaces", Shape::single, "RFC 3891", SINGLE( Replaces ) },
    { "Reply-To", Shape::single, "RFC 3261", SINGLE( ReplyTo ) },
    { "Require", Shape::tokenSet, "RFC 3261", TOKENS( Require, OptionTags, OptionTag ) },
    { "Resource-Priority", Shape::tokenList, "RFC 4412", TOKENS( ResourcePriority, Rvalues, Rvalue ) },
    { "Retry-After", Shape::single, "RFC 3261", SINGLE( RetryAfter ) },
    { "Route", Shape::list, "RFC 3261", VALUES( Route, Route ) },
    { "Rseq", Shape::single, "RFC 3262", SINGLE( Rseq ) },
    { "Server", Shape::single, "RFC 3261", SINGLE( Server ) },
    { "Service-Route", Shape::list, "RFC 3608", VALUES( ServiceRoute, Route ) },
    { "Session-Expires", Shape::single, "RFC 4028", SINGLE( SessionExpires ) },
    { "Session-Id", Shape::single, "RFC 7989", SINGLE( SessionId ) },
    { "Subject", Shape::single, "RFC 3261", SINGLE( Subject ) },
    { "Subscription-State", Shape::single, "RFC 6665", SINGLE( SubscriptionState ) },
    { "Supported", Shape::tokenSet, "RFC 3261", TOKENS( Supported, OptionTags, OptionTag ) },
    { "Timestamp", Shape::single, "RFC 3261", SINGLE( Timestamp ) },
    { "To", Shape::single, "RFC 3261", SINGLE( To ) },
    { "Unsupported", Shape::tokenSet, "RFC 3261", TOKENS( Unsupported, OptionTags, OptionTag ) },
    { "User-Agent", Shape::single, "RFC 3261", SINGLE( UserAgent ) },
    { "User-To-User", Shape::list, "RFC 7433", VALUES( UserToUser, UuiValue ) },
    { "Via", Shape::list, "RFC 3261", VALUES( Via, Via ) },
    { "Warning", Shape::list, "RFC 3261", VALUES( Warning, Warning ) },
};

// ---- Lines at fault --------------------------------------------------------------------------------

// The header field with some of its lines.
Owned< SipsnMessageHeader > WithLines( SipsnMessageHeader *header, int64_t begin, int64_t end )
{
    const Owned< PbString >     name{ sipsnMessageHeaderName( header ) };
    Owned< SipsnMessageHeader > some{ sipsnMessageHeaderCreate( name.Get() ) };
    for( int64_t at = begin; at < end; ++at ) {
        const Owned< PbString > line{ sipsnMessageHeaderLineAt( header, at ) };
        sipsnMessageHeaderAppendLine( some.Slot(), line.Get() );
    }
    return some;
}

bool Decodes( const Family &family, SipsnMessageHeader *header, int64_t begin, int64_t end )
{
    return family.tryDecode( WithLines( header, begin, end ).Get() ).has_value();
}

std::string Malformed( const Family &family, std::string_view text )
{
    return "malformed " + std::string( family.name ) + ": " + Quote( text );
}

void AddBadItems( std::vector< BadLine > &bad, const Family &family, SipsnMessageHeader *header, int64_t index )
{
    const auto typed = family.tryDecode( WithLines( header, index, index + 1 ).Get() );
    if( !typed ) {
        bad.push_back( { index, Malformed( family, Utf8( Owned{ sipsnMessageHeaderLineAt( header, index ) } ) ) } );
        return;
    }
    for( const Item &item : typed->items )
        if( item.value.is_null() ) bad.push_back( { index, Malformed( family, item.text ) } );
}

// The first line that is good alone, but not behind those before it.
BadLine FindMisplacedLine( const Family &family, SipsnMessageHeader *header )
{
    int64_t good = 1, length = sipsnMessageHeaderLinesLength( header );
    while( length - good > 1 ) {
        const int64_t middle                                     = good + ( length - good ) / 2;
        ( Decodes( family, header, 0, middle ) ? good : length ) = middle;
    }
    return { length - 1, Malformed( family, Utf8( Owned{ sipsnMessageHeaderLineAt( header, length - 1 ) } ) ) +
                             ", which does not go with the lines before it" };
}

} // namespace

std::span< const Family > Families() { return families; }

const Family *FindFamily( std::string_view canonicalName )
{
    const auto *found = std::find_if( std::begin( families ), std::end( families ),
                                      [ & ]( const Family &family ) { return family.name == canonicalName; } );
    return found == std::end( families ) ? nullptr : found;
}

std::vector< BadLine > FindBadLines( const Family &family, SipsnMessageHeader *header )
{
    std::vector< BadLine > bad;
    const int64_t          length = sipsnMessageHeaderLinesLength( header );
    const int64_t          first  = family.shape == Shape::single ? length - 1 : 0; // of which the last line counts
    for( int64_t at = first; at < length; ++at ) AddBadItems( bad, family, header, at );
    if( bad.empty() && !family.tryDecode( header ) ) bad.push_back( FindMisplacedLine( family, header ) );
    return bad;
}

} // namespace tool
