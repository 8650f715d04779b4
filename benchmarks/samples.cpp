// The messages that are measured, and the operations on a whole message.
#include "samples.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

std::vector< Sample > Samples()
{
    const std::filesystem::path root = SIPSN_SOURCE_DIR;
    std::vector< Sample >       samples;
    for( const std::string folder : { "benchmarks", "examples" } )
        for( const auto &entry : std::filesystem::directory_iterator( root / folder / "messages" ) )
            if( entry.path().extension() != ".md" )
                samples.push_back( { folder + "/" + entry.path().filename().string(), entry.path() } );
    std::ranges::sort( samples, {}, &Sample::name );
    return samples;
}

pb::Ref< PbBuffer > ReadFile( const std::filesystem::path &path )
{
    std::ifstream file{ path, std::ios::binary };
    if( !file ) return {};
    return BufferOf( std::string{ std::istreambuf_iterator< char >{ file }, {} } );
}

pb::Ref< PbBuffer > BufferOf( std::string_view bytes )
{
    return pb::Ref{ pbBufferCreateFromBytesCopy( bytes.data(), int64_t( bytes.size() ) ) };
}

pb::Ref< SipsnMessage > Decode( PbBuffer *wire ) { return pb::Ref{ sipsnMessageTryDecode( wire ) }; }

pb::Ref< PbBuffer > Encode( SipsnMessage *message ) { return pb::Ref{ sipsnMessageEncode( message ) }; }

pb::Ref< PbBuffer > RoundTrip( PbBuffer *wire ) { return Encode( Decode( wire ).Get() ); }

FullMessage DecodeFull( PbBuffer *wire )
{
    pb::Ref message{ sipsnMessageTryDecode( wire ) };
    if( !message ) return {};
    SipsnMessage *const msg = message.Get();

    FullMessage full;
    full.via = pb::Ref{ sipsnHeaderViaTryDecodeFromMessage( msg ) };
    for( int64_t at = 0, count = full.via ? sipsnHeaderViaViasLength( full.via.Get() ) : 0; at < count; ++at ) {
        pb::Ref via{ sipsnHeaderViaTryDecodeViaAt( full.via.Get(), at ) };
        if( size_t( at ) < full.vias.size() ) full.vias[ size_t( at ) ] = std::move( via );
    }
    full.from           = pb::Ref{ sipsnHeaderFromTryDecodeFromMessage( msg ) };
    full.to             = pb::Ref{ sipsnHeaderToTryDecodeFromMessage( msg ) };
    full.callId         = pb::Ref{ sipsnHeaderCallIdTryDecodeFromMessage( msg ) };
    full.cseq           = pb::Ref{ sipsnHeaderCseqTryDecodeFromMessage( msg ) };
    full.contact        = pb::Ref{ sipsnHeaderContactTryDecodeFromMessage( msg ) };
    full.route          = pb::Ref{ sipsnHeaderRouteTryDecodeFromMessage( msg ) };
    full.recordRoute    = pb::Ref{ sipsnHeaderRecordRouteTryDecodeFromMessage( msg ) };
    full.maxForwards    = pb::Ref{ sipsnHeaderMaxForwardsTryDecodeFromMessage( msg ) };
    full.allow          = pb::Ref{ sipsnHeaderAllowTryDecodeFromMessage( msg ) };
    full.supported      = pb::Ref{ sipsnHeaderSupportedTryDecodeFromMessage( msg ) };
    full.sessionExpires = pb::Ref{ sipsnHeaderSessionExpiresTryDecodeFromMessage( msg ) };
    full.event          = pb::Ref{ sipsnHeaderEventTryDecodeFromMessage( msg ) };
    full.message        = std::move( message );
    return full;
}

std::vector< pb::Ref< PbObj > > DecodeTyped( PbBuffer *wire )
{
    std::vector< pb::Ref< PbObj > > objects;
    pb::Ref                         message{ sipsnMessageTryDecode( wire ) };
    if( !message ) return objects;
    pb::Ref headers{ sipsnMessageHeadersVector( message.Get() ) };
    for( int64_t at = 0, count = pbVectorLength( headers.Get() ); at < count; ++at ) {
        pb::Ref     field{ pbVectorAt( headers.Get(), at ) };
        pb::Ref     name{ sipsnMessageHeaderName( sipsnMessageHeaderFrom( field.Get() ) ) };
        const auto *family = sipsnSchemaFamilyByName( name.Get() );
        if( !family ) continue;
        pb::Ref hdr{ sipsnSchemaTryDecodeHeader( family, sipsnMessageHeaderFrom( field.Get() ) ) };
        if( hdr && family->itemType ) {
            pb::Ref items{ sipsnSchemaObject( hdr.Get(), 0 ) };
            for( int64_t n = 0; n < pbVectorLength( pbVectorFrom( items.Get() ) ); ++n ) {
                pb::Ref item{ pbVectorStringAt( pbVectorFrom( items.Get() ), n ) };
                objects.emplace_back( sipsnSchemaTryDecode( family->itemType, item.Get() ) );
            }
        }
        objects.push_back( std::move( hdr ) );
    }
    objects.emplace_back( sipsnMessageObj( message.Detach() ) );
    return objects;
}

pb::Ref< PbBuffer > Reply( SipsnMessage *request, PbString *tag )
{
    pb::Ref version{ sipsnMessageVersion( request ) };
    pb::Ref response{ sipsnMessageCreateResponse( version.Get(), 200 ) };
    if( pb::Ref to{ sipsnHeaderToTryDecodeFromMessage( request ) } ) {
        if( !sipsnHeaderToHasTag( to.Get() ) ) sipsnHeaderToSetTag( to.Slot(), tag );
        sipsnHeaderToEncodeToMessage( to.Get(), response.Slot() );
    }
    for( const char *name : { "Via", "From", "Call-Id", "Cseq", "Record-Route" } )
        if( pb::Ref header{ sipsnMessageHeaderCstr( request, name, -1 ) } )
            sipsnMessageSetHeader( response.Slot(), header.Get() );
    return pb::Ref{ sipsnMessageEncode( response.Get() ) };
}

int64_t Stream( PbBuffer *wire )
{
    pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
    sipsnMessageStreamDecoderWrite( decoder.Get(), wire );
    int64_t count = 0;
    while( pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) } ) ++count;
    return count;
}
