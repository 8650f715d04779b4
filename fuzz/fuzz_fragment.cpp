// Any bytes decode to a fragment or to null; the reader reads the same message, or says where within them it stops. A
// fragment that was decoded encodes, and what was encoded decodes to the same fragment, whose encoding is the same
// again.
#include "fuzz.h"

// Content-Length is left out: encoding writes the true one.
static pb::Ref< PbVector > HeadersOf( SipsnMessageFragment *frag )
{
    pb::Ref copy{ sipsnMessageFragmentCreateFrom( frag ) };
    sipsnMessageFragmentDelHeaderCstr( copy.Slot(), "Content-Length", -1 );
    return pb::Ref{ sipsnMessageFragmentHeadersVector( copy.Get() ) };
}

static void CheckReader( PbBuffer *wire, SipsnMessage *message )
{
    SipsnMessagePlace place{};
    SipsnFault        fault;
    pb::Ref           read{ sipsnMessageTryDecodeNext( wire, SIPSN_FRAMING_DATAGRAM, &place, &fault ) };
    REQUIRE( bool( read ) == ( fault.kind == SIPSN_FAULT_NONE ) );
    REQUIRE( fault.length >= 0 && fault.place.offset + fault.length <= pbBufferLength( wire ) );
    if( place.begin.offset > 0 ) return; // behind keep-alives, which the decoder does not take
    REQUIRE( bool( read ) == bool( message ) );
    for( SipsnFieldPlace field{}; message && sipsnMessagePlaceNextField( wire, &place, &field ); ) {
        pb::Ref name{ sipsnFieldPlaceName( wire, &field ) };
        REQUIRE( sipsnMessageHasHeader( message, name.Get() ) );
    }
}

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size )
{
    fuzz::Start();
    pb::Ref wire = fuzz::Buffer( data, size );
    pb::Ref frag{ sipsnMessageFragmentTryDecode( wire.Get() ) };
    pb::Ref message{ sipsnMessageTryDecode( wire.Get() ) };
    REQUIRE( bool( message ) == ( frag && !sipsnMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) ) );
    CheckReader( wire.Get(), message.Get() );
    if( !frag ) return 0;

    if( !sipsnMessageFragmentHasHeaderCstr( frag.Get(), "Content-Length", -1 ) ) {
        pb::Ref last{ sipsnMessageFragmentEncode( frag.Get() ) };
        REQUIRE( bool( pb::Ref{ sipsnMessageFragmentTryDecode( last.Get() ) } ) );
        pb::Ref contentLength{ sipsnMessageHeaderCreateCstr( "Content-Length", -1 ) };
        sipsnMessageFragmentSetHeader( frag.Slot(), contentLength.Get() );
    }
    pb::Ref encoded{ sipsnMessageFragmentEncode( frag.Get() ) };
    pb::Ref again{ sipsnMessageFragmentTryDecode( encoded.Get() ) };
    REQUIRE( bool( again ) );
    pb::Ref encodedAgain{ sipsnMessageFragmentEncode( again.Get() ) };
    REQUIRE( pbBufferEquals( encoded.Get(), encodedAgain.Get() ) );

    REQUIRE( sipsnMessageFragmentIsRequest( frag.Get() ) == sipsnMessageFragmentIsRequest( again.Get() ) );
    REQUIRE( sipsnMessageFragmentIsResponse( frag.Get() ) == sipsnMessageFragmentIsResponse( again.Get() ) );
    pb::Ref headers = HeadersOf( frag.Get() ), headersAgain = HeadersOf( again.Get() );
    REQUIRE( pbVectorEquals( headers.Get(), headersAgain.Get() ) );
    pb::Ref body{ sipsnMessageFragmentBody( frag.Get() ) }, bodyAgain{ sipsnMessageFragmentBody( again.Get() ) };
    REQUIRE( bool( body ) == bool( bodyAgain ) );
    REQUIRE( !body || pbBufferEquals( body.Get(), bodyAgain.Get() ) );
    return 0;
}
