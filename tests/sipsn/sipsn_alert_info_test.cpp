// Alert-Info and Error-Info values, which are alike: texts, members.
#include "value_text.h"

namespace {

template< auto tryDecode, auto encode > void CheckInfoWire()
{
    CheckWire< tryDecode, encode >( {
        { "<sip:192.0.2.1>;x", "<sip:192.0.2.1>;x" },
        { " <http://a.example/s.wav> ; B=\"c\" ; a=[::1]", "<http://a.example/s.wav>;a=[::1];b=\"c\"" },
        { "<sip:a>;purpose=ICON", "<sip:a>;purpose=ICON" },
        { "<sip:a>;a=1;A=2", "<sip:a>;a=2" },
        { "", nullptr },
        { "sip:a", nullptr },
        { "\"Bob\" <sip:a>", nullptr },
        { "<sip:a", nullptr },
        { "<sip:a>x", nullptr },
        { "<sip:a>;", nullptr },
        { "<sip:a>;a=;b", nullptr },
        { "<sip:a>;a=[::1]x", nullptr },
        { "<sip:a>;a=b\"c\"", nullptr },
    } );
}

TEST( SipsnAlertInfo, Wire ) { CheckInfoWire< sipsn___AlertInfoTryDecode, sipsn___AlertInfoEncode >(); }
TEST( SipsnErrorInfo, Wire ) { CheckInfoWire< sipsn___ErrorInfoTryDecode, sipsn___ErrorInfoEncode >(); }

TEST( SipsnAlertInfo, ChangesItsOwnCopyOnly )
{
    auto    alertInfo = Decoded< sipsn___AlertInfoTryDecode >( "<sip:a>;a" );
    pb::Ref copy{ sipsnAlertInfoRetain( alertInfo.Get() ) };
    sipsnAlertInfoSetIri( copy.Slot(), Str( "http://b" ).Get() );
    sipsnAlertInfoSetGenericParams( copy.Slot(), Decoded< sipsn___GenericParamsTryDecode >( ";b" ).Get() );
    EXPECT_EQ( Take( sipsnAlertInfoToString( copy.Get() ) ), "<http://b>;b" );
    EXPECT_EQ( Take( sipsnAlertInfoToString( alertInfo.Get() ) ), "<sip:a>;a" );
    EXPECT_DEATH( sipsnAlertInfoCreate( Str( "" ).Get() ), "\"sipsnIriOk\\( iri \\)\"" );
}

TEST( SipsnErrorInfo, ChangesItsOwnCopyOnly )
{
    pb::Ref errorInfo{ sipsnErrorInfoCreate( Str( "sip:a" ).Get() ) };
    pb::Ref copy{ sipsnErrorInfoRetain( errorInfo.Get() ) };
    sipsnErrorInfoSetGenericParams( copy.Slot(), Decoded< sipsn___GenericParamsTryDecode >( ";b" ).Get() );
    EXPECT_EQ( Take( sipsnErrorInfoToString( copy.Get() ) ), "<sip:a>;b" );
    EXPECT_EQ( Take( sipsnErrorInfoToString( errorInfo.Get() ) ), "<sip:a>" );
    EXPECT_DEATH( sipsnErrorInfoSetIri( copy.Slot(), Str( "a" ).Get() ), "\"sipsnIriOk\\( iri \\)\"" );
}

} // namespace
