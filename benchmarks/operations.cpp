// The operations on a whole message.
#include "operations.h"

namespace {

constexpr size_t pieceLength = 1460; // of TCP's payload over IPv4 in an Ethernet frame

constexpr std::string_view answer = "v=0\r\n"
                                    "o=uas 42 42 IN IP4 192.0.2.200\r\n"
                                    "s=-\r\n"
                                    "c=IN IP4 192.0.2.200\r\n"
                                    "t=0 0\r\n"
                                    "m=audio 30000 RTP/AVP 0 101\r\n"
                                    "a=rtpmap:0 PCMU/8000\r\n"
                                    "a=rtpmap:101 telephone-event/8000\r\n"
                                    "a=ptime:20\r\n"
                                    "a=sendrecv\r\n";

int64_t LengthOf( PbString *owned )
{
    pb::Ref text{ owned };
    return text ? pbStringLength( text.Get() ) : 0;
}

// The length of the host of a SIP URI, without the brackets of an IPv6 address; 0 for a tel URI.
int64_t HostLength( PbString *owned )
{
    pb::Ref iri{ owned };
    if( !iri ) return 0;
    const PbChar *const start = pbStringBacking( iri.Get() );
    const PbChar *const end   = start + pbStringLength( iri.Get() );
    const PbChar       *host  = std::find( start, end, PbChar( ':' ) );
    if( host == start || host == end || ( host[ -1 ] | 0x20 ) == 'l' ) return 0;
    const PbChar *user = std::find_if( ++host, end, []( PbChar ch ) { return ch == '@' || ch == '?'; } );
    if( user != end && *user == '@' ) host = user + 1;
    if( host != end && *host == '[' ) return std::find( host + 1, end, PbChar( ']' ) ) - ( host + 1 );
    return std::find_if( host, end, []( PbChar ch ) { return ch == ':' || ch == ';' || ch == '?'; } ) - host;
}

int64_t ReadLists( const FullMessage &full )
{
    int64_t sum = 0;
    for( SipsnVia *via : full.valuesVia )
        sum += LengthOf( sipsnViaHost( via ) ) + LengthOf( sipsnViaBranch( via ) ) + sipsnViaPort( via );
    for( SipsnContact *contact : full.valuesContact ) sum += HostLength( sipsnContactIri( contact ) );
    for( SipsnRoute *route : full.valuesRoute ) sum += HostLength( sipsnRouteIri( route ) );
    for( SipsnRoute *route : full.valuesRecordRoute ) sum += HostLength( sipsnRouteIri( route ) );
    return sum;
}

int64_t ReadSingles( const FullMessage &full )
{
    int64_t sum = 0;
    if( auto *from = full.headerFrom.Get() )
        sum += HostLength( sipsnHeaderFromIri( from ) ) + LengthOf( sipsnHeaderFromTag( from ) );
    if( auto *to = full.headerTo.Get() )
        sum += HostLength( sipsnHeaderToIri( to ) ) + LengthOf( sipsnHeaderToTag( to ) );
    if( auto *callId = full.headerCallId.Get() ) sum += LengthOf( sipsnHeaderCallIdCallId( callId ) );
    if( auto *cseq = full.headerCseq.Get() ) sum += sipsnHeaderCseqCseq( cseq );
    if( auto *maxForwards = full.headerMaxForwards.Get() ) sum += sipsnHeaderMaxForwardsMaxForwards( maxForwards );
    if( auto *expires = full.headerExpires.Get() ) sum += sipsnHeaderExpiresDeltaSeconds( expires );
    if( auto *session = full.headerSessionExpires.Get() ) sum += sipsnHeaderSessionExpiresDeltaSeconds( session );
    if( auto *minSe = full.headerMinSe.Get() ) sum += sipsnHeaderMinSeDeltaSeconds( minSe );
    return sum;
}

int64_t ReadMessage( SipsnMessage *message )
{
    pb::Ref       body{ sipsnMessageBody( message ) };
    const int64_t length = body ? pbBufferLength( body.Get() ) : 0;
    if( !sipsnMessageIsRequest( message ) ) return length + sipsnMessageResponseStatusCode( message );
    return length + HostLength( sipsnMessageRequestIri( message ) );
}

pb::Ref< SipsnMessage > DecodeBytes( std::string_view bytes ) { return Decode( BufferOf( bytes ).Get() ); }

void SetLine( pb::Ref< SipsnMessage > &message, const char *name, const char *line )
{
    pb::Ref header{ sipsnMessageHeaderCreateCstr( name, -1 ) };
    sipsnMessageHeaderAppendLineCstr( header.Slot(), line, -1 );
    sipsnMessageSetHeader( message.Slot(), header.Get() );
}

} // namespace

int64_t FindFields( SipsnMessage *message )
{
    int64_t found = 0;
    for( const char *name : { "Call-ID", "CSeq", "Via", "From", "To", "Contact" } )
        if( pb::Ref header{ sipsnMessageHeaderCstr( message, name, -1 ) } ) ++found;
    return found;
}

