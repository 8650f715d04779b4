// Call-Info values: texts, the purpose, members.
#include "value_text.h"

namespace {

auto CallInfo( std::string_view text ) { return Decoded< sipsn___CallInfoTryDecode >( text ); }

TEST( SipsnCallInfo, Wire )
{
    CheckWire< sipsn___CallInfoTryDecode, sipsn___CallInfoEncode >( {
        { "<sip:192.0.2.5>;purpose=icon", "<sip:192.0.2.5>;purpose=icon" },
        { " <http://a.example/p?q=1> ; a=\"b\" ; Purpose = ICON", "<http://a.example/p?q=1>;purpose=icon;a=\"b\"" },
        { "<sip:b\xc3\xbc@a>", "<sip:b%C3%BC@a>" },
        { "<sip:a>;purpose=\"x\"", "<sip:a>;purpose=\"x\"" },
        { "<sip:a>;purpose", "<sip:a>;purpose" },
        { "<sip:a>;purposes=x", "<sip:a>;purposes=x" },
        { "", nullptr },
        { "sip:a", nullptr },
        { "\"Bob\" <sip:a>", nullptr },
        { "<a>", nullptr },
        { "<sip:a", nullptr },
        { "<sip:a b>", nullptr },
        { "<sip:a>x", nullptr },
        { "<sip:a>;", nullptr },
        { "<sip:a>;purpose=a\"b\"", nullptr },
        { "<sip:a>,<sip:b>", nullptr },
    } );
}

TEST( SipsnCallInfo, ChangesItsOwnCopyOnly )
{
    auto    callInfo = CallInfo( "<sip:a>;purpose=card;a" );
    pb::Ref copy{ sipsnCallInfoRetain( callInfo.Get() ) };
    sipsnCallInfoSetIri( copy.Slot(), Str( "http://b" ).Get() );
    sipsnCallInfoSetPurpose( copy.Slot(), Str( "INFO" ).Get() );
    sipsnCallInfoSetGenericParams( copy.Slot(), Decoded< sipsn___GenericParamsTryDecode >( ";purpose=x;b" ).Get() );
    EXPECT_EQ( Take( sipsnCallInfoToString( copy.Get() ) ), "<http://b>;purpose=info;b" );
    sipsnCallInfoDelPurpose( copy.Slot() );
    EXPECT_EQ( Take( sipsnCallInfoToString( copy.Get() ) ), "<http://b>;b;purpose=x" );
    EXPECT_EQ( Take( sipsnCallInfoToString( callInfo.Get() ) ), "<sip:a>;purpose=card;a" );
    EXPECT_LT( sipsnCallInfoCompare( CallInfo( "<sip:a>;z" ).Get(), callInfo.Get() ), 0 ) << "no purpose comes first";
    EXPECT_DEATH( sipsnCallInfoSetPurpose( copy.Slot(), Str( "a b" ).Get() ), "\"sipsnPurposeOk\\( purpose \\)\"" );
    EXPECT_DEATH( sipsnCallInfoCreate( Str( "no iri" ).Get() ), "\"sipsnIriOk\\( iri \\)\"" );
}

} // namespace
