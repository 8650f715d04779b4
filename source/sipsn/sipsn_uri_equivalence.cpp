// Whether two URIs address the same: RFC 3261 section 19.1.4, RFC 3966 section 4, RFC 5954 section 4.
#include "sipsn_uri.h"

#include "in/in_address.h"
#include "sipsn_token_frame.h"
#include "sipsn_uri_part.h"

#include <string_view>

namespace {

using pb::Ref;

bool Same( PbString *a, PbString *b ) { return a && b ? pbStringEquals( a, b ) : a == b; }

bool SameInAnyCase( PbString *a, PbString *b )
{
    return Same( Ref{ sipsn::ToLower( a ) }.Get(), Ref{ sipsn::ToLower( b ) }.Get() );
}

bool SameDigits( PbString *a, PbString *b )
{
    return SameInAnyCase( Ref{ sipsn::uri::WithoutSeparators( a ) }.Get(),
                          Ref{ sipsn::uri::WithoutSeparators( b ) }.Get() );
}

// ---- Hosts -----------------------------------------------------------------------------------------

// The address that a host is, with brackets if it is of IPv6; null for a name.
Ref< InAddress > AddressOf( PbString *host )
{
    const bool    bracketed = host->length > 2 && host->chs[ 0 ] == '[';
    const int64_t begin     = bracketed ? 1 : 0;
    return Ref{ inAddressTryCreateFromChars( host->chs + begin, host->length - 2 * begin ) };
}

// A name is never the same as an address.
bool SameHost( PbString *a, PbString *b )
{
    const Ref addressA = AddressOf( a );
    const Ref addressB = AddressOf( b );
    if( addressA && addressB ) return inAddressEquals( addressA.Get(), addressB.Get() );
    return !addressA && !addressB && SameInAnyCase( a, b );
}

// A domain name, or the first digits of a number.
bool SameContext( PbString *a, PbString *b )
{
    if( !sipsn::uri::IsGlobal( a ) || !sipsn::uri::IsGlobal( b ) ) return SameInAnyCase( a, b );
    return SameDigits( a, b );
}

// ---- Parameters ------------------------------------------------------------------------------------

bool IsOneOf( PbString *name, std::initializer_list< std::string_view > names )
{
    return std::ranges::any_of( names, [ = ]( std::string_view one ) {
        return pbStringEqualsCstr( name, one.data(), int64_t( one.size() ) );
    } );
}

bool SameValue( PbString *name, PbString *a, PbString *b )
{
    if( IsOneOf( name, { "method" } ) ) return Same( a, b );
    if( IsOneOf( name, { "maddr" } ) )
        return sipsnUriHostOk( a ) && sipsnUriHostOk( b ) ? SameHost( a, b ) : Same( a, b );
    if( IsOneOf( name, { "ext", "cic", "rn" } ) ) return SameDigits( a, b );
    if( IsOneOf( name, { "phone-context", "cic-context", "rn-context", "trunk-context" } ) ) return SameContext( a, b );
    return SameInAnyCase( a, b );
}

// Whether b has every parameter of a, or may lack it, and none of the two has another value.
template< class MayLack > bool MatchParams( PbDict *a, PbDict *b, MayLack mayLack )
{
    for( int64_t at = 0, length = pbDictLength( a ); at < length; ++at ) {
        PbString *name  = pb___DictPeekKeyAt( a, at );
        PbString *value = pbStringFrom( pb___DictPeekValueAt( a, at ) );
        PbString *other = pbStringFrom( pb___DictPeek( b, name ) );
        if( other ? !SameValue( name, value, other ) : !mayLack( name ) ) return false;
    }
    return true;
}

template< class MayLack > bool SameParams( SipsnUri *a, SipsnUri *b, MayLack mayLack )
{
    const Ref paramsA{ sipsn::uri::ParamsByName( a ) };
    const Ref paramsB{ sipsn::uri::ParamsByName( b ) };
    return MatchParams( paramsA.Get(), paramsB.Get(), mayLack ) && MatchParams( paramsB.Get(), paramsA.Get(), mayLack );
}

// ---- Headers ---------------------------------------------------------------------------------------

// The headers by their text with the name in lower case, those of one text together.
Ref< PbDict > HeadersByText( PbVector *headers )
{
    Ref all{ pbDictCreate() };
    for( int64_t at = 0, length = pbVectorLength( headers ); at < length; ++at ) {
        PbString     *header = pbStringFrom( pb___VectorPeek( headers, at ) );
        const int64_t name   = sipsn::uri::NameLength( header );
        Ref           key{ sipsn::LowerFromChars( header->chs, name ) };
        pbStringAppendChars( key.Slot(), header->chs + name, header->length - name );
        PbVector *alike = pbVectorFrom( pbDictStringKey( all.Get(), key.Get() ) );
        if( !alike ) alike = pbVectorCreate();
        pbDictDelStringKey( all.Slot(), key.Get() );
        pbVectorAppendString( &alike, header );
        pb___DictSetOwned( all.Slot(), key.Detach(), pb::AsObj( alike ) );
    }
    return all;
}

bool SameHeaders( PbVector *a, PbVector *b )
{
    if( pbVectorLength( a ) != pbVectorLength( b ) ) return false;
    if( pbVectorLength( a ) == 0 ) return true;
    const Ref headersA = HeadersByText( a );
    const Ref headersB = HeadersByText( b );
    for( int64_t at = 0, length = pbDictLength( headersA.Get() ); at < length; ++at ) {
        PbVector *alikeA = pbVectorFrom( pb___DictPeekValueAt( headersA.Get(), at ) );
        PbVector *alikeB = pbVectorFrom( pb___DictPeek( headersB.Get(), pb___DictPeekKeyAt( headersA.Get(), at ) ) );
        if( !alikeB || pbVectorLength( alikeA ) != pbVectorLength( alikeB ) ) return false;
    }
    return true;
}

// ---- URIs ------------------------------------------------------------------------------------------

// Whether a member is the same in both.
template< auto get, auto same > bool SameIn( SipsnUri *a, SipsnUri *b )
{
    const Ref ofA{ get( a ) };
    const Ref ofB{ get( b ) };
    return same( ofA.Get(), ofB.Get() );
}

bool SameSip( SipsnUri *a, SipsnUri *b )
{
    const auto mayLack = []( PbString *name ) {
        return !IsOneOf( name, { "maddr", "method", "transport", "ttl", "user" } );
    };
    return SameIn< sipsnUriUser, Same >( a, b ) && SameIn< sipsnUriPassword, Same >( a, b ) &&
           SameIn< sipsnUriHost, SameHost >( a, b ) && sipsnUriPort( a ) == sipsnUriPort( b ) &&
           SameParams( a, b, mayLack ) && SameIn< sipsnUriHeadersVector, SameHeaders >( a, b );
}

bool SameTel( SipsnUri *a, SipsnUri *b )
{
    return SameIn< sipsnUriNumber, SameDigits >( a, b ) && SameParams( a, b, []( PbString * ) { return false; } );
}

} // namespace

bool sipsnUriEquivalent( SipsnUri *a, SipsnUri *b )
{
    PB_ASSERT( a );
    PB_ASSERT( b );
    if( !SameIn< sipsnUriScheme, Same >( a, b ) ) return false;
    if( sipsnUriIsSip( a ) ) return SameSip( a, b );
    if( sipsnUriIsTel( a ) ) return SameTel( a, b );
    return SameIn< sipsnUriRest, Same >( a, b );
}
