// The parts of SIP and tel URIs: what is valid, and how it is kept.
#include "sipsn_uri_part.h"

#include "sipsn_uri.h"

#include "iri/iri_chars.h"
#include "iri/iri_internal.h"
#include "sipsn_host.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

using pb::Text;

namespace sipsn::uri {

// ---- Runs ------------------------------------------------------------------------------------------

// The classes that no other grammar has.
static constexpr uint8_t schemeChar = 1;
static constexpr uint8_t tokenChar  = 2; // of a token that can stand in a URI as it is
static constexpr uint8_t lowerChar  = 4; // of these, all but letters of upper case

static constexpr pb::ClassTable< uint8_t > ownClasses = [] {
    pb::ClassTable< uint8_t > classes{};
    for( PbChar ch = 0; ch < PbChar( classes.size() ); ++ch ) {
        const bool scheme = Is( ch, Alphanum ) || ch == '+' || ch == '-' || ch == '.';
        const bool token  = Is( ch, Token ) && Is( ch, Unreserved | ParamUnreserved );
        const bool lower  = token && !Is( ch, UpperAlpha );
        classes[ size_t( ch ) ] =
            uint8_t( ( scheme ? schemeChar : 0 ) | ( token ? tokenChar : 0 ) | ( lower ? lowerChar : 0 ) );
    }
    return classes;
}();

static bool IsBeyondAscii( PbChar ch ) { return iri::IsUcsChar( ch ) || iri::IsPrivateChar( ch ); }

// Whether a text holds the character beyond ASCII itself, and not its escapes.
static bool MayStandUnescaped( PbChar ch ) { return iri::IsUcsChar( ch ) && !iri::IsBidiFormatting( ch ); }

// A run of one class, of escapes, and of characters beyond ASCII.
template< CharClass mask > [[gnu::always_inline]] static inline int64_t SkipRun( Text text, int64_t &changes )
{
    changes = 0;
    for( int64_t n = 0;; ++changes ) {
        n += pb::CountRun< true >( charClasses, mask, text.chs + n, text.length - n );
        if( n == text.length || pb::IsAscii( text[ n ] ) ) {
            if( pb::EscapedByte( text.From( n ) ) < 0 ) return n;
            n += 3;
        } else {
            if( !IsBeyondAscii( text[ n ] ) ) return n;
            ++n;
        }
    }
}

// One class alone.
template< class Belongs > static int64_t CountWhile( Text text, Belongs belongs )
{
    int64_t n = 0;
    while( n < text.length && belongs( text[ n ] ) ) ++n;
    return n;
}

int64_t SkipUser( const PbChar *chs, int64_t length, int64_t *changes )
{
    return SkipRun< Unreserved | UserUnreserved >( { chs, length }, *changes );
}
int64_t SkipPassword( const PbChar *chs, int64_t length, int64_t *changes )
{
    return SkipRun< Unreserved | PasswordUnreserved >( { chs, length }, *changes );
}
int64_t SkipParamPart( const PbChar *chs, int64_t length, int64_t *changes )
{
    return SkipRun< Unreserved | ParamUnreserved >( { chs, length }, *changes );
}
int64_t SkipHeaderPart( const PbChar *chs, int64_t length, int64_t *changes )
{
    return SkipRun< Unreserved | HnvUnreserved >( { chs, length }, *changes );
}

int64_t SkipScheme( const PbChar *chs, int64_t length )
{
    if( length > 3 && chs[ 3 ] == ':' && Is( chs[ 0 ], Alpha ) && Is( chs[ 1 ], Alpha ) && Is( chs[ 2 ], Alpha ) )
        return 3;
    return length > 0 && Is( chs[ 0 ], Alpha ) ? pb::CountRun< true >( ownClasses, schemeChar, chs, length ) : 0;
}

int64_t SkipHost( const PbChar *chs, int64_t length, int64_t *plain )
{
    const auto    ends = []( PbChar ch ) { return ch == ':' || ch == ';' || ch == '?'; };
    const int64_t name = SkipPlainName( chs, length );
    *plain             = name > 0 && ( name == length || ends( chs[ name ] ) );
    if( *plain ) return name;
    const int64_t ascii = sipsn___SkipHost( chs, length );
    if( ascii == length || pb::IsAscii( chs[ ascii ] ) ) return ascii;
    const auto belongs = []( PbChar ch ) {
        return pb::IsAscii( ch ) ? Is( ch, Alphanum | Hyphen ) || ch == '.' : IsBeyondAscii( ch );
    };
    return CountWhile( { chs, length }, belongs );
}

// ---- Telephone numbers -----------------------------------------------------------------------------

static bool IsSeparator( PbChar ch ) { return ch == '-' || ch == '.' || ch == '(' || ch == ')'; }
static bool IsPhoneDigit( PbChar ch ) { return Is( ch, Digit ) || IsSeparator( ch ); }
static bool IsHexDigit( PbChar ch ) { return Is( ch, Hexdig ) || IsSeparator( ch ); }
static bool IsLocalDigit( PbChar ch ) { return IsHexDigit( ch ) || ch == '*' || ch == '#'; }

// A run that begins behind `from` and is not of separators alone.
template< class Belongs > static int64_t SkipDialled( Text text, int64_t from, Belongs belongs )
{
    const int64_t count = CountWhile( text.From( from ), belongs );
    return CountWhile( text.From( from ), IsSeparator ) < count ? from + count : 0;
}

int64_t SkipNumberChars( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    int64_t    n = 0;
    while( n < length ) {
        if( IsLocalDigit( chs[ n ] ) || chs[ n ] == '+' )
            ++n;
        else if( pb::EscapedByte( text.From( n ) ) >= 0 )
            n += 3;
        else
            break;
    }
    return n;
}

static int64_t SkipNumber( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    return text.Has( 0, '+' ) ? SkipDialled( text, 1, IsPhoneDigit ) : SkipDialled( text, 0, IsLocalDigit );
}

// ---- Values of parameters --------------------------------------------------------------------------

int64_t SkipToken( const PbChar *chs, int64_t length )
{
    return pb::CountRun< true >( ownClasses, tokenChar, chs, length );
}

int64_t SkipLowerToken( const PbChar *chs, int64_t length )
{
    const int64_t count = pb::CountRun< true >( ownClasses, lowerChar, chs, length );
    return count == length || chs[ count ] == ';' || chs[ count ] == '?' ? count : 0;
}

int64_t SkipPort( const PbChar *chs, int64_t length, int64_t *port )
{
    const auto [ value, digits ] = pb::ReadNumber( chs, length, pb::Radix< 10 >{}, uint64_t( INT64_MAX ) );
    *port                        = value <= uint64_t( INT64_MAX ) ? int64_t( value ) : -1;
    return digits;
}

int64_t SkipIsdnSubaddress( const PbChar *chs, int64_t length )
{
    int64_t changes;
    return SkipParamPart( chs, length, &changes );
}

int64_t SkipExtension( const PbChar *chs, int64_t length ) { return CountWhile( { chs, length }, IsPhoneDigit ); }

// Without escapes, and the last label begins with a letter.
static int64_t SkipDomainName( Text text )
{
    int64_t label = 0;
    for( int64_t n = 0; n < text.length; ++n ) {
        if( text[ n ] == '.' && n + 1 < text.length ) label = n + 1;
        if( text[ n ] != '.' && !Is( text[ n ], Alphanum | Hyphen ) ) return 0;
    }
    return text.length > 0 && Is( text[ label ], Alpha ) ? sipsn___SkipHostname( text.chs, text.length ) : 0;
}

int64_t SkipContext( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    return text.Has( 0, '+' ) ? SkipDialled( text, 1, IsPhoneDigit ) : SkipDomainName( text );
}

// "+", a digit at least, then hexadecimal ones (RFC 4694).
static int64_t SkipGlobalHex( Text text )
{
    return text.Has( 0, '+' ) && Is( text[ std::min< int64_t >( 1, text.length - 1 ) ], Digit )
               ? SkipDialled( text, 1, IsHexDigit )
               : 0;
}

int64_t SkipRoutingNumber( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    if( text.Has( 0, '+' ) ) return SkipGlobalHex( text );
    return length > 0 && Is( chs[ 0 ], Hexdig ) ? CountWhile( text, IsHexDigit ) : 0;
}

int64_t SkipRoutingContext( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    return text.Has( 0, '+' ) ? SkipGlobalHex( text ) : SkipDomainName( text );
}

// What parameters hold, without "[", "]" and ":" (RFC 4904).
int64_t SkipTrunkGroup( const PbChar *chs, int64_t length )
{
    int64_t    changes;
    const auto belongs = []( PbChar ch ) { return ch != '[' && ch != ']' && ch != ':'; };
    return CountWhile( { chs, SkipParamPart( chs, length, &changes ) }, belongs );
}

// ---- Keeping ---------------------------------------------------------------------------------------

// The character that the escapes at the start of a text are the UTF-8 of, where a URI's text holds it itself; -1 else.
// `length` is that of the escapes.
static PbChar ReadEscapedChar( Text text, int64_t &length )
{
    PbByte  bytes[ 4 ];
    int64_t count = 0;
    for( ; count < 4; ++count ) {
        const int byte = pb::EscapedByte( text.From( 3 * count ) );
        if( byte < 0 ) break;
        bytes[ count ] = PbByte( byte );
        if( byte < 0x80 && count == 0 ) {
            length = 3;
            return Is( byte, Unreserved ) ? byte : -1;
        }
    }
    PbChar ch = -1;
    if( count > 0 ) length = 3 * pb::DecodeUtf8Sequence( ch, bytes, count );
    return MayStandUnescaped( ch ) ? ch : -1;
}

template< class Put > static void PutEscaped( PbChar ch, Put put )
{
    PbByte        bytes[ 4 ];
    const int64_t count = pbCharsConvertToUtf8( bytes, 4, &ch, 1, true );
    for( int64_t n = 0; n < count; ++n ) pb::PutEscaped( bytes[ n ], put );
}

PbString *Keep( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    return StringOf( [ & ]( auto put ) {
        for( int64_t n = 0; n < length; ) {
            if( text[ n ] == '%' ) {
                int64_t escapes = 3;
                PbChar  ch      = ReadEscapedChar( text.From( n ), escapes );
                if( ch >= 0 )
                    put( ch );
                else
                    pb::PutEscaped( PbByte( pb::EscapedByte( text.From( n ) ) ), put );
                n += ch >= 0 ? escapes : 3;
            } else {
                if( pb::IsAscii( text[ n ] ) || MayStandUnescaped( text[ n ] ) )
                    put( text[ n ] );
                else
                    PutEscaped( text[ n ], put );
                ++n;
            }
        }
    } );
}

PbString *Keep( PbString *text )
{
    const auto plain = []( PbChar ch ) { return pb::IsAscii( ch ) && ch != '%'; };
    return std::ranges::all_of( Characters( text ), plain ) ? pb::Retain( text ) : Keep( text->chs, text->length );
}

PbString *TryKeepNumber( const PbChar *chs, int64_t length )
{
    const Text text{ chs, length };
    pb::Ref    number{ StringOf( [ & ]( auto put ) {
        for( int64_t n = 0; n < length; ++n ) {
            const int byte = pb::EscapedByte( text.From( n ) );
            put( byte >= 0 && ( byte == '#' || Is( byte, Unreserved ) ) ? byte : text[ n ] );
            if( byte >= 0 ) n += 2;
        }
    } ) };
    return Matches( number.Get(), SkipNumber ) ? number.Detach() : nullptr;
}

PbString *TryKeepNumber( PbString *number )
{
    return Matches( number, SkipNumber ) ? pb::Retain( number ) : TryKeepNumber( number->chs, number->length );
}

PbString *TryKeepHost( const PbChar *chs, int64_t length )
{
    PbString *kept = sipsn___HostTryDecode( chs, length );
    if( kept || std::all_of( chs, chs + length, pb::IsAscii ) ) return kept;
    return TryKeepHost( pb::Ref{ pbStringCreateFromCharsCopy( chs, length ) }.Get() );
}

// By way of its ASCII form, so that a host in any form is kept as that is read again.
PbString *TryKeepHost( PbString *host )
{
    if( !sipsnHostOk( host ) ) return nullptr;
    pb::Ref ascii{ sipsn___HostEncode( host ) };
    pb::Ref kept{ sipsn___HostTryDecode( ascii->chs, ascii->length ) };
    return kept && pbStringEquals( kept.Get(), host ) ? pb::Retain( host ) : kept.Detach();
}

PbString *TryLowerToken( const PbChar *chs, int64_t length )
{
    return SkipToken( chs, length ) == length ? LowerFromChars( chs, length ) : nullptr;
}

PbString *WithoutSeparators( PbString *number )
{
    return StringOf( [ & ]( auto put ) {
        for( PbChar ch : Characters( number ) )
            if( !IsSeparator( ch ) ) put( ch );
    } );
}

bool IsGlobal( PbString *number ) { return number->length > 0 && number->chs[ 0 ] == '+'; }

int64_t NameLength( PbString *item )
{
    return std::find( item->chs, item->chs + item->length, '=' ) - ( item->chs + 0 );
}

bool HasName( PbString *item, PbString *name )
{
    return NameLength( item ) == name->length &&
           pb::StartsWithKeyword( { item->chs, item->length }, name->chs + 0, name->length );
}

} // namespace sipsn::uri

