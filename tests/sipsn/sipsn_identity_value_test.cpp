// Identity values: addresses without parameters.
#include "value_text.h"

namespace {

auto Identity( std::string_view text ) { return Decoded< sipsn___IdentityValueTryDecode >( text ); }

TEST( SipsnIdentityValue, Wire )
{
    CheckWire< sipsn___IdentityValueTryDecode, sipsn___IdentityValueEncode >( {
        { "sip:192.0.2.1", "<sip:192.0.2.1>" },
        { "tel:+14085264000", "<tel:+14085264000>" },
        { "\"Carol Smith\" <sip:carol@h;x=1>", "\"Carol Smith\" <sip:carol@h;x=1>" },
        { "Carol  Smith<sip:carol@h> ", "\"Carol Smith\" <sip:carol@h>" },
        { "", nullptr },
        { "Cullen", nullptr },
        { "Cullen tel:+1", nullptr },
        { "<sip:192.0.2.1>;x=1", nullptr },
        { "sip:192.0.2.1;x=1", nullptr },
        { "<sip:h>x", nullptr },
        { "<sip:h", nullptr },
        { "<sip:h>,<tel:+1>", nullptr },
    } );
}

TEST( SipsnIdentityValue, ChangesItsOwnCopyOnly )
{
    auto    id = Identity( "\"A\" <sip:h>" );
    pb::Ref copy{ sipsnIdentityValueRetain( id.Get() ) };
    sipsnIdentityValueDelDisplayName( copy.Slot() );
    EXPECT_FALSE( sipsnIdentityValueHasDisplayName( copy.Get() ) );
    EXPECT_LT( sipsnIdentityValueCompare( copy.Get(), id.Get() ), 0 ) << "an absent display name comes first";
    sipsnIdentityValueSetIri( copy.Slot(), Str( "tel:+1" ).Get() );
    sipsnIdentityValueSetDisplayName( copy.Slot(), Str( "B" ).Get() );
    EXPECT_EQ( Take( sipsnIdentityValueToString( copy.Get() ) ), "\"B\" <tel:+1>" );
    EXPECT_EQ( Take( sipsnIdentityValueToString( id.Get() ) ), "\"A\" <sip:h>" );
    EXPECT_DEATH( sipsnIdentityValueCreate( Str( "h" ).Get() ), "\"sipsnIriOk\\( iri \\)\"" );
}

} // namespace
