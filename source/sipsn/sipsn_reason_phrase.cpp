// Reason phrases: what is valid, and the wire form.
#include "sipsn_reason_phrase.h"

#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnReasonPhraseOk( PbString *reasonPhrase ) { return reasonPhrase != nullptr; }

// Whether a status line holds the character as it is.
static bool IsPlain( PbChar ch )
{
    return ch > 127 || sipsn::Is( ch, sipsn::Reserved | sipsn::Unreserved | sipsn::Lws );
}

PbString *sipsn___ReasonPhraseDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    return sipsn::StringOf( [ = ]( auto put ) {
        for( int64_t i = 0; i < length; ++i ) {
            if( chs[ i ] == '%' && length - i > 2 && sipsn::Is( chs[ i + 1 ], sipsn::Hexdig ) &&
                sipsn::Is( chs[ i + 2 ], sipsn::Hexdig ) ) {
                put( sipsn::HexValue( chs[ i + 1 ] ) * 16 + sipsn::HexValue( chs[ i + 2 ] ) );
                i += 2;
            } else {
                put( chs[ i ] );
            }
        }
    } );
}

PbString *sipsn___ReasonPhraseEncode( PbString *pbs )
{
    PB_ASSERT( pbs );

    if( std::ranges::all_of( sipsn::Characters( pbs ), IsPlain ) ) return pb::Retain( pbs );
    return sipsn::StringOf( [ = ]( auto put ) {
        for( PbChar ch : sipsn::Characters( pbs ) ) {
            if( IsPlain( ch ) ) {
                put( ch );
                continue;
            }
            put( '%' );
            put( "0123456789ABCDEF"[ ch >> 4 & 15 ] );
            put( "0123456789ABCDEF"[ ch & 15 ] );
        }
    } );
}
