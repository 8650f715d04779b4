// The rules of the members of challenges, credentials and security mechanisms. C++ only; never installed.
//
// Receivers read quoted strings and tokens wherever one of them stands (RFC 7616 section 3.3 has senders of both); what
// is written has the form that RFC 3261 section 25.1 asks for.
#pragma once

#include "sipsn_digest_text.h"
#include "sipsn_number.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

namespace sipsn {

Production SkipNonceCount, SkipToken68;
int64_t    NonceCountFromChars( const PbChar *chs, int64_t length );
PbString  *NonceCountToWire( int64_t number );

// A token or the content of a quoted string that is valid; null when it is not.
template< bool ( *ok )( PbString *text ) > PbString *GenValueIf( const PbChar *chs, int64_t length )
{
    pb::Ref text{ GenValueFromChars( chs, length ) };
    return ok( text.Get() ) ? text.Detach() : nullptr;
}

// An authentication scheme, which is the first member of the table, and behind a blank parameters that commas separate;
// instead of these a token68, where the type has one.
template< class T > struct SchemeAndParams
{
    template< class Link > T *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref value{ New< T >() };
        if( !TakeFirst( in, *value.Get() ) ) return nullptr;
        if( in.AtEnd() ) return value.Detach();
        if( !in.Take( sipsn___SkipLws ) ) return nullptr;
        if constexpr( requires { value->token68; } ) {
            BasicCursor< Link > ahead = in;
            if( const Span text = ahead.Take( SkipToken68, "a token" ); text && ahead.AtEnd() ) {
                value->token68 = text.ToString();
                return value.Detach();
            }
        }
        if( !TryDecodeOnlyParams( in, *value.Get(), sipsn___SkipComma ) ) return nullptr;
        return HaveValues( value->genericParams ) || in.Lacks( "a value of each parameter" ) ? value.Detach() : nullptr;
    }

    void Write( TextWriter &out, T &value ) const
    {
        WriteFirst( out, value );
        if constexpr( requires { value.token68; } )
            if( value.token68 ) {
                out.Char( ' ' );
                out.Text( value.token68 );
                return;
            }
        WriteParams( out, value, Between{ ',', ' ' } );
    }

private:
    // One without a value could be a token68. Challenges have none.
    static bool HaveValues( SipsnGenericParams *params )
    {
        if constexpr( requires( T value ) { value.token68; } )
            for( int64_t at = 0, length = sipsnGenericParamsLength( params ); at < length; ++at )
                if( !sipsnGenericParamHasValue( PeekParamAt( params, at ) ) ) return false;
        return true;
    }
};

} // namespace sipsn

namespace sipsn::rule {

// Written as quoted strings.
inline constexpr TextRule authResponse{ .words      = "quoted hexadecimal digits",
                                        .ok         = sipsnDigestResponseOk,
                                        .production = SkipGenValue,
                                        .decoded    = GenValueIf< sipsnDigestResponseOk >,
                                        .encoded    = sipsn___QuotableStringEncode };
inline constexpr TextRule digestVerify{ .words      = "32 quoted hexadecimal digits",
                                        .ok         = sipsnDigestVerifyOk,
                                        .production = SkipGenValue,
                                        .decoded    = GenValueIf< sipsnDigestVerifyOk >,
                                        .encoded    = sipsn___QuotableStringEncode };

// Written as tokens.
inline constexpr TextRule authToken{
    .words = "a token", .ok = sipsnTokenOk, .production = SkipGenValue, .decoded = GenValueIf< sipsnTokenOk > };
inline constexpr TextRule token68{ .words = "a token", .ok = sipsnToken68Ok, .production = SkipToken68 };

inline constexpr IntRule nonceCount{ .words      = "eight hexadecimal digits",
                                     .ok         = sipsnNonceCountOk,
                                     .lowest     = 0,
                                     .highest    = UINT32_MAX,
                                     .production = SkipNonceCount,
                                     .decoded    = NonceCountFromChars,
                                     .encoded    = NonceCountToWire };

} // namespace sipsn::rule
