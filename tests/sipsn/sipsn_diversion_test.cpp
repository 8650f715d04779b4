// Diversions: the parameters and what stays generic, stored case, contents that are no tokens, members.
#include "value_text.h"

namespace {

auto Diversion( std::string_view text ) { return Decoded< sipsn___DiversionTryDecode >( text ); }

TEST( SipsnDiversion, Wire )
{
    CheckWire< sipsn___DiversionTryDecode, sipsn___DiversionEncode >( {
        { "<sip:h>;Reason=User-Busy", "<sip:h>;reason=user-busy" },
        { "Bob <tel:+1> ; z ; SCREEN = Yes ; privacy=\"Full\" ; limit=10 ; counter=5 ; reason=no-answer",
          "\"Bob\" <tel:+1>;reason=no-answer;counter=5;limit=10;privacy=full;screen=yes;z" },
        { "sip:h;counter=007", nullptr },
        { "sip:h;counter=07", "<sip:h>;counter=7" },
        { "<sip:h>;limit=0;limit=99", "<sip:h>;limit=99" },
        // Refused by their member, kept as generic parameters.
        { "<sip:h>;counter;limit=x;reason", "<sip:h>;counter;limit=x;reason" },
        { "<sip:h>;counter=-1;screens=no", "<sip:h>;counter=-1;screens=no" },
        { "<sip:h>;privacy=[::1]", "<sip:h>;privacy=[::1]" },
        { "", nullptr },
        { "Bob", nullptr },
        { "<sip:h>;counter=100", nullptr },
        { "<sip:h>;limit=1x", nullptr },
        { "<sip:h>;reason=a b", nullptr },
        { "<sip:h>;screen=\"a\"b", nullptr },
        { "<sip:h>;", nullptr },
        { "<sip:h>,<sip:i>", nullptr },
    } );
}

TEST( SipsnDiversion, WritesContentsAsTheyAreStored )
{
    auto diversion = Diversion( "<sip:h>;reason=\"Out \\\"of\\\" Office\";privacy=\"\";screen=\"a;b\"" );
    EXPECT_EQ( Take( sipsnDiversionReason( diversion.Get() ) ), "out \"of\" office" );
    EXPECT_TRUE( sipsnDiversionHasPrivacy( diversion.Get() ) );
    EXPECT_EQ( Take( sipsnDiversionToString( diversion.Get() ) ),
               "<sip:h>;reason=out \"of\" office;privacy=;screen=a;b" );
}

TEST( SipsnDiversion, ComparesMemberByMember )
{
    const char *ascending[] = {
        "<sip:h>;z",         "<sip:h>;screen=a", "<sip:h>;privacy=a",  "<sip:h>;limit=2", "<sip:h>;limit=10",
        "<sip:h>;counter=1", "<sip:h>;reason=a", "<sip:h>;reason=b;z", "A <sip:h>",       "<sip:i>",
    };
    for( size_t i = 1; i < std::size( ascending ); ++i )
        EXPECT_LT( sipsnDiversionCompare( Diversion( ascending[ i - 1 ] ).Get(), Diversion( ascending[ i ] ).Get() ),
                   0 )
            << ascending[ i ];
}

TEST( SipsnDiversion, ChangesItsOwnCopyOnly )
{
    const char *text      = "\"A\" <sip:h>;reason=r;counter=1;limit=2;privacy=p;screen=s;z";
    auto        diversion = Diversion( text );
    pb::Ref     copy{ sipsnDiversionRetain( diversion.Get() ) };
    sipsnDiversionDelDisplayName( copy.Slot() );
    sipsnDiversionSetReason( copy.Slot(), Str( "Time-of-Day" ).Get() );
    sipsnDiversionDelCounter( copy.Slot() );
    sipsnDiversionSetLimit( copy.Slot(), 99 );
    sipsnDiversionSetPrivacy( copy.Slot(), Str( "OFF" ).Get() );
    sipsnDiversionDelScreen( copy.Slot() );
    sipsnDiversionSetGenericParams( copy.Slot(),
                                    Decoded< sipsn___GenericParamsTryDecode >( ";limit=x;screen=x" ).Get() );
    EXPECT_EQ( Take( sipsnDiversionToString( copy.Get() ) ),
               "<sip:h>;reason=time-of-day;limit=99;privacy=off;screen=x" );
    sipsnDiversionSetScreen( copy.Slot(), Str( "No" ).Get() );
    EXPECT_EQ( Take( sipsnDiversionToString( copy.Get() ) ),
               "<sip:h>;reason=time-of-day;limit=99;privacy=off;screen=no" );
    EXPECT_EQ( sipsnDiversionCounter( copy.Get() ), -1 );
    EXPECT_EQ( Take( sipsnDiversionToString( diversion.Get() ) ), text );
}

TEST( SipsnDiversion, RefusesWhatIsInvalid )
{
    auto    iri = Str( "sip:h" ), lineEnd = Str( "\n" );
    pb::Ref diversion{ sipsnDiversionCreateWithDisplayName( iri.Get(), Str( "A" ).Get() ) };
    EXPECT_EQ( Take( sipsnDiversionToString( diversion.Get() ) ), "\"A\" <sip:h>" );
    EXPECT_DEATH( sipsnDiversionCreate( lineEnd.Get() ), "\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnDiversionCreateWithDisplayName( iri.Get(), lineEnd.Get() ),
                  "\"sipsnDisplayNameOk\\( displayName \\)\"" );
    EXPECT_DEATH( sipsnDiversionSetReason( diversion.Slot(), nullptr ), "\"diversionReason\"" );
    EXPECT_DEATH( sipsnDiversionSetCounter( diversion.Slot(), 100 ),
                  "\"sipsnDiversionCounterOk\\( diversionCounter \\)\"" );
    EXPECT_DEATH( sipsnDiversionSetLimit( diversion.Slot(), -1 ), "\"sipsnDiversionLimitOk\\( diversionLimit \\)\"" );
    EXPECT_DEATH( sipsnDiversionSetPrivacy( diversion.Slot(), nullptr ), "\"diversionPrivacy\"" );
    EXPECT_DEATH( sipsnDiversionSetScreen( diversion.Slot(), nullptr ), "\"diversionScreen\"" );
}

} // namespace
