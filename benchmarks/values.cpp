// One text of each type of value, with the parameters that such values usually have.
#include "values.h"

#include "pb/pb_frame.h"
#include "sipsn/sipsn_skip_internal.h"
#include "sipsn/sipsn_value_internal.h"

#define VALUE( Type, ... ) SIPSN_DECLARE_TEXT( Type )
#include "sipsn/sipsn_values.inc"

namespace {

template< auto tryDecode, auto encode > constexpr ValueSample SampleOf( const char *type, const char *text, Scan *scan )
{
    return {
        type, text, scan, []( const PbChar *chs, int64_t length ) { return pb::AsObj( tryDecode( chs, length ) ); },
        []( PbObj *value ) { return encode( reinterpret_cast< decltype( tryDecode( nullptr, 0 ) ) >( value ) ); } };
}

// A SIP URI with a user, by the productions that it consists of, each part once.
int64_t ScanUri( const PbChar *chs, int64_t length )
{
    int64_t    at   = 0;
    const auto take = [ & ]( auto production ) {
        const int64_t count = production( chs + at, length - at );
        at += count;
        return count > 0;
    };
    const auto takeChar = [ & ]( PbChar ch ) { return at < length && chs[ at ] == ch && ++at > 0; };
    if( !take( sipsn___SkipToken ) || !takeChar( ':' ) || !take( sipsn___SkipUser ) || !takeChar( '@' ) ) return 0;
    if( !take( sipsn___SkipHost ) || ( takeChar( ':' ) && !take( sipsn___SkipPort ) ) ) return 0;
    while( takeChar( ';' ) )
        if( !take( sipsn___SkipPvalue ) || ( takeChar( '=' ) && !take( sipsn___SkipPvalue ) ) ) return 0;
    return at;
}

#define VALUE_BY( scan, Type, text ) SampleOf< sipsn___##Type##TryDecode, sipsn___##Type##Encode >( #Type, text, scan )
#define VALUE( Type, text )          VALUE_BY( sipsn___Skip##Type, Type, text )

constexpr ValueSample samples[] = {
    VALUE( Accept, "application/sdp;level=1;q=0.5" ),
    VALUE( AcceptEncoding, "gzip;q=0.8" ),
    VALUE( AlertInfo, "<http://www.example.com/sounds/moo.wav>" ),
    VALUE( CallInfo, "<http://www.example.com/alice/photo.jpg>;purpose=icon" ),
    VALUE( Contact, "\"Mr. Watson\" <sip:watson@worcester.example.com:5060;transport=tcp>;q=0.7;expires=3600" ),
    VALUE( Diversion, "\"Bob\" <sip:bob@example.com>;reason=user-busy;counter=1;privacy=off;screen=no" ),
    VALUE( ErrorInfo, "<sip:not-in-service-recording@atlanta.example.com>" ),
    VALUE( GenericParam, "transport=tcp" ),
    VALUE( GenericParams, ";transport=tcp;lr;maddr=192.0.2.1;user=phone" ),
    VALUE( HistoryInfo, "<sip:bob@192.0.2.4>;index=1.1;rc=1" ),
    VALUE( IdentityValue, "\"Carol Smith\" <sip:carol@example.com>" ),
    VALUE( Reason, "Q.850;cause=16;text=\"Terminated\"" ),
    VALUE( Route, "<sip:p1.example.com;lr>" ),
    VALUE_BY( ScanUri, Uri, "sip:+12025550123;npdi@gw1.example.net:5060;user=phone;transport=tcp;lr" ),
    VALUE( UuiValue, "56a390f3d2b7310023a2;encoding=hex;purpose=isdn-uui;content=isdn-uui" ),
    VALUE( Via, "SIP/2.0/UDP bigbox3.site3.atlanta.example.com:5060;branch=z9hG4bK77ef4c2312983.1;received=192.0.2.1;"
                "rport;ttl=16" ),
    VALUE( WarningValue, "307 isi.edu \"Session parameter 'foo' not understood\"" ),
};

} // namespace

std::span< const ValueSample > ValueSamples() { return samples; }
