// Vias: texts, the three states of rport, what stays generic, members.
#include "value_text.h"

namespace {

auto Via( std::string_view text ) { return Decoded< sipsn___ViaTryDecode >( text ); }

TEST( SipsnVia, Wire )
{
    CheckWire< sipsn___ViaTryDecode, sipsn___ViaEncode >( {
        { "SIP/2.0/UDP 192.0.2.1:5060;received=192.0.2.7;rport;branch=z9hG4bK77",
          "SIP/2.0/UDP 192.0.2.1:5060;received=192.0.2.7;rport;branch=z9hG4bK77" },
        { "SIP/2.0/udp host", "SIP/2.0/UDP host" },
        { "sip / 2.0 / tls \t Host.Example : 5061 ; BRANCH = Z9 ; TTL = 1",
          "SIP/2.0/TLS Host.Example:5061;ttl=1;branch=Z9" },
        { "SIP/2.0/TCP [2001:DB8::1]:1;maddr=224.0.0.1;received=2001:db8:0:0:0:0:0:1",
          "SIP/2.0/TCP [2001:DB8::1]:1;maddr=224.0.0.1;received=2001:db8::1" },
        { "SIP/2.0/UDP h;z;a=\"b\";branch=c", "SIP/2.0/UDP h;branch=c;a=\"b\";z" },
        { "SIP/2.0/UDP h:0", "SIP/2.0/UDP h:0" },
        { "SIP/2.0/UDP h:99999", "SIP/2.0/UDP h:99999" },
        { "SIP/2.0/UDP h;RPORT", "SIP/2.0/UDP h;rport" },
        { "SIP/2.0/UDP h;branch=a;branch=b", "SIP/2.0/UDP h;branch=b" },
        // Refused by their member, kept as generic parameters.
        { "SIP/2.0/UDP h;rport=1234", "SIP/2.0/UDP h;rport=1234" },
        { "SIP/2.0/UDP h;ttl=256", "SIP/2.0/UDP h;ttl=256" },
        { "SIP/2.0/UDP h;ttl", "SIP/2.0/UDP h;ttl" },
        { "SIP/2.0/UDP h;ttlx=1", "SIP/2.0/UDP h;ttlx=1" },
        { "SIP/2.0/UDP h;received=host.example", "SIP/2.0/UDP h;received=host.example" },
        { "SIP/2.0/UDP h;maddr", "SIP/2.0/UDP h;maddr" },
        { "SIP/2.0/UDP h;branch=\"a\"", "SIP/2.0/UDP h;branch=\"a\"" },
        { "", nullptr },
        { "SIP/2.0/UDP", nullptr },
        { "SIP/2.0/UDP ", nullptr },
        { "SIP/2.0/UDPhost", nullptr },
        { "SIP/2.0 UDP host", nullptr },
        { "SIP/2.0/UDP h:", nullptr },
        { "SIP/2.0/UDP h:x", nullptr },
        { "SIP/2.0/UDP h:99999999999999999999", nullptr },
        { "SIP/2.0/UDP h;", nullptr },
        { "SIP/2.0/UDP h x", nullptr },
        { "SIP/2.0/UDP h,", nullptr },
        { "SIP/2.0/UDP h;ttl=5x", nullptr },
        { "SIP/2.0/UDP h;rportx", nullptr },
        { "SIP/2.0/UDP h;received=192.0.2.1x", nullptr },
        { "SIP/2.0/UDP h;received=[2001:db8::1", nullptr },
        { "SIP/2.0/UDP h%41", nullptr },
    } );
}

TEST( SipsnVia, RportIsAbsentEmptyOrNumeric )
{
    auto decoded = Via( "SIP/2.0/UDP h;rport=1234" );
    EXPECT_FALSE( sipsnViaHasRport( decoded.Get() ) );

    auto via = Via( "SIP/2.0/UDP h;rport" );
    EXPECT_TRUE( sipsnViaHasRport( via.Get() ) && sipsnViaHasRportEmpty( via.Get() ) &&
                 !sipsnViaHasRportNumeric( via.Get() ) );
    sipsnViaSetRportNumeric( via.Slot(), 5060 );
    EXPECT_TRUE( sipsnViaHasRport( via.Get() ) && !sipsnViaHasRportEmpty( via.Get() ) &&
                 sipsnViaHasRportNumeric( via.Get() ) );
    EXPECT_EQ( Take( sipsnViaToString( via.Get() ) ), "SIP/2.0/UDP h;rport=5060" );
    EXPECT_TRUE( sipsnViaEquals( via.Get(), Via( "SIP/2.0/UDP h" ).Get() ) ) << "rport is not compared";
    sipsnViaSetRportEmpty( via.Slot() );
    EXPECT_EQ( sipsnViaRportNumeric( via.Get() ), -1 );
    sipsnViaDelRport( via.Slot() );
    EXPECT_FALSE( sipsnViaHasRport( via.Get() ) );
}

TEST( SipsnVia, ChangesItsOwnCopyOnly )
{
    const char *text = "SIP/2.0/UDP a:1;ttl=1;maddr=b;received=192.0.2.1;rport;branch=c;d";
    auto        via  = Via( text );
    pb::Ref     copy{ sipsnViaRetain( via.Get() ) };
    sipsnViaSetTransport( copy.Slot(), Str( "TlS" ).Get() );
    sipsnViaSetHost( copy.Slot(), Str( "h" ).Get() );
    sipsnViaDelPort( copy.Slot() );
    sipsnViaSetTtl( copy.Slot(), 255 );
    sipsnViaSetMaddr( copy.Slot(), Str( "[::1]" ).Get() );
    sipsnViaDelReceived( copy.Slot() );
    sipsnViaSetBranch( copy.Slot(), Str( "y" ).Get() );
    sipsnViaSetGenericParams( copy.Slot(),
                              Decoded< sipsn___GenericParamsTryDecode >( ";branch=x;received=z;port=1" ).Get() );
    EXPECT_EQ( Take( sipsnViaToString( copy.Get() ) ),
               "SIP/2.0/TLS h;ttl=255;maddr=[::1];rport;branch=y;port=1;received=z" );
    EXPECT_EQ( Take( sipsnViaTransport( copy.Get() ) ), "tls" );
    EXPECT_EQ( Take( sipsnViaToString( via.Get() ) ), text );
    EXPECT_LT( sipsnViaCompare( copy.Get(), via.Get() ), 0 );
}

TEST( SipsnVia, IsCreatedFromItsParts )
{
    pb::Ref version{ sipsnVersionCreateSip20() };
    pb::Ref dummy{ sipsnViaCreateDummy( version.Get() ) };
    EXPECT_EQ( Take( sipsnViaToString( dummy.Get() ) ), "SIP/2.0/UDP localhost" );
    pb::Ref via{ sipsnViaCreateWithPort( version.Get(), Str( "Tcp" ).Get(),
                                         Str( "b\xc3\xbc"
                                              "cher.example" )
                                             .Get(),
                                         5060 ) };
    EXPECT_EQ( Take( sipsnViaToString( via.Get() ) ), "SIP/2.0/TCP xn--bcher-kva.example:5060" );
    EXPECT_DEATH( sipsnViaCreate( nullptr, Str( "a" ).Get(), Str( "b" ).Get() ), "\"version\"" );
    EXPECT_DEATH( sipsnViaCreate( version.Get(), Str( "" ).Get(), Str( "" ).Get() ),
                  "\"sipsnTransportOk\\( transport \\)\"" );
    EXPECT_DEATH( sipsnViaCreate( version.Get(), Str( "a" ).Get(), Str( "b c" ).Get() ),
                  "\"sipsnHostOk\\( host \\)\"" );
    EXPECT_DEATH( sipsnViaSetPort( via.Slot(), -1 ), "\"sipsnPortOk\\( port \\)\"" );
    EXPECT_DEATH( sipsnViaSetRportNumeric( via.Slot(), -1 ), "\"sipsnPortOk\\( rport \\)\"" );
    EXPECT_DEATH( sipsnViaSetTtl( via.Slot(), 256 ), "\"sipsnTtlOk\\( ttl \\)\"" );
}

} // namespace
