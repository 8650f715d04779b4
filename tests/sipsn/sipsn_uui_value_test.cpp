// User-to-User values: texts, data that is no token, members.
#include "value_text.h"

namespace {

auto Uui( std::string_view text ) { return Decoded< sipsn___UuiValueTryDecode >( text ); }

TEST( SipsnUuiValue, Wire )
{
    CheckWire< sipsn___UuiValueTryDecode, sipsn___UuiValueEncode >( {
        { "abc123;encoding=hex;purpose=isdn-uui", "abc123;encoding=hex;purpose=isdn-uui" },
        { "A ; CONTENT=Isdn ; ENCODING = Hex ; a ; Purpose=P", "A;encoding=Hex;purpose=P;content=Isdn;a" },
        { "A;encoding=\"hex\"", "A;encoding=\"hex\"" },
        { "A;content", "A;content" },
        { "", nullptr },
        { "\"quoted\"", nullptr },
        { "\"quoted\";encoding=hex", nullptr },
        { ";encoding=hex", nullptr },
        { "A;encoding=", nullptr },
        { "A;encoding=a\"b\"", nullptr },
        { "A ", nullptr },
    } );
}

TEST( SipsnUuiValue, DataThatIsNoTokenIsLeftOut )
{
    auto value = Uui( "A;encoding=hex" );
    sipsnUuiValueSetUuiData( value.Slot(), Str( "two words" ).Get() );
    EXPECT_EQ( Take( sipsnUuiValueUuiData( value.Get() ) ), "two words" );
    EXPECT_EQ( Take( sipsnUuiValueToString( value.Get() ) ), ";encoding=hex" );
    sipsnUuiValueSetUuiData( value.Slot(), Str( "" ).Get() );
    EXPECT_EQ( Take( sipsnUuiValueToString( value.Get() ) ), ";encoding=hex" );
    EXPECT_DEATH( sipsnUuiValueCreate( Str( "\r" ).Get() ),
                  "\"sipsnTokenOk\\( uuiData \\) \\|\\| sipsnQuotableStringOk\\( uuiData \\)\"" );
}

TEST( SipsnUuiValue, ChangesItsOwnCopyOnly )
{
    auto    value = Uui( "A;encoding=a;purpose=b;content=c;d" );
    pb::Ref copy{ sipsnUuiValueRetain( value.Get() ) };
    sipsnUuiValueSetEncoding( copy.Slot(), Str( "x" ).Get() );
    sipsnUuiValueDelPurpose( copy.Slot() );
    sipsnUuiValueSetContent( copy.Slot(), Str( "Z" ).Get() );
    sipsnUuiValueSetGenericParams( copy.Slot(),
                                   Decoded< sipsn___GenericParamsTryDecode >( ";content=1;purpose=2" ).Get() );
    EXPECT_EQ( Take( sipsnUuiValueToString( copy.Get() ) ), "A;encoding=x;content=Z;purpose=2" );
    EXPECT_FALSE( sipsnUuiValueHasPurpose( copy.Get() ) );
    sipsnUuiValueSetPurpose( copy.Slot(), Str( "y" ).Get() );
    sipsnUuiValueDelContent( copy.Slot() );
    sipsnUuiValueDelEncoding( copy.Slot() );
    EXPECT_EQ( Take( sipsnUuiValueToString( copy.Get() ) ), "A;purpose=y;content=1" );
    EXPECT_EQ( Take( sipsnUuiValueToString( value.Get() ) ), "A;encoding=a;purpose=b;content=c;d" );
    EXPECT_LT( sipsnUuiValueCompare( Uui( "A;purpose=z" ).Get(), Uui( "A;encoding=a" ).Get() ), 0 );
    EXPECT_DEATH( sipsnUuiValueSetContent( copy.Slot(), Str( "" ).Get() ), "\"sipsnTokenOk\\( content \\)\"" );
}

} // namespace
