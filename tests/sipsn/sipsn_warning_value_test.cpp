// Warning values: texts, what is ignored, default texts.
#include "value_text.h"

namespace {

auto Warning( std::string_view text ) { return Decoded< sipsn___WarningValueTryDecode >( text ); }

TEST( SipsnWarningValue, Wire )
{
    CheckWire< sipsn___WarningValueTryDecode, sipsn___WarningValueEncode >( {
        { "399 192.0.2.1 \"Miscellaneous warning\"", "399 192.0.2.1 \"Miscellaneous warning\"" },
        { "307\tisi.edu:5060  \"a \\\"b\\\" c\"", "307 isi.edu:5060 \"a \\\"b\\\" c\"" },
        { "301 [2001:DB8::1]:5061 \"\"", "301 [2001:DB8::1]:5061 \"\"" },
        { "301 _nobody+ \"x\"", "301 _nobody+ \"x\"" },
        { "399 a \"b\"c;d, 301 \"", "399 a \"b\"" },
        { "", nullptr },
        { "399", nullptr },
        { "399 a", nullptr },
        { "399 \"b\"", nullptr },
        { "399a \"b\"", nullptr },
        { "399 a\"b\"", nullptr },
        { "399 a b", nullptr },
        { "399 a+b \"c\"", nullptr }, // what begins as a host name is one
        { "399 a \"b", nullptr },
        { "39 a \"b\"", nullptr },
        { "3999 a \"b\"", nullptr },
        { " 399 a \"b\"", nullptr },
    } );
}

TEST( SipsnWarningValue, ASmallCodeLosesItsZerosOnTheWire )
{
    auto wv = Warning( "042 a \"b\"" );
    EXPECT_EQ( sipsnWarningValueWarnCode( wv.Get() ), 42 );
    EXPECT_EQ( Take( sipsnWarningValueToString( wv.Get() ) ), "42 a \"b\"" );
}

TEST( SipsnWarningValue, TheDefaultTextIsThatOfTheCode )
{
    pb::Ref wv{ sipsnWarningValueCreate( 399, Str( "192.0.2.1" ).Get() ) };
    EXPECT_EQ( Take( sipsnWarningValueWarnText( wv.Get() ) ), "Miscellaneous warning" );
    pb::Ref copy{ sipsnWarningValueRetain( wv.Get() ) };
    sipsnWarningValueSetWarnCode( copy.Slot(), 42, false );
    EXPECT_EQ( Take( sipsnWarningValueToString( copy.Get() ) ), "42 192.0.2.1 \"Miscellaneous warning\"" );
    sipsnWarningValueSetWarnCode( copy.Slot(), 42, true );
    sipsnWarningValueSetWarnAgent( copy.Slot(), Str( "me" ).Get() );
    EXPECT_EQ( Take( sipsnWarningValueToString( copy.Get() ) ), "42 me \"Warning \\\"042\\\"\"" );
    sipsnWarningValueSetWarnText( copy.Slot(), Str( "" ).Get() );
    EXPECT_EQ( Take( sipsnWarningValueToString( copy.Get() ) ), "42 me \"\"" );
    EXPECT_EQ( Take( sipsnWarningValueToString( wv.Get() ) ), "399 192.0.2.1 \"Miscellaneous warning\"" );
    EXPECT_LT( sipsnWarningValueCompare( copy.Get(), wv.Get() ), 0 ) << "codes compare as numbers";
}

TEST( SipsnWarningValue, ChecksItsPartsInOrder )
{
    EXPECT_DEATH( sipsnWarningValueCreate( 1000, nullptr ), "\"sipsnWarnCodeOk\\( warnCode \\)\"" );
    EXPECT_DEATH( sipsnWarningValueCreate( 1, Str( "" ).Get() ), "\"sipsnWarnAgentOk\\( warnAgent \\)\"" );
    EXPECT_DEATH( sipsnWarningValueCreateWithWarnText( 1, Str( "a" ).Get(), Str( "a\n" ).Get() ),
                  "\"sipsnWarnTextOk\\( warnText \\)\"" );
}

} // namespace
