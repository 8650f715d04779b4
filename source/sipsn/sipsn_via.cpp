// SipsnVia: one via-parm, RFC 3261 section 20.42.
#include "sipsn_via.h"

#include "sipsn_message_internal.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( Via )

using sipsn::BasicCursor, sipsn::Cursor, sipsn::Span, sipsn::TextWriter;

namespace sipsn::rule {

static constexpr TextRule transport{ .words      = "a transport",
                                     .ok         = sipsnTransportOk,
                                     .production = sipsn___SkipTransport,
                                     .decoded    = sipsn::LowerFromChars,
                                     .normal     = sipsn::ToLower,
                                     .encoded    = sipsn::ToUpper };

static constexpr IntRule ttl{ .words      = "a ttl",
                              .ok         = sipsnTtlOk,
                              .lowest     = 0,
                              .highest    = 255,
                              .production = sipsn___SkipTtl,
                              .decoded    = DecimalFromChars };

} // namespace sipsn::rule

struct SipsnVia
{
    PbObj               obj;
    SipsnVersion       *version;
    PbString           *transport;
    PbString           *host;
    int64_t             port;
    int64_t             ttl;
    PbString           *maddr;
    InAddress          *received;
    bool                rportEmpty; // never together with rport
    int64_t             rport;
    PbString           *branch;
    SipsnGenericParams *genericParams;

