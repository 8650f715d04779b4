// The texts of challenges and credentials: what is valid.
#include "sipsn_digest_text.h"

#include "sipsn_digest_rules.h"
#include "sipsn_text_rules.h"

int64_t sipsn::SkipNonceCount( const PbChar *chs, int64_t length )
{
    constexpr int64_t digits = 8;
    return SkipHexDigits( chs, length ) == digits ? digits : 0;
}

int64_t sipsn::SkipToken68( const PbChar *chs, int64_t length )
{
    const auto isBase64 = []( PbChar ch ) {
        return Is( ch, Alphanum ) || ch == '-' || ch == '.' || ch == '_' || ch == '~' || ch == '+' || ch == '/';
    };
    const PbChar *const end = std::find_if_not( chs, chs + length, isBase64 );
    return end == chs ? 0 : std::find_if( end, chs + length, []( PbChar ch ) { return ch != '='; } ) - chs;
}

bool sipsnDigestResponseOk( PbString *response )
{
    PB_ASSERT( response );
    return sipsn::SkipHexDigits( response->chs, response->length ) == response->length;
}

bool sipsnDigestVerifyOk( PbString *digestVerify )
{
    PB_ASSERT( digestVerify );
    return digestVerify->length == 32 && sipsnDigestResponseOk( digestVerify );
}

bool sipsnToken68Ok( PbString *token68 )
{
    PB_ASSERT( token68 );
    return sipsn::Matches( token68, sipsn::SkipToken68 );
}

int64_t sipsn::NonceCountFromChars( const PbChar *chs, int64_t length )
{
    return int64_t( pb::ReadNumber( chs, length, pb::Radix< 16 >{}, UINT32_MAX ).value );
}

PbString *sipsn::NonceCountToWire( int64_t number )
{
    return StringOf( [ = ]( auto put ) {
        for( int shift = 28; shift >= 0; shift -= 4 ) put( PbChar( "0123456789abcdef"[ ( number >> shift ) & 15 ] ) );
    } );
}