pb::Ref< SipsnMessage > DecodeAndFind( std::string_view bytes )
{
    pb::Ref message = DecodeBytes( bytes );
    if( message ) FindFields( message.Get() );
    return message;
}

// ---- Typed -----------------------------------------------------------------------------------------

void TypeFields( SipsnMessage *message, FullMessage &full )
{
#define LIST( Type, Items, Item, Value )                                                                               \
    full.header##Type = pb::Ref{ sipsnHeader##Type##TryDecodeFromMessage( message ) };                                 \
    if( auto *hdr = full.header##Type.Get() )                                                                          \
        for( int64_t at = 0, count = sipsnHeader##Type##Items##Length( hdr ); at < count; ++at )                       \
            full.values##Type.Add( sipsnHeader##Type##TryDecode##Item##At( hdr, at ) );
    FULL_LISTS( LIST )
#undef LIST
#define SINGLE( Type ) full.header##Type = pb::Ref{ sipsnHeader##Type##TryDecodeFromMessage( message ) };
    FULL_SINGLES( SINGLE )
#undef SINGLE
}

FullMessage DecodeFull( std::string_view bytes )
{
    FullMessage full;
    full.message = DecodeBytes( bytes );
    if( full.message ) {
        TypeFields( full.message.Get(), full );
        full.sum = ReadMessage( full.message.Get() ) + ReadLists( full ) + ReadSingles( full );
    }
    return full;
}

Objects DecodeAll( std::string_view bytes )
{
    Objects             objects;
    SipsnMessage *const message = DecodeBytes( bytes ).Detach();
    if( !message ) return objects;
    const auto keep = [ & ]( auto *owned ) {
        objects.Add( pb::AsObj( owned ) );
        return owned;
    };
    keep( message );
#define SINGLE( Type, ... ) keep( sipsnHeader##Type##TryDecodeFromMessage( message ) );
#define TOKENS( Type, ... ) SINGLE( Type )
#define VALUES( Type, name, compact, rfc, Items, Item, Value )                                                         \
    if( auto *hdr = keep( sipsnHeader##Type##TryDecodeFromMessage( message ) ) )                                       \
        for( int64_t at = 0, count = sipsnHeader##Type##Items##Length( hdr ); at < count; ++at )                       \
            keep( sipsnHeader##Type##TryDecode##Item##At( hdr, at ) );
#include "sipsn/sipsn_families.inc"
    return objects;
}

Objects DecodeTyped( std::string_view bytes )
{
    Objects             objects;
    SipsnMessage *const message = DecodeBytes( bytes ).Detach();
    if( !message ) return objects;
    objects.Add( pb::AsObj( message ) );
    pb::Ref headers{ sipsnMessageHeadersVector( message ) };
    for( int64_t at = 0, count = pbVectorLength( headers.Get() ); at < count; ++at ) {
        pb::Ref     field{ pbVectorAt( headers.Get(), at ) };
        pb::Ref     name{ sipsnMessageHeaderName( sipsnMessageHeaderFrom( field.Get() ) ) };
        const auto *family = sipsnSchemaFamilyByName( name.Get() );
        if( !family ) continue;
        PbObj *hdr = sipsnSchemaTryDecodeHeader( family, sipsnMessageHeaderFrom( field.Get() ) );
        objects.Add( hdr );
        if( !hdr || !family->itemType ) continue;
        pb::Ref items{ sipsnSchemaObject( hdr, 0 ) };
        for( int64_t n = 0; n < pbVectorLength( pbVectorFrom( items.Get() ) ); ++n ) {
            pb::Ref item{ pbVectorStringAt( pbVectorFrom( items.Get() ), n ) };
            objects.Add( sipsnSchemaTryDecode( family->itemType, item.Get() ) );
        }
    }
    return objects;
}

// ---- Written ---------------------------------------------------------------------------------------

pb::Ref< PbBuffer > EncodeTyped( const FullMessage &full )
{
    pb::Ref message{ sipsnMessageCreateFrom( full.message.Get() ) };
#define LIST( Type, Items, Item, Value )                                                                               \
    if( full.header##Type ) {                                                                                          \
        pb::Ref hdr{ sipsnHeader##Type##Create() };                                                                    \
        for( auto *value : full.values##Type ) sipsnHeader##Type##Append##Item( hdr.Slot(), value );                   \
        sipsnHeader##Type##EncodeToMessage( hdr.Get(), message.Slot() );                                               \
    }
    FULL_LISTS( LIST )
#undef LIST
#define SINGLE( Type )                                                                                                 \
    if( full.header##Type ) sipsnHeader##Type##EncodeToMessage( full.header##Type.Get(), message.Slot() );
    FULL_SINGLES( SINGLE )
#undef SINGLE
    return Encode( message.Get() );
}

pb::Ref< PbBuffer > FullAndEncode( std::string_view bytes )
{
    const FullMessage full = DecodeFull( bytes );
    return full.message ? Encode( full.message.Get() ) : pb::Ref< PbBuffer >{};
}

pb::Ref< PbBuffer > Reply( SipsnMessage *request )
{
    pb::Ref version{ sipsnMessageVersion( request ) };
    pb::Ref response{ sipsnMessageCreateResponse( version.Get(), 200 ) };
    if( pb::Ref to{ sipsnHeaderToTryDecodeFromMessage( request ) } ) {
        if( !sipsnHeaderToHasTag( to.Get() ) ) {
            pb::Ref tag{ pbStringCreateFromCstr( "a73kszlfl", -1 ) };
            sipsnHeaderToSetTag( to.Slot(), tag.Get() );
        }
        sipsnHeaderToEncodeToMessage( to.Get(), response.Slot() );
    }
    for( const char *name : { "Via", "From", "Call-Id", "Cseq", "Record-Route" } )
        if( pb::Ref header{ sipsnMessageHeaderCstr( request, name, -1 ) } )
            sipsnMessageSetHeader( response.Slot(), header.Get() );
    SetLine( response, "Contact", "<sip:uas@192.0.2.200:5060;transport=tcp>" );
    SetLine( response, "Content-Type", "application/sdp" );
    sipsnMessageSetBody( response.Slot(), BufferOf( answer ).Get() );
    return Encode( response.Get() );
}

pb::Ref< PbBuffer > Proxy::Forward( std::string_view bytes ) const
{
    pb::Ref message = DecodeBytes( bytes );
    if( pb::Ref hops{ sipsnHeaderMaxForwardsTryDecodeFromMessage( message.Get() ) } ) {
        const int64_t left = sipsnHeaderMaxForwardsMaxForwards( hops.Get() );
        sipsnHeaderMaxForwardsSetMaxForwards( hops.Slot(), std::max< int64_t >( left - 1, 0 ) );
        sipsnHeaderMaxForwardsEncodeToMessage( hops.Get(), message.Slot() );
    }
    if( pb::Ref routes{ sipsnHeaderRouteTryDecodeFromMessage( message.Get() ) } ) {
        pb::Ref top{ sipsnHeaderRouteTryDecodeRouteAt( routes.Get(), 0 ) };
        sipsnHeaderRouteDelRouteAt( routes.Slot(), 0 );
        if( sipsnHeaderRouteRoutesLength( routes.Get() ) > 0 )
            sipsnHeaderRouteEncodeToMessage( routes.Get(), message.Slot() );
        else
            sipsnHeaderRouteRemoveFromMessage( message.Slot() );
    }
    pb::Ref vias{ sipsnHeaderViaTryDecodeFromMessage( message.Get() ) };
    if( !vias ) vias = pb::Ref{ sipsnHeaderViaCreate() };
    pb::Ref via{ sipsnViaCreateWithPort( version_.Get(), transport_.Get(), host_.Get(), 5060 ) };
    sipsnViaSetBranch( via.Slot(), branch_.Get() );
    sipsnHeaderViaPrependVia( vias.Slot(), via.Get() );
    sipsnHeaderViaEncodeToMessage( vias.Get(), message.Slot() );
    pb::Ref recorded{ sipsnHeaderRecordRouteTryDecodeFromMessage( message.Get() ) };
    if( !recorded ) recorded = pb::Ref{ sipsnHeaderRecordRouteCreate() };
    pb::Ref own{ sipsnRouteCreate( iri_.Get() ) };
    sipsnHeaderRecordRoutePrependRoute( recorded.Slot(), own.Get() );
    sipsnHeaderRecordRouteEncodeToMessage( recorded.Get(), message.Slot() );
    return Encode( message.Get() );
}

// ---- Stream ----------------------------------------------------------------------------------------

PiecesReader::PiecesReader( std::string_view bytes ) : bytes_( bytes ), period_( bytes.size() )
{
    while( period_ > 0 && bytes_.size() < period_ + pieceLength ) bytes_ += bytes;
}

bool PiecesReader::WritePiece()
{
    if( period_ == 0 ) return false;
    const std::string_view piece = std::string_view{ bytes_ }.substr( at_, pieceLength );
    at_                          = ( at_ + pieceLength ) % period_;
    return sipsnMessageStreamDecoderWrite( decoder_.Get(), BufferOf( piece ).Get() );
}

pb::Ref< SipsnMessage > PiecesReader::Next()
{
    for( size_t written = 0; written <= bytes_.size() + period_; written += pieceLength ) {
        if( pb::Ref message{ sipsnMessageStreamDecoderRead( decoder_.Get() ) } ) {
            FindFields( message.Get() );
            return message;
        }
        if( !WritePiece() ) break;
    }
    return {};
}