    // Vias compare without rport: a response's Via that it was filled into is still that of the request. Its numeric
    // form is written as the parameter, but read as a generic one.
    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Version( "version", &SipsnVia::version ),
            sipsn::Text( "transport", &SipsnVia::transport, sipsn::rule::transport ),
            sipsn::Text( "host", &SipsnVia::host, sipsn::rule::host ),
            sipsn::OptionalInt( "port", &SipsnVia::port, sipsn::rule::port ),
            sipsn::IntParam( "ttl", &SipsnVia::ttl, sipsn::rule::ttl ),
            sipsn::TextParam( "maddr", &SipsnVia::maddr, sipsn::rule::host ),
            sipsn::AddressParam( "received", &SipsnVia::received ),
            sipsn::FlagParam( "rport", &SipsnVia::rportEmpty, "rportEmpty" )
                .Excluding( &SipsnVia::rport )
                .NotCompared(),
            sipsn::IntParam( "rport", &SipsnVia::rport, sipsn::rule::port )
                .Unread()
                .Excluding( &SipsnVia::rportEmpty )
                .NotCompared(),
            sipsn::TextParam( "branch", &SipsnVia::branch, sipsn::rule::branch ),
            sipsn::OtherParams( &SipsnVia::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnVia, sipsnVia, SIPSN_VIA, via, via, sipsn___ViaEncode )

static constexpr pb::ConstantString udp{ "udp" };
static constexpr pb::ConstantString localhost{ "localhost" };

SipsnVia *sipsnViaCreate( SipsnVersion *version, PbString *transport, PbString *host )
{
    PB_ASSERT( version );
    PB_ASSERT( sipsnTransportOk( transport ) );
    PB_ASSERT( sipsnHostOk( host ) );
    SipsnVia *via  = sipsn::NewWith( &SipsnVia::version, pb::Retain( version ) );
    via->transport = sipsnTransportNormalize( transport );
    via->host      = pb::Retain( host );
    return via;
}

SipsnVia *sipsnViaCreateWithPort( SipsnVersion *version, PbString *transport, PbString *host, int64_t port )
{
    pb::Ref via{ sipsnViaCreate( version, transport, host ) };
    sipsnViaSetPort( via.Slot(), port );
    return via.Detach();
}

SipsnVia *sipsnViaCreateDummy( SipsnVersion *version ) { return sipsnViaCreate( version, udp.Get(), localhost.Get() ); }

// ---- Accessors -------------------------------------------------------------------------------------

SipsnVersion *sipsnViaVersion( SipsnVia *via ) { return PB_GET( via, version ); }
void          sipsnViaSetVersion( SipsnVia **via, SipsnVersion *version )
{
    PB_SET( via, version, version, pb::Retain( version ) );
}

PbString *sipsnViaTransport( SipsnVia *via ) { return PB_GET( via, transport ); }
void      sipsnViaSetTransport( SipsnVia **via, PbString *transport )
{
    PB_SET( via, transport, sipsnTransportOk( transport ), sipsnTransportNormalize( transport ) );
}

PbString *sipsnViaHost( SipsnVia *via ) { return PB_GET( via, host ); }
void sipsnViaSetHost( SipsnVia **via, PbString *host ) { PB_SET( via, host, sipsnHostOk( host ), pb::Retain( host ) ); }

int64_t sipsnViaPort( SipsnVia *via ) { return PB_GET( via, port ); }
bool    sipsnViaHasPort( SipsnVia *via ) { return PB_HAS( via, port ); }
void    sipsnViaSetPort( SipsnVia **via, int64_t port ) { PB_SET( via, port, sipsnPortOk( port ), port ); }
void    sipsnViaDelPort( SipsnVia **via ) { PB_DEL( via, port ); }

int64_t sipsnViaTtl( SipsnVia *via ) { return PB_GET( via, ttl ); }
bool    sipsnViaHasTtl( SipsnVia *via ) { return PB_HAS( via, ttl ); }
void    sipsnViaSetTtl( SipsnVia **via, int64_t ttl ) { PB_SET( via, ttl, sipsnTtlOk( ttl ), ttl ); }
void    sipsnViaDelTtl( SipsnVia **via ) { PB_DEL( via, ttl ); }

PbString *sipsnViaMaddr( SipsnVia *via ) { return PB_GET( via, maddr ); }
bool      sipsnViaHasMaddr( SipsnVia *via ) { return PB_HAS( via, maddr ); }
void      sipsnViaSetMaddr( SipsnVia **via, PbString *host )
{
    PB_SET( via, maddr, sipsnHostOk( host ), pb::Retain( host ) );
}
void sipsnViaDelMaddr( SipsnVia **via ) { PB_DEL( via, maddr ); }

InAddress *sipsnViaReceived( SipsnVia *via ) { return PB_GET( via, received ); }
bool       sipsnViaHasReceived( SipsnVia *via ) { return PB_HAS( via, received ); }
void       sipsnViaSetReceived( SipsnVia **via, InAddress *received )
{
    PB_SET( via, received, received, pb::Retain( received ) );
}
void sipsnViaDelReceived( SipsnVia **via ) { PB_DEL( via, received ); }

bool sipsnViaHasRport( SipsnVia *via ) { return sipsnViaHasRportEmpty( via ) || sipsnViaHasRportNumeric( via ); }
bool sipsnViaHasRportEmpty( SipsnVia *via ) { return PB_HAS( via, rportEmpty ); }
void sipsnViaSetRportEmpty( SipsnVia **via )
{
    PB_DEL( via, rport );
    ( *via )->rportEmpty = true;
}

int64_t sipsnViaRportNumeric( SipsnVia *via ) { return PB_GET( via, rport ); }
bool    sipsnViaHasRportNumeric( SipsnVia *via ) { return PB_HAS( via, rport ); }
void    sipsnViaSetRportNumeric( SipsnVia **via, int64_t rport )
{
    PB_SET( via, rport, sipsnPortOk( rport ), rport );
    ( *via )->rportEmpty = false;
}

void sipsnViaDelRport( SipsnVia **via )
{
    PB_DEL( via, rport );
    ( *via )->rportEmpty = false;
}

PbString *sipsnViaBranch( SipsnVia *via ) { return PB_GET( via, branch ); }
bool      sipsnViaHasBranch( SipsnVia *via ) { return PB_HAS( via, branch ); }
void      sipsnViaSetBranch( SipsnVia **via, PbString *branch )
{
    PB_SET( via, branch, sipsnBranchOk( branch ), pb::Retain( branch ) );
}
void sipsnViaDelBranch( SipsnVia **via ) { PB_DEL( via, branch ); }

SipsnGenericParams *sipsnViaGenericParams( SipsnVia *via ) { return PB_GET( via, genericParams ); }
void                sipsnViaSetGenericParams( SipsnVia **via, SipsnGenericParams *params )
{
    PB_SET( via, genericParams, params, pb::Retain( params ) );
}

// ---- Text form -------------------------------------------------------------------------------------

// The version up to the SLASH behind it; null when there is none. "SIP/2.0" is not scanned twice.
template< class Link > static SipsnVersion *TryTakeVersion( BasicCursor< Link > &in )
{
    if( Cursor ahead{ in.Rest() }; ahead.Text( "SIP/2.0" ) && ahead.Take( PbChar{ '/' } ) ) {
        in.Text( "SIP/2.0" );
        return sipsnVersionCreateSip20();
    }
    const Span text = in.Take( sipsn___SkipVersion, "a protocol version" );
    return text ? sipsn___VersionTryDecode( text.chs, text.length ) : nullptr;
}

namespace {

struct Form
{
    template< class Link > SipsnVia *TryDecode( BasicCursor< Link > &in ) const
    {
        pb::Ref version{ TryTakeVersion( in ) };
        if( !version || !in.Take( sipsn___SkipSlash ) ) return nullptr;
        pb::Ref via{ sipsn::NewWith( &SipsnVia::version, version.Detach() ) };
        if( !( via->transport = TryTake( in, sipsn::rule::transport ) ) || !in.Take( sipsn___SkipLws ) ) return nullptr;
        if( !( via->host = TryTake( in, sipsn::rule::host ) ) ) return nullptr;
        if( in.Take( sipsn___SkipColon ) && ( via->port = TryTake( in, sipsn::rule::port ) ) < 0 ) return nullptr;
        return TryDecodeParams( in, *via.Get() ) ? via.Detach() : nullptr;
    }

    void Write( TextWriter &out, SipsnVia &via ) const
    {
        out.Text( via.version->protocolName );
        out.Char( '/' );
        out.Text( via.version->protocolVersion );
        out.Char( '/' );
        sipsn::Write( out, sipsn::rule::transport, via.transport );
        out.Char( ' ' );
        sipsn::Write( out, sipsn::rule::host, via.host );
        if( pb::Has( via.port ) ) {
            out.Char( ':' );
            out.Int( via.port );
        }
        WriteParams( out, via );
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( Via, via, form )

// ---- Start-up and shutdown: nothing to do -----------------------------------------------------------

void sipsn___ViaStartup( void ) {}
void sipsn___ViaShutdown( void ) {}
