// The messages that are measured, and the smallest operations on a whole message.
#include "samples.h"

#include <algorithm>
#include <fstream>
#include <iterator>

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

std::string_view BytesOf( PbBuffer *buffer )
{
    return { reinterpret_cast< const char * >( pbBufferBacking( buffer ) ), size_t( pbBufferLength( buffer ) ) };
}

pb::Ref< SipsnMessage > Decode( PbBuffer *wire ) { return pb::Ref{ sipsnMessageTryDecode( wire ) }; }

pb::Ref< PbBuffer > Encode( SipsnMessage *message ) { return pb::Ref{ sipsnMessageEncode( message ) }; }

pb::Ref< PbBuffer > RoundTrip( PbBuffer *wire ) { return Encode( Decode( wire ).Get() ); }

int64_t Stream( PbBuffer *wire )
{
    pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
    sipsnMessageStreamDecoderWrite( decoder.Get(), wire );
    int64_t count = 0;
    while( pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) } ) ++count;
    return count;
}
