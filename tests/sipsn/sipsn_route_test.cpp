// Routes: what belongs to the address and what to the parameters, members.
#include "value_text.h"

namespace {

auto Route( std::string_view text ) { return Decoded< sipsn___RouteTryDecode >( text ); }

TEST( SipsnRoute, Wire )
{
    CheckWire< sipsn___RouteTryDecode, sipsn___RouteEncode >( {
        { "<sip:192.0.2.9;lr>", "<sip:192.0.2.9;lr>" },
        { "<sip:192.0.2.9>;LR", "<sip:192.0.2.9>;lr" },
        { "sip:192.0.2.9;lr", "<sip:192.0.2.9>;lr" },
        { "P 1 <sips:p.example:5061;lr> ; z = \"a;b\" ; q=1", "\"P 1\" <sips:p.example:5061;lr>;q=1;z=\"a;b\"" },
        { "<sip:h>;a=1;a=2", "<sip:h>;a=2" },
        { "", nullptr },
        { "<>;lr", nullptr },
        { "P sip:h", nullptr },
        { "<sip:h>;", nullptr },
        { "<sip:h>;lr;", nullptr },
        { "<sip:h> lr", nullptr },
        { "<sip:h>,<sip:i>", nullptr },
    } );
    EXPECT_EQ( Take( sipsnRouteIri( Route( "<sip:h;lr>" ).Get() ) ), "sip:h;lr" );
    EXPECT_EQ( sipsnGenericParamsLength( pb::Ref{ sipsnRouteGenericParams( Route( "<sip:h;lr>" ).Get() ) }.Get() ), 0 );
}

TEST( SipsnRoute, ChangesItsOwnCopyOnly )
{
    auto    route = Route( "\"A\" <sip:h>;lr" );
    pb::Ref copy{ sipsnRouteRetain( route.Get() ) };
    sipsnRouteDelDisplayName( copy.Slot() );
    sipsnRouteSetIri( copy.Slot(), Str( "sip:i;lr" ).Get() );
    EXPECT_LT( sipsnRouteCompare( route.Get(), copy.Get() ), 0 ) << "the address comes first";
    sipsnRouteSetGenericParams( copy.Slot(), pb::Ref{ sipsnGenericParamsCreate() }.Get() );
    EXPECT_EQ( Take( sipsnRouteToString( copy.Get() ) ), "<sip:i;lr>" );
    EXPECT_FALSE( sipsnRouteHasDisplayName( copy.Get() ) );
    sipsnRouteSetDisplayName( copy.Slot(), Str( "B" ).Get() );
    EXPECT_EQ( Take( sipsnRouteToString( copy.Get() ) ), "\"B\" <sip:i;lr>" );
    EXPECT_EQ( Take( sipsnRouteToString( route.Get() ) ), "\"A\" <sip:h>;lr" );
    EXPECT_DEATH( sipsnRouteSetIri( copy.Slot(), Str( "h" ).Get() ), "\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnRouteSetGenericParams( copy.Slot(), nullptr ), "\"genericParams\"" );
}

} // namespace
