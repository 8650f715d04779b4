// The scanners of iri.
#include "iri_internal.h"

#include "iri_chars.h"
#include "pb/pb_frame.h"

#include <algorithm>

namespace {

bool StartsWith( const PbChar *at, const PbChar *end, PbChar ch ) { return at != end && *at == ch; }

// The end of the run of characters of one ASCII class from `at`.
const PbChar *SkipAscii( const PbChar *at, const PbChar *end, uint16_t mask )
{
    return at + pb::CountRun< true >( iri::classes, mask, at, end - at );
}

// The same with percent escapes and ucschar; `privateToo` adds iprivate.
template< uint16_t mask, bool privateToo = false > const PbChar *SkipRun( const PbChar *at, const PbChar *end )
{
    for( ;; ) {
        at = SkipAscii( at, end, mask );
        if( at == end ) return at;
        if( *at == '%' ) {
            if( !iri::StartsWithEscape( at, end ) ) return at;
            at += 3;
        } else {
            if( !iri::IsUcsChar( *at ) && !( privateToo && iri::IsPrivateChar( *at ) ) ) return at;
            ++at;
        }
    }
}

// "[" and an IPv6 address or one of a later version, and "]".
const PbChar *SkipIpLiteral( const PbChar *at, const PbChar *end )
{
    if( !StartsWith( at, end, '[' ) ) return at;

    const PbChar *inner = at + 1;
    if( inner != end && ( *inner | 0x20 ) == 'v' ) {
        const PbChar *version = SkipAscii( inner + 1, end, iri::ClassHex );
        if( version == inner + 1 || !StartsWith( version, end, '.' ) ) return at;
        inner = SkipAscii( version + 1, end, iri::ClassUserInfo );
        if( inner == version + 1 ) return at;
    } else {
        const int64_t count = iri___SkipIpV6Address( inner, end - inner );
        if( count == 0 ) return at;
        inner += count;
    }
    return StartsWith( inner, end, ']' ) ? inner + 1 : at;
}

// iauthority, which may be empty. Userinfo is known by its "@" alone; without one, what looked like it is host and
// port.
const PbChar *SkipAuthority( const PbChar *at, const PbChar *end )
{
    const PbChar *userInfo = SkipRun< iri::ClassUserInfo >( at, end );
    if( StartsWith( userInfo, end, '@' ) ) at = userInfo + 1;

    at = StartsWith( at, end, '[' ) ? SkipIpLiteral( at, end ) : SkipRun< iri::ClassRegName >( at, end );
    return StartsWith( at, end, ':' ) ? SkipAscii( at + 1, end, iri::ClassDigit ) : at;
}

// dec-octet: 0 to 255 in as many digits as fit, without a leading zero.
const PbChar *SkipOctet( const PbChar *at, const PbChar *end )
{
    const PbChar *start = at;
    for( int value = 0; at != end && iri::Is( *at, iri::ClassDigit ); ++at ) {
        value = value * 10 + ( *at - '0' );
        if( value > 255 || ( at != start && *start == '0' ) ) break;
    }
    return at;
}

} // namespace

int64_t iri___SkipIri( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    const PbChar *end = chs + length;
    if( length == 0 || !iri::Is( *chs, iri::ClassAlpha ) ) return 0;

    const PbChar *at = SkipAscii( chs, end, iri::ClassScheme );
    if( !StartsWith( at, end, ':' ) ) return 0;
    ++at;

    // After an authority a path starts with "/"; without one it must not start with "//".
    bool hasPath = true;
    if( StartsWith( at, end, '/' ) && StartsWith( at + 1, end, '/' ) ) {
        at      = SkipAuthority( at + 2, end );
        hasPath = StartsWith( at, end, '/' );
    }
    if( hasPath ) at = SkipRun< iri::ClassPath >( at, end );
    if( StartsWith( at, end, '?' ) ) at = SkipRun< iri::ClassQuery, true >( at + 1, end );
    if( StartsWith( at, end, '#' ) ) at = SkipRun< iri::ClassFragment >( at + 1, end );
    return at - chs;
}

int64_t iri___SkipIpV4Address( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    const PbChar *at  = chs;
    const PbChar *end = chs + length;
    for( int octet = 0; octet < 4; ++octet ) {
        if( octet > 0 ) {
            if( !StartsWith( at, end, '.' ) ) return 0;
            ++at;
        }
        const PbChar *start = at;
        at                  = SkipOctet( at, end );
        if( at == start ) return 0;
    }
    return at - chs;
}

// An address is eight groups, or at most seven of them with "::" in place of the others.
int64_t iri___SkipIpV6Address( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    const PbChar *at      = chs;
    const PbChar *end     = chs + length;
    const PbChar *matched = chs; // the end of the longest prefix that is an address
    int           groups  = 0;
    int           limit   = 8;

    const auto elide = [ & ] {
        if( limit == 7 || !StartsWith( at, end, ':' ) || !StartsWith( at + 1, end, ':' ) ) return false;
        limit   = 7;
        matched = at += 2;
        return true;
    };

    elide();
    while( groups < limit ) {
        const PbChar *group = at;
        at                  = SkipAscii( group, group + std::min< int64_t >( 4, end - group ), iri::ClassHex );
        if( at == group ) break;

        if( StartsWith( at, end, '.' ) && ( limit == 7 ? groups <= 5 : groups == 6 ) )
            if( const int64_t count = iri___SkipIpV4Address( group, end - group ) ) return group + count - chs;

        ++groups;
        if( limit == 7 || groups == 8 ) matched = at;
        if( groups == 8 || elide() ) continue;
        if( !StartsWith( at, end, ':' ) ) break;
        ++at;
    }
    return matched - chs;
}

int64_t iri___SkipPort( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return SkipAscii( chs, chs + length, iri::ClassDigit ) - chs;
}
