// Contact: a list, or the star form.
#include "header_text.h"

namespace {

constexpr HeaderFamily contact = HEADER_FAMILY( sipsnHeaderContact, "Contact" );

auto Contacts( const std::vector< const char * > &lines )
{
    return Header< sipsnHeaderContactTryDecode >( "Contact", lines );
}

HeaderLines LinesOf( SipsnHeaderContact *hdr ) { return EncodedBy( contact, sipsnHeaderContactObj( hdr ) ); }

TEST( SipsnHeaderContact, Lines )
{
    CheckHeaders( {
        { contact,
          { "<sip:a@b>;q=0.5, \"C, D\" <sip:c@d>", "sip:e@f" },
          { "<sip:a@b>;q=0.5", "\"C, D\" <sip:c@d>", "sip:e@f" } },
        { contact, { "" }, {} },
        { contact, { "*" }, { "*" } },
        { contact, { " *\t" }, { "*" } },
        { contact, { "*", "" }, { "*" } },
        { contact, { "*", "", "" }, { "*" } },
        { contact, { "*,<sip:a@b>" }, nullptr },
        { contact, { "*,*" }, nullptr },
        { contact, { "**" }, nullptr },
        { contact, { "*", "*" }, nullptr },
        { contact, { "*", "<sip:a@b>" }, nullptr },
        { contact, { "* <sip:a@b>" }, nullptr }, // not a display name here
        { contact, { "\"*\" <sip:a@b>" }, { "\"*\" <sip:a@b>" } },
        { contact, { "", "*" }, nullptr },
        { contact, { "<sip:a@b>", "*" }, nullptr },
        { contact, { "<sip:a@b>,*" }, nullptr },
        { contact, { "<sip:a@b>," }, nullptr },
        { contact, { "<sip:a@b" }, nullptr },
    } );
}

TEST( SipsnHeaderContact, StarFormIsHiddenByContactsAndEndedByClear )
{
    auto    hdr   = Contacts( { "<sip:a@b>", "<sip:c@d>" } );
    pb::Ref first = pb::Ref{ sipsnHeaderContactTryDecodeContactAt( hdr.Get(), 0 ) };
    ASSERT_TRUE( first );
    EXPECT_FALSE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    pb::Ref kept{ sipsnHeaderContactRetain( hdr.Get() ) };

    sipsnHeaderContactSetStarForm( hdr.Slot(), true );
    EXPECT_TRUE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    EXPECT_EQ( sipsnHeaderContactContactsLength( hdr.Get() ), 0 );
    EXPECT_TRUE( sipsnHeaderContactEquals( hdr.Get(), Contacts( { "*" } ).Get() ) );
    EXPECT_FALSE( sipsnHeaderContactEquals( hdr.Get(), pb::Ref{ sipsnHeaderContactCreate() }.Get() ) );

    sipsnHeaderContactAppendContact( hdr.Slot(), first.Get() );
    EXPECT_TRUE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    EXPECT_EQ( LinesOf( hdr.Get() ), ( HeaderLines{ "<sip:a@b>" } ) );
    sipsnHeaderContactDelContactAt( hdr.Slot(), 0 );
    EXPECT_EQ( LinesOf( hdr.Get() ), ( HeaderLines{ "*" } ) );

    sipsnHeaderContactClear( hdr.Slot() );
    EXPECT_FALSE( sipsnHeaderContactIsStarForm( hdr.Get() ) );
    EXPECT_EQ( LinesOf( hdr.Get() ), HeaderLines{} );
    EXPECT_EQ( LinesOf( kept.Get() ), ( HeaderLines{ "<sip:a@b>", "<sip:c@d>" } ) );
    sipsnHeaderContactSetStarForm( kept.Slot(), false );
    EXPECT_EQ( LinesOf( kept.Get() ), HeaderLines{} );
}

// The flag is compared before the contacts.
TEST( SipsnHeaderContact, StarFormComesLast )
{
    EXPECT_GT( sipsnHeaderContactCompare( Contacts( { "*" } ).Get(), Contacts( { "<sip:a@b>" } ).Get() ), 0 );
}

} // namespace