// ---- What members may hold -------------------------------------------------------------------------

using namespace sipsn;

// Whether the text is what a production matches, and how much there is to change in it does not matter.
static bool Matches( PbString *text, NumberedName *production )
{
    int64_t changes;
    return production( text->chs, text->length, &changes ) == text->length;
}

bool sipsnUriSchemeOk( PbString *scheme )
{
    PB_ASSERT( scheme );
    return Matches( scheme, uri::SkipScheme );
}

bool sipsnUriUserOk( PbString *user )
{
    PB_ASSERT( user );
    const Text text{ user->chs, user->length };
    return text.length > 0 && !( text.Has( 0, '/' ) && text.Has( 1, '/' ) ) && Matches( user, uri::SkipUser );
}

bool sipsnUriPasswordOk( PbString *password )
{
    PB_ASSERT( password );
    return Matches( password, uri::SkipPassword );
}

bool sipsnUriHostOk( PbString *host )
{
    PB_ASSERT( host );
    return bool( pb::Ref{ uri::TryKeepHost( host ) } );
}

bool sipsnUriNumberOk( PbString *number )
{
    PB_ASSERT( number );
    return Matches( number, uri::SkipNumber );
}

bool sipsnUriNumberIsGlobal( PbString *number ) { return sipsnUriNumberOk( number ) && uri::IsGlobal( number ); }

