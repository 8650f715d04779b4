// Contacts: the forms of an address, the typed parameters and what stays generic, members.
#include "value_text.h"

namespace {

auto Contact( std::string_view text ) { return Decoded< sipsn___ContactTryDecode >( text ); }

TEST( SipsnContact, Wire )
{
    CheckWire< sipsn___ContactTryDecode, sipsn___ContactEncode >( {
        // The address.
        { "<sip:192.0.2.4>", "<sip:192.0.2.4>" },
        { "sip:192.0.2.1;expires=0", "<sip:192.0.2.1>;expires=0" },
        { "sip:a@h?x=y;q=1", "<sip:a@h?x=y>;q=1.000" },
        { "<sip:a@h;transport=tcp?x=a,b>;q=0", "<sip:a@h;transport=tcp?x=a,b>;q=0.000" },
        { " < sip:h>", nullptr },
        { "\t<sip:h> ; q=1", "<sip:h>;q=1.000" },
        { "Bob<sip:b@h>", "\"Bob\" <sip:b@h>" },
        { "Bob  van \t Dyk <sip:b@h>", "\"Bob van Dyk\" <sip:b@h>" },
        { "\"a \\\"b\\\" <c>;q=1\" <sip:h>", "\"a \\\"b\\\" <c>;q=1\" <sip:h>" },
        { "\"\" <sip:h>", "\"\" <sip:h>" },
        { "<sip:%C3%BC@h>", "<sip:%C3%BC@h>" },
        { "", nullptr },
        { "*", nullptr },
        { "Bob", nullptr },
        { "Bob sip:b@h", nullptr },
        { "\"Bob\" sip:b@h", nullptr },
        { "<>", nullptr },
        { "<sip:h", nullptr },
        { "<<sip:h>>", nullptr },
        { "<sip:h>x", nullptr },
        { "<sip:%FF@h>,", nullptr },
        // The members, in whatever order and letter case.
        { "<sip:192.0.2.4>;expires=60;Q=0.5", "<sip:192.0.2.4>;q=0.500;expires=60" },
        { "<sip:h>;+SIP.SRS;+sip.src;+sip.Instance=\"<urn:uuid:0>\";np=1;mp=2.1;rc=3.10.2;z;expires=7;q=1",
          "<sip:h>;q=1.000;expires=7;rc=3.10.2;mp=2.1;np=1;+sip.instance=\"<urn:uuid:0>\";+sip.src;+sip.srs;z" },
        { "<sip:h> ; rc = 1 ; RC = 2", "<sip:h>;rc=2" },
        { "<sip:h>;expires=9223372036854775807", "<sip:h>;expires=9223372036854775807" },
        { "<sip:h>;+sip.srs", "<sip:h>;+sip.srs" },
        { "<sip:h>;b=\"x\";a;B=y", "<sip:h>;a;b=y" },
        // Refused by their member, kept as generic parameters.
        { "<sip:h>;quality=1;expiresx=1;rcx;+sip.instances", "<sip:h>;+sip.instances;expiresx=1;quality=1;rcx" },
        { "<sip:h>;q;expires;rc;mp;np", "<sip:h>;expires;mp;np;q;rc" },
        { "<sip:h>;q=2;expires=x;rc=a", "<sip:h>;expires=x;q=2;rc=a" },
        { "<sip:h>;expires=9223372036854775808", "<sip:h>;expires=9223372036854775808" },
        { "<sip:h>;+sip.instance=abc", "<sip:h>;+sip.instance=abc" },
        { "<sip:h>;+sip.instance=\"abc\"", "<sip:h>;+sip.instance=\"abc\"" },
        { "<sip:h>;+sip.instance=\"<urn:a>b\"", "<sip:h>;+sip.instance=\"<urn:a>b\"" },
        { "<sip:h>;+sip.instance=<urn:a>", nullptr },
        // Read by their member, but not up to the next semicolon.
        { "<sip:h>;q=0.5x", nullptr },
        { "<sip:h>;q=1.001", nullptr },
        { "<sip:h>;expires=60x", nullptr },
        { "<sip:h>;rc=1.", nullptr },
        { "<sip:h>;+sip.instance=\"<urn:a>\"x", nullptr },
        { "<sip:h>;+sip.src=1", nullptr },
        { "<sip:h>;+sip.srs = 1", nullptr },
        { "<sip:h>;+sip.srcx", nullptr },
        { "<sip:h>;", nullptr },
        { "<sip:h>;q=1;", nullptr },
        { "<sip:h>;q=1,<sip:i>", nullptr },
        { "<sip:h>;a=", nullptr },
    } );
}

TEST( SipsnContact, HoldsTheAddressAsAnIri )
{
    auto contact = Contact( "<sip:%C3%BC@h>" );
    EXPECT_EQ( Take( sipsnContactIri( contact.Get() ) ), "sip:\xc3\xbc@h" );
    EXPECT_FALSE( sipsnContactHasDisplayName( contact.Get() ) );
    EXPECT_EQ( Take( sipsnContactDisplayName( Contact( "\"\" <sip:h>" ).Get() ) ), "" );
}

TEST( SipsnContact, AMemberHidesTheParameterOfItsName )
{
    auto contact = Contact( "<sip:h>;expires=x;q=2;+sip.instance=a;expires=1;z" );
    EXPECT_EQ( sipsnContactExpires( contact.Get() ), 1 );
    EXPECT_EQ( Take( sipsnContactToString( contact.Get() ) ), "<sip:h>;expires=1;+sip.instance=a;q=2;z" );
    sipsnContactSetQvalue( contact.Slot(), 1 );
    sipsnContactSetSipInstance( contact.Slot(), Str( "<urn:a>" ).Get() );
    EXPECT_EQ( Take( sipsnContactToString( contact.Get() ) ), "<sip:h>;q=0.001;expires=1;+sip.instance=\"<urn:a>\";z" );
    sipsnContactDelExpires( contact.Slot() );
    EXPECT_EQ( Take( sipsnContactToString( contact.Get() ) ), "<sip:h>;q=0.001;+sip.instance=\"<urn:a>\";expires=x;z" );
}

TEST( SipsnContact, ComparesTheGenericParametersLastAndNoFlags )
{
    const auto compare = []( const char *a, const char *b ) {
        return sipsnContactCompare( Contact( a ).Get(), Contact( b ).Get() );
    };
    EXPECT_EQ( compare( "<sip:h>;+sip.src", "<sip:h>;+sip.srs" ), 0 );
    EXPECT_LT( compare( "B <sip:a>", "A <sip:b>" ), 0 );
    EXPECT_LT( compare( "<sip:h>;q=1", "A <sip:h>" ), 0 );
    EXPECT_LT( compare( "<sip:h>;expires=9", "<sip:h>;q=0" ), 0 );
    EXPECT_LT( compare( "<sip:h>;expires=9", "<sip:h>;expires=10" ), 0 );
    EXPECT_LT( compare( "<sip:h>;mp=9", "<sip:h>;rc=1" ), 0 );
    EXPECT_LT( compare( "<sip:h>;np=9", "<sip:h>;mp=1" ), 0 );
    EXPECT_LT( compare( "<sip:h>;+sip.instance=\"<a>\"", "<sip:h>;np=1" ), 0 );
    EXPECT_LT( compare( "<sip:h>;z", "<sip:h>;+sip.instance=\"<a>\"" ), 0 );
    EXPECT_LT( compare( "<sip:h>;a", "<sip:h>;b" ), 0 );
}

TEST( SipsnContact, ChangesItsOwnCopyOnly )
{
    const char *text    = "\"A\" <sip:h>;q=0.500;expires=1;rc=1;mp=2;np=3;+sip.instance=\"<a>\";+sip.src;+sip.srs;z";
    auto        contact = Contact( text );
    pb::Ref     copy{ sipsnContactRetain( contact.Get() ) };
    sipsnContactSetIri( copy.Slot(), Str( "tel:+1" ).Get() );
    sipsnContactSetDisplayName( copy.Slot(), Str( "b  \"" ).Get() );
    sipsnContactDelQvalue( copy.Slot() );
    sipsnContactSetExpires( copy.Slot(), 0 );
    sipsnContactSetRc( copy.Slot(), Str( "1.10" ).Get() );
    sipsnContactDelMp( copy.Slot() );
    sipsnContactSetNp( copy.Slot(), Str( "4" ).Get() );
    sipsnContactDelSipInstance( copy.Slot() );
    sipsnContactSetSipSrc( copy.Slot(), false );
    sipsnContactSetGenericParams( copy.Slot(),
                                  Decoded< sipsn___GenericParamsTryDecode >( ";q=x;np=y;+sip.srs" ).Get() );
    EXPECT_EQ( Take( sipsnContactToString( copy.Get() ) ),
               "\"b \\ \\\"\" <tel:+1>;expires=0;rc=1.10;np=4;+sip.srs;q=x" );
    EXPECT_FALSE( sipsnContactHasQvalue( copy.Get() ) || sipsnContactHasMp( copy.Get() ) ||
                  sipsnContactHasSipInstance( copy.Get() ) || sipsnContactSipSrc( copy.Get() ) );
    EXPECT_EQ( Take( sipsnContactToString( contact.Get() ) ), text );
}

TEST( SipsnContact, RefusesWhatIsInvalid )
{
    pb::Ref contact{ sipsnContactCreate( Str( "sip:h" ).Get() ) };
    auto    bad = Str( "\r" );
    EXPECT_DEATH( sipsnContactCreate( bad.Get() ), "\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnContactSetDisplayName( contact.Slot(), bad.Get() ),
                  "\"sipsnDisplayNameOk\\( displayName \\)\"" );
    EXPECT_DEATH( sipsnContactSetQvalue( contact.Slot(), 1001 ), "\"sipsnQvalueOk\\( qvalue \\)\"" );
    EXPECT_DEATH( sipsnContactSetExpires( contact.Slot(), -1 ), "\"sipsnDeltaSecondsOk\\( deltaSeconds \\)\"" );
    EXPECT_DEATH( sipsnContactSetRc( contact.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( rc \\)\"" );
    EXPECT_DEATH( sipsnContactSetMp( contact.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( mp \\)\"" );
    EXPECT_DEATH( sipsnContactSetNp( contact.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( np \\)\"" );
    EXPECT_DEATH( sipsnContactSetSipInstance( contact.Slot(), bad.Get() ),
                  "\"sipsnSipInstanceOk\\( sipInstance \\)\"" );
    EXPECT_DEATH( sipsnContactSetGenericParams( contact.Slot(), nullptr ), "\"genericParams\"" );
}

} // namespace
