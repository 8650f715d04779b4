// Messages and fragments in memory: kinds of start line, setters and what they require, headers, bodies, copy on write.
#include "message_text.h"

#include <gmock/gmock.h>

namespace {

pb::Ref< SipsnVersion > Sip20() { return pb::Ref{ sipsnVersionCreateSip20() }; }

pb::Ref< SipsnMessageFragment > Request()
{
    return pb::Ref{ sipsnMessageFragmentCreateRequestCstr( Sip20().Get(), "INVITE", -1, Str( "sip:a" ).Get() ) };
}

pb::Ref< SipsnMessageFragment > Response()
{
    return pb::Ref{ sipsnMessageFragmentCreateResponse( Sip20().Get(), 486 ) };
}

std::string Wire( SipsnMessageFragment *frag ) { return Take( sipsnMessageFragmentEncode( frag ) ); }

TEST( SipsnMessageFragment, SettingAStartLineReplacesTheOther )
{
    pb::Ref frag = Response();
    sipsnMessageFragmentSetHeader( frag.Slot(), pb::Ref{ sipsnMessageHeaderCreateCstr( "Q", -1 ) }.Get() );
    sipsnMessageFragmentSetBody( frag.Slot(), Bytes( "b" ).Get() );
    EXPECT_EQ( Take( sipsnMessageFragmentResponseReasonPhrase( frag.Get() ) ), "Busy here" );

    sipsnMessageFragmentSetRequestWcstr( frag.Slot(), Sip20().Get(), L"ACK", -1, Str( "sip:b" ).Get() );
    EXPECT_TRUE( sipsnMessageFragmentIsRequest( frag.Get() ) );
    EXPECT_FALSE( sipsnMessageFragmentIsResponse( frag.Get() ) );
    EXPECT_EQ( sipsnMessageFragmentResponseStatusCode( frag.Get() ), -1 );
    EXPECT_EQ( sipsnMessageFragmentResponseReasonPhrase( frag.Get() ), nullptr );
    EXPECT_TRUE( sipsnMessageFragmentHasHeaderCstr( frag.Get(), "q", -1 ) );
    EXPECT_TRUE( sipsnMessageFragmentHasBody( frag.Get() ) );

    sipsnMessageFragmentSetResponseWithReasonPhraseCstr( frag.Slot(), Sip20().Get(), 200, "Fine", -1 );
    EXPECT_TRUE( sipsnMessageFragmentIsResponse( frag.Get() ) );
    EXPECT_FALSE( sipsnMessageFragmentIsRequest( frag.Get() ) );
    EXPECT_EQ( sipsnMessageFragmentRequestMethod( frag.Get() ), nullptr );
    EXPECT_EQ( sipsnMessageFragmentRequestIri( frag.Get() ), nullptr );

    sipsnMessageFragmentSetNeitherRequestNorResponse( frag.Slot() );
    EXPECT_TRUE( sipsnMessageFragmentIsNeitherRequestNorResponse( frag.Get() ) );
    EXPECT_EQ( Wire( frag.Get() ), "Content-Length: 1\r\n\r\nb" );
}

TEST( SipsnMessageFragment, MembersOfTheStartLineAreReplacedOneByOne )
{
    pb::Ref request = Request();
    sipsnMessageFragmentSetRequestMethodCstr( request.Slot(), "BYEx", 3 );
    sipsnMessageFragmentSetRequestIriWcstr( request.Slot(), L"sip:\u00fc", -1 );
    EXPECT_EQ( Wire( request.Get() ), "BYE sip:%C3%BC SIP/2.0\r\nContent-Length: 0\r\n\r\n" );

    pb::Ref response = Response();
    sipsnMessageFragmentSetResponseStatusCode( response.Slot(), 487, false );
    EXPECT_EQ( Wire( response.Get() ), "SIP/2.0 487 Busy here\r\nContent-Length: 0\r\n\r\n" );
    sipsnMessageFragmentSetResponseStatusCode( response.Slot(), 487, true );
    EXPECT_EQ( Wire( response.Get() ), "SIP/2.0 487 Request terminated\r\nContent-Length: 0\r\n\r\n" );
    sipsnMessageFragmentSetResponseReasonPhraseWcstr( response.Slot(), L"", -1 );
    sipsnMessageFragmentSetVersion( response.Slot(),
                                    pb::Ref{ sipsnVersionCreate( Str( "x" ).Get(), Str( "Y" ).Get() ) }.Get() );
    EXPECT_EQ( Wire( response.Get() ), "X/y 487 \r\nContent-Length: 0\r\n\r\n" );
}

TEST( SipsnMessageFragment, HeadersAreReplacedWholeAndFoundUnderEveryForm )
{
    pb::Ref frag = Fragment( "v: a\r\nVia: b\r\nTo: c\r\n\r\n" );
    EXPECT_EQ( Lines( frag.Get(), "VIA" ), "a|b" );
    pb::Ref via{ sipsnMessageHeaderCreateCstr( "v", -1 ) };
    sipsnMessageHeaderAppendLineCstr( via.Slot(), "d", -1 );
    sipsnMessageFragmentSetHeader( frag.Slot(), via.Get() );
    EXPECT_EQ( Lines( frag.Get(), "Via" ), "d" );

    pb::Ref before{ sipsnMessageFragmentRetain( frag.Get() ) };
    sipsnMessageFragmentDelHeaderCstr( frag.Slot(), "Absent", -1 );
    EXPECT_EQ( Wire( frag.Get() ), Wire( before.Get() ) );
    sipsnMessageFragmentDelHeaderWcstr( frag.Slot(), L"t", -1 );
    EXPECT_EQ( Lines( frag.Get(), "To" ), "(null)" );
    EXPECT_EQ( Lines( before.Get(), "To" ), "c" );
    EXPECT_EQ( pbVectorLength( pb::Ref{ sipsnMessageFragmentHeadersVector( before.Get() ) }.Get() ), 2 );
    sipsnMessageFragmentClearHeaders( before.Slot() );
    EXPECT_EQ( Wire( before.Get() ), "Content-Length: 0\r\n\r\n" );
}

TEST( SipsnMessageFragment, EncodesOneTrueLength )
{
    pb::Ref frag = Fragment( "A: 1\r\nl: 4\r\nl: 4\r\nZ: 2\r\n\r\nbody" );
    EXPECT_EQ( Wire( frag.Get() ), "Accept-Contact: 1\r\nContent-Length: 4\r\nZ: 2\r\n\r\nbody" );
    pb::Ref length{ sipsnMessageFragmentHeaderContentLength( frag.Get() ) };
    EXPECT_TRUE( pbStringEqualsCstr( pb::Ref{ sipsnMessageHeaderName( length.Get() ) }.Get(), "Content-Length", -1 ) );
    sipsnMessageFragmentSetBody( frag.Slot(), Bytes( std::string( 1000, 'x' ) ).Get() );
    EXPECT_THAT( Wire( frag.Get() ), testing::HasSubstr( "Content-Length: 1000\r\n" ) );
    sipsnMessageFragmentSetBody( frag.Slot(), Bytes( "" ).Get() );
    EXPECT_TRUE( sipsnMessageFragmentHasBody( frag.Get() ) );
    EXPECT_EQ( Wire( frag.Get() ), "Accept-Contact: 1\r\nContent-Length: 0\r\nZ: 2\r\n\r\n" );
    sipsnMessageFragmentDelBody( frag.Slot() );
    EXPECT_FALSE( sipsnMessageFragmentHasBody( frag.Get() ) );
}

TEST( SipsnMessageFragment, EncodesTextOfEveryLengthAndAlphabet )
{
    for( const std::string unit : { "a", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x93\x9e" } )
        for( int count : { 0, 1, 7, 8, 9, 15, 16, 17, 600 } ) {
            std::string value;
            for( int at = 0; at < count; ++at ) value += unit;
            pb::Ref header{ sipsnMessageHeaderCreateCstr( "Subject", -1 ) };
            sipsnMessageHeaderAppendLine( header.Slot(), Str( value ).Get() );
            pb::Ref frag{ sipsnMessageFragmentCreate() };
            sipsnMessageFragmentSetHeader( frag.Slot(), header.Get() );
            sipsnMessageFragmentSetBody( frag.Slot(), Bytes( "\xff" ).Get() );
            EXPECT_EQ( Wire( frag.Get() ), "Subject: " + value + "\r\nContent-Length: 1\r\n\r\n\xff" );
        }
}

TEST( SipsnMessage, SharesItsFragmentUntilOneOfThemChanges )
{
    pb::Ref frag = Request();
    pb::Ref msg{ sipsnMessageCreate( frag.Get() ) };
    EXPECT_EQ( pb::Ref{ sipsnMessageFragment( msg.Get() ) }.Get(), frag.Get() );

    pb::Ref copy{ sipsnMessageRetain( msg.Get() ) };
    sipsnMessageSetRequestMethodCstr( copy.Slot(), "BYE", -1 );
    sipsnMessageSetBody( copy.Slot(), Bytes( "x" ).Get() );
    EXPECT_NE( copy.Get(), msg.Get() );
    EXPECT_EQ( Take( sipsnMessageRequestMethod( msg.Get() ) ), "INVITE" );
    EXPECT_EQ( Take( sipsnMessageRequestMethod( copy.Get() ) ), "BYE" );
    EXPECT_FALSE( sipsnMessageFragmentHasBody( frag.Get() ) );

    SipsnMessage *alone = copy.Get();
    sipsnMessageDelBody( copy.Slot() );
    EXPECT_EQ( copy.Get(), alone ) << "an unshared message is changed in place";
}

TEST( SipsnMessage, IsCreatedAndHasHeaders )
{
    pb::Ref msg{ sipsnMessageCreateResponse( Sip20().Get(), 486 ) };
    EXPECT_EQ( Take( sipsnMessageResponseReasonPhrase( msg.Get() ) ), "Busy here" );
    sipsnMessageSetResponse( msg.Slot(), Sip20().Get(), 180 );
    EXPECT_EQ( Take( sipsnMessageResponseReasonPhrase( msg.Get() ) ), "Ringing" );
    sipsnMessageSetHeader( msg.Slot(), pb::Ref{ sipsnMessageHeaderCreateCstr( "Q", -1 ) }.Get() );
    EXPECT_EQ( pbVectorLength( pb::Ref{ sipsnMessageHeadersVector( msg.Get() ) }.Get() ), 1 );
}

TEST( SipsnMessageDeathTest, SettersWantTheRightKindAndValidValues )
{
    pb::Ref empty{ sipsnMessageFragmentCreate() };
    pb::Ref request = Request();
    pb::Ref version = Sip20();
    EXPECT_DEATH(
        sipsnMessageCreate( empty.Get() ),
        "\"sipsnMessageFragmentIsRequest\\( fragment \\) \\|\\| sipsnMessageFragmentIsResponse\\( fragment \\)\"" );
    EXPECT_DEATH( sipsnMessageFragmentSetRequestIriCstr( empty.Slot(), "sip:a", -1 ),
                  "\"\\(\\*frag\\)->requestMethod\"" );
    EXPECT_DEATH( sipsnMessageFragmentSetRequestMethodCstr( empty.Slot(), "A", -1 ),
                  "\"\\(\\*frag\\)->requestMethod\"" );
    EXPECT_DEATH( sipsnMessageFragmentSetResponseStatusCode( request.Slot(), 200, true ),
                  "\"\\(\\*frag\\)->responseStatusCode != SIPSN_STATUS_CODE_INVALID\"" );
    EXPECT_DEATH( sipsnMessageFragmentSetResponseReasonPhraseCstr( request.Slot(), "", -1 ),
                  "\"\\(\\*frag\\)->responseReasonPhrase\"" );
    EXPECT_DEATH( sipsnMessageFragmentSetVersion( empty.Slot(), version.Get() ), "\"\\(\\*frag\\)->version\"" );
    EXPECT_DEATH( sipsnMessageFragmentCreateResponse( version.Get(), 99 ), "\"sipsnStatusCodeOk\\( sc \\)\"" );
    EXPECT_DEATH( sipsnMessageFragmentSetHeader( request.Slot(), nullptr ), "\"header\"" );
    for( const char *known : { "Contact(", "Contact:", "History-Info==", "Flow-Timer   " } ) // but for what follows
        EXPECT_DEATH( sipsnMessageFragmentHasHeaderCstr( request.Get(), known, -1 ),
                      "\"sipsnMessageHeaderNameOk\\( name \\)\"" );
    EXPECT_DEATH( sipsnMessageFragmentTryDecode( nullptr ), "\"buf\"" );
}

} // namespace