bool sipsnUriTokenOk( PbString *token )
{
    PB_ASSERT( token );
    return Matches( token, uri::SkipToken );
}

bool sipsnUriIsdnSubaddressOk( PbString *isdnSubaddress )
{
    PB_ASSERT( isdnSubaddress );
    return Matches( isdnSubaddress, uri::SkipIsdnSubaddress );
}

bool sipsnUriExtensionOk( PbString *extension )
{
    PB_ASSERT( extension );
    return Matches( extension, uri::SkipExtension );
}

bool sipsnUriContextOk( PbString *context )
{
    PB_ASSERT( context );
    return Matches( context, uri::SkipContext );
}

bool sipsnUriRoutingNumberOk( PbString *number )
{
    PB_ASSERT( number );
    return Matches( number, uri::SkipRoutingNumber );
}

bool sipsnUriRoutingContextOk( PbString *context )
{
    PB_ASSERT( context );
    return Matches( context, uri::SkipRoutingContext );
}

bool sipsnUriTrunkGroupOk( PbString *tgrp )
{
    PB_ASSERT( tgrp );
    return Matches( tgrp, uri::SkipTrunkGroup );
}

bool sipsnUriRestOk( PbString *rest )
{
    PB_ASSERT( rest );
    if( rest->length == 0 ) return false;
    pb::Ref iri{ pbStringCreateFromCstr( "x:", -1 ) };
    pbStringAppend( iri.Slot(), rest );
    return iri___SkipIri( iri->chs, iri->length ) == iri->length;
}

