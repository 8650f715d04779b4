// A valid IRI becomes a URI that is ASCII and valid, and comes back as text that is stable from then on; what comes
// from a URI is a valid IRI. The scanner and the validator agree on what an IRI is, the scanner and the address parser
// on what an address is, and the C library with both.
#include "fuzz.h"

#include "in/in.h"
#include "iri/iri.h"
#include "iri/iri_internal.h"

#include <arpa/inet.h>
#include <cstring>
#include <string>

namespace {

bool Valid( PbString *text ) { return iriGensValidatePart( IRI_GENS_PART_IRI, text ); }

void CheckIri( PbString *text )
{
    const fuzz::Text chs{ text };
    REQUIRE( Valid( text ) == ( chs.Length() > 0 && iri___SkipIri( chs.Chs(), chs.Length() ) == chs.Length() ) );

    pb::Ref fromWire{ iriTryConvertFromUri( text ) };
    REQUIRE( !fromWire || Valid( fromWire.Get() ) );

    pb::Ref uri{ iriTryConvertToUri( text ) };
    REQUIRE( bool( uri ) == Valid( text ) );
    if( !uri ) return;
    REQUIRE( Valid( uri.Get() ) );
    for( int64_t at = 0; at < pbStringLength( uri.Get() ); ++at ) REQUIRE( pbStringCharAt( uri.Get(), at ) < 0x80 );

    pb::Ref iri{ iriTryConvertFromUri( uri.Get() ) };
    REQUIRE( bool( iri ) );
    pb::Ref uriAgain{ iriTryConvertToUri( iri.Get() ) };
    pb::Ref iriAgain{ iriTryConvertFromUri( uriAgain.Get() ) };
    REQUIRE( pbStringEquals( iri.Get(), iriAgain.Get() ) );
}

void CheckAddress( PbString *text, const std::string &bytes )
{
    const fuzz::Text chs{ text };
    pb::Ref          address{ inAddressTryCreateFromChars( chs.Chs(), chs.Length() ) };
    const bool       v4 = chs.Length() > 0 && iri___SkipIpV4Address( chs.Chs(), chs.Length() ) == chs.Length();
    const bool       v6 = chs.Length() > 0 && iri___SkipIpV6Address( chs.Chs(), chs.Length() ) == chs.Length();
    REQUIRE( bool( address ) == ( v4 || v6 ) );

    PbByte     expected[ 16 ];
    const bool whole = bytes.find( '\0' ) == bytes.npos; // the C library stops at a zero
    REQUIRE( ( whole && inet_pton( AF_INET, bytes.c_str(), expected ) == 1 ) == v4 );
    REQUIRE( v4 || ( whole && inet_pton( AF_INET6, bytes.c_str(), expected ) == 1 ) == v6 );
    if( !address ) return;
    pb::Ref network{ inAddressBytes( address.Get() ) };
    REQUIRE( pbBufferLength( network.Get() ) == ( v4 ? 4 : 16 ) );
    REQUIRE( std::memcmp( pbBufferBacking( network.Get() ), expected, size_t( pbBufferLength( network.Get() ) ) ) ==
             0 );

    pb::Ref          shrunk{ inAddressToStringShrink( address.Get() ) };
    const fuzz::Text shrunkChs{ shrunk.Get() };
    pb::Ref          again{ inAddressTryCreateFromChars( shrunkChs.Chs(), shrunkChs.Length() ) };
    REQUIRE( again && inAddressEquals( address.Get(), again.Get() ) );
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Start();
    pb::Ref text = fuzz::String( data, size );
    CheckIri( text.Get() );
    CheckAddress( text.Get(), std::string( data, data + size ) );
    return 0;
}
