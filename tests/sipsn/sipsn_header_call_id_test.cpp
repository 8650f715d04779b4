// Call-ID: a header of one text, which the last line gives.
#include "header_text.h"

namespace {

constexpr HeaderFamily callId = HEADER_FAMILY( sipsnHeaderCallId, "Call-Id" );

TEST( SipsnHeaderCallId, Lines )
{
    CheckHeaders( {
        { callId, { "a@b" }, { "a@b" } },
        { callId, { "a", "B" }, { "B" } },
        { callId, { "a b", "c" }, { "c" } },
        { callId, { "a", "" }, nullptr },
        { callId, { "a", "b c" }, nullptr },
        { callId, { "a@" }, nullptr },
        { callId, {}, nullptr },
    } );
}

TEST( SipsnHeaderCallId, HoldsACallId )
{
    pb::Ref hdr{ sipsnHeaderCallIdCreate( Str( "a" ).Get() ) };
    pb::Ref kept{ sipsnHeaderCallIdRetain( hdr.Get() ) };
    sipsnHeaderCallIdSetCallId( hdr.Slot(), Str( "b" ).Get() );
    EXPECT_EQ( Take( sipsnHeaderCallIdCallId( hdr.Get() ) ), "b" );
    EXPECT_EQ( Take( sipsnHeaderCallIdCallId( kept.Get() ) ), "a" );
    EXPECT_DEATH( sipsnHeaderCallIdCreate( Str( "" ).Get() ), "\"sipsnCallIdOk\\( callId \\)\"" );
    EXPECT_DEATH( sipsnHeaderCallIdSetCallId( hdr.Slot(), Str( "a b" ).Get() ), "\"sipsnCallIdOk\\( callId \\)\"" );
    EXPECT_DEATH( sipsnHeaderCallIdTryDecode( Field( "Via", {} ).Get() ),
                  "\"sipsnMessageHeaderNameEquals\\( header, sipsn___PbsCallId \\)\"" );
}

} // namespace