// ---- Escapes ---------------------------------------------------------------------------------------

PbString *sipsnUriEscape( PbString *text )
{
    PB_ASSERT( text );
    const auto stands = []( PbChar ch ) { return Is( ch, Unreserved ) || uri::MayStandUnescaped( ch ); };
    if( std::ranges::all_of( Characters( text ), stands ) ) return pb::Retain( text );
    return StringOf( [ & ]( auto put ) {
        for( PbChar ch : Characters( text ) )
            if( stands( ch ) )
                put( ch );
            else
                uri::PutEscaped( ch, put );
    } );
}

PbString *sipsnUriTryUnescape( PbString *text )
{
    PB_ASSERT( text );
    if( std::ranges::find( Characters( text ), '%' ) == Characters( text ).end() ) return pb::Retain( text );
    pb::Ref bytes{ pbBufferCreate() };
    for( int64_t n = 0; n < text->length; ++n ) {
        PbByte    units[ 4 ];
        const int escaped = pb::EscapedByte( { text->chs + n, text->length - n } );
        int64_t   count   = 1;
        if( escaped >= 0 ) {
            units[ 0 ] = PbByte( escaped );
            n += 2;
        } else
            count = pbCharsConvertToUtf8( units, 4, text->chs + n, 1, true );
        pbBufferAppendBytes( bytes.Slot(), units, count );
    }
    return pb___StringTryCreateFromUtf8( pbBufferBacking( bytes.Get() ), pbBufferLength( bytes.Get() ) );
}
