// Replaces: lines, members.
#include "header_text.h"

#include "sipsn/sipsn_value_internal.h"

namespace {

constexpr HeaderFamily replaces = HEADER_FAMILY( sipsnHeaderReplaces, "Replaces" );

auto Replaces( const char *line ) { return Header< sipsnHeaderReplacesTryDecode >( "Replaces", { line } ); }

TEST( SipsnHeaderReplaces, Lines )
{
    CheckHeaders( {
        { replaces, { "a@b;to-tag=1;from-tag=2;early-only" }, { "a@b;from-tag=2;to-tag=1;early-only" } },
        { replaces,
          { "12345@149.112.118.3 ; TO-TAG = 1 ; X=y ; From-Tag=F" },
          { "12345@149.112.118.3;from-tag=F;to-tag=1;x=y" } },
        { replaces, { "a" }, { "a" } },
        { replaces, { "a;EARLY-ONLY" }, { "a;early-only" } },
        { replaces, { "a;to-tag=1;to-tag=2" }, { "a;to-tag=2" } },
        // Refused by their member, kept as generic parameters.
        { replaces, { "a;early-only = x;to-tag;from-tag=\"f\"" }, { "a;early-only=x;from-tag=\"f\";to-tag" } },
        { replaces, { "a;to-tagged=1" }, { "a;to-tagged=1" } },
        { replaces, {}, nullptr },
        { replaces, { "" }, nullptr },
        { replaces, { ";to-tag=1" }, nullptr },
        { replaces, { "a b" }, nullptr },
        { replaces, { "a@" }, nullptr },
        { replaces, { "a;" }, nullptr },
        { replaces, { "a;;to-tag=1" }, nullptr },
        { replaces, { "a;early-onlyx" }, nullptr },
        { replaces, { "a;to-tag=1?" }, nullptr },
        { replaces, { "a;to-tag=1,b" }, nullptr },
        { replaces, { "a", "b" }, { "b" } },
    } );
}

TEST( SipsnHeaderReplaces, MembersGoBeforeGenericParamsOfTheirName )
{
    auto hdr = Replaces( "a;early-only;early-only=x" );
    EXPECT_TRUE( sipsnHeaderReplacesEarlyOnly( hdr.Get() ) );
    EXPECT_EQ( Take( sipsnHeaderReplacesToString( hdr.Get() ) ), "a;early-only" );
    sipsnHeaderReplacesSetEarlyOnly( hdr.Slot(), false );
    EXPECT_EQ( Take( sipsnHeaderReplacesToString( hdr.Get() ) ), "a;early-only=x" );
}

TEST( SipsnHeaderReplaces, ChangesItsOwnCopyOnly )
{
    const char *line = "a;from-tag=1;to-tag=2;early-only;x";
    auto        hdr  = Replaces( line );
    pb::Ref     copy{ sipsnHeaderReplacesRetain( hdr.Get() ) };
    sipsnHeaderReplacesSetCallId( copy.Slot(), Str( "b@c" ).Get() );
    sipsnHeaderReplacesSetFromTag( copy.Slot(), Str( "f" ).Get() );
    sipsnHeaderReplacesDelToTag( copy.Slot() );
    CheckHeaderObject( replaces, sipsnHeaderReplacesObj( hdr.Get() ), { line } );
    EXPECT_EQ( Take( sipsnHeaderReplacesToString( copy.Get() ) ), "b@c;from-tag=f;early-only;x" );
    EXPECT_LT( sipsnHeaderReplacesCompare( hdr.Get(), copy.Get() ), 0 );
    EXPECT_EQ( Take( sipsnHeaderReplacesToTag( copy.Get() ) ), "(null)" );
    EXPECT_DEATH( sipsnHeaderReplacesCreate( Str( "a@" ).Get() ), "\"sipsnCallIdOk\\( callId \\)\"" );
    EXPECT_DEATH( sipsnHeaderReplacesSetToTag( copy.Slot(), Str( "" ).Get() ), "\"sipsnTagOk\\( tag \\)\"" );
}

TEST( SipsnHeaderReplaces, ComparesTheToTagBeforeTheFromTag )
{
    EXPECT_LT( sipsnHeaderReplacesCompare( Replaces( "a;to-tag=1;from-tag=2" ).Get(),
                                           Replaces( "a;to-tag=2;from-tag=1" ).Get() ),
               0 );
    EXPECT_LT( sipsnHeaderReplacesCompare( Replaces( "a;z" ).Get(), Replaces( "a;early-only" ).Get() ), 0 );
}

} // namespace
