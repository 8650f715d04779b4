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
            const int byte = pb::EscapedByte( { chs + i, length - i } );
            put( byte < 0 ? chs[ i ] : byte );
            if( byte >= 0 ) i += 2;
        }
    } );
}

PbString *sipsn___ReasonPhraseEncode( PbString *pbs )
{
    PB_ASSERT( pbs );

    if( std::ranges::all_of( sipsn::Characters( pbs ), IsPlain ) ) return pb::Retain( pbs );
    return sipsn::StringOf( [ = ]( auto put ) {
        for( PbChar ch : sipsn::Characters( pbs ) ) {
            if( IsPlain( ch ) )
                put( ch );
            else
                pb::PutEscaped( PbByte( ch ), put );
        }
    } );
}
