// The scanners of iri.
#include "iri_internal.h"

#include "iri_chars.h"
#include "pb/pb_frame.h"

namespace {

using pb::Text, pb::Walk;

// A run of characters of one ASCII class.
template< uint16_t mask > int64_t SkipAscii( Text text )
{
    return pb::CountRun< true >( iri::classes, mask, text.chs, text.length );
}

// The same with percent escapes and ucschar; `privateToo` adds iprivate.
template< uint16_t mask, bool privateToo = false > int64_t SkipRun( Text text )
{
    for( int64_t n = 0;; ) {
        n += SkipAscii< mask >( text.From( n ) );
        if( n == text.length ) return n;
        if( text[ n ] == '%' ) {
            if( pb::EscapedByte( text.From( n ) ) < 0 ) return n;
            n += 3;
        } else {
            if( !iri::IsUcsChar( text[ n ] ) && !( privateToo && iri::IsPrivateChar( text[ n ] ) ) ) return n;
            ++n;
        }
    }
}

// dec-octet: 0 to 255 in as many digits as fit, without a leading zero.
int64_t SkipOctet( Text text )
{
    int64_t n = 0;
    for( int value = 0; n < text.length && iri::Is( text[ n ], iri::ClassDigit ); ++n ) {
        value = value * 10 + ( text[ n ] - '0' );
        if( value > 255 || ( n > 0 && text[ 0 ] == '0' ) ) break;
    }
    return n;
}

int64_t SkipIpV4( Text text )
{
    int64_t n = 0;
    for( int octets = 1;; ++octets ) {
        const int64_t digits = SkipOctet( text.From( n ) );
        if( digits == 0 ) return 0;
        n += digits;
        if( octets == 4 ) return n;
        if( !text.Has( n, '.' ) ) return 0;
        ++n;
    }
}

// An address is eight groups, or at most seven of them with "::" in place of the others.
int64_t SkipIpV6( Text text )
{
    int64_t n       = 0;
    int64_t matched = 0; // the length of the longest prefix that is an address
    int     groups  = 0;
    int     limit   = 8;

    const auto elide = [ & ] {
        if( limit == 7 || !text.Has( n, ':' ) || !text.Has( n + 1, ':' ) ) return false;
        limit   = 7;
        matched = n += 2;
        return true;
    };

    elide();
    while( groups < limit ) {
        const Text    rest   = text.From( n );
        const int64_t digits = SkipAscii< iri::ClassHex >( rest.First( 4 ) );
        if( digits == 0 ) break;

        if( rest.Has( digits, '.' ) && ( limit == 7 ? groups <= 5 : groups == 6 ) )
            if( const int64_t count = SkipIpV4( rest ) ) return n + count;

        n += digits;
        ++groups;
        if( limit == 7 || groups == 8 ) matched = n;
        if( groups == 8 || elide() ) continue;
        if( !text.Has( n, ':' ) ) break;
        ++n;
    }
    return matched;
}

// "v", a version, "." and the address: one of a version that is still to come.
int64_t SkipIpFuture( Text text )
{
    if( !pb::StartsWithKeyword( text, "v" ) ) return 0;
    Walk       walk{ text.From( 1 ) };
    const bool whole =
        walk.Take( SkipAscii< iri::ClassHex > ) && walk.TakeChar( '.' ) && walk.Take( SkipAscii< iri::ClassUserInfo > );
    return whole ? 1 + walk.Count() : 0;
}

int64_t SkipIpLiteral( Text text )
{
    Walk       walk{ text };
    const bool whole =
        walk.TakeChar( '[' ) && ( walk.Take( SkipIpFuture ) || walk.Take( SkipIpV6 ) ) && walk.TakeChar( ']' );
    return whole ? walk.Count() : 0;
}

// iauthority, which may be empty. Userinfo is known by its "@" alone; without one, what looked like it is host and
// port.
int64_t SkipAuthority( Text text )
{
    int64_t begin = 0;
    int64_t end   = SkipRun< iri::ClassRegName >( text );
    if( const int64_t userInfo = end + SkipRun< iri::ClassUserInfo >( text.From( end ) ); text.Has( userInfo, '@' ) ) {
        begin = userInfo + 1;
        end   = begin + SkipRun< iri::ClassRegName >( text.From( begin ) );
    }
    if( end == begin ) end += SkipIpLiteral( text.From( begin ) );
    return text.Has( end, ':' ) ? end + 1 + SkipAscii< iri::ClassDigit >( text.From( end + 1 ) ) : end;
}

int64_t SkipIri( Text text )
{
    if( text.length == 0 || !iri::Is( text[ 0 ], iri::ClassAlpha ) ) return 0;
    int64_t n = SkipAscii< iri::ClassScheme >( text );
    if( !text.Has( n, ':' ) ) return 0;
    ++n;

    // After an authority a path starts with "/"; without one it must not start with "//".
    bool hasPath = true;
    if( text.Has( n, '/' ) && text.Has( n + 1, '/' ) ) {
        n += 2 + SkipAuthority( text.From( n + 2 ) );
        hasPath = text.Has( n, '/' );
    }
    if( hasPath ) n += SkipRun< iri::ClassPath >( text.From( n ) );
    if( text.Has( n, '?' ) ) n += 1 + SkipRun< iri::ClassQuery, true >( text.From( n + 1 ) );
    if( text.Has( n, '#' ) ) n += 1 + SkipRun< iri::ClassFragment >( text.From( n + 1 ) );
    return n;
}

[[gnu::always_inline]] inline Text Checked( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return { chs, length };
}

} // namespace

int64_t iri___SkipIri( const PbChar *chs, int64_t length ) { return SkipIri( Checked( chs, length ) ); }
int64_t iri___SkipIpV4Address( const PbChar *chs, int64_t length ) { return SkipIpV4( Checked( chs, length ) ); }
int64_t iri___SkipIpV6Address( const PbChar *chs, int64_t length ) { return SkipIpV6( Checked( chs, length ) ); }
int64_t iri___SkipPort( const PbChar *chs, int64_t length )
{
    return SkipAscii< iri::ClassDigit >( Checked( chs, length ) );
}
