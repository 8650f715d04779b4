// The messages that are measured, and the operations on a whole message.
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

void Decode( PbBuffer *wire ) { pb::Ref message{ sipsnMessageTryDecode( wire ) }; }

void Encode( SipsnMessage *message ) { pb::Ref wire{ sipsnMessageEncode( message ) }; }

void RoundTrip( PbBuffer *wire )
{
    pb::Ref message{ sipsnMessageTryDecode( wire ) };
    Encode( message.Get() );
}

int64_t Stream( PbBuffer *wire )
{
    pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
    sipsnMessageStreamDecoderWrite( decoder.Get(), wire );
    int64_t count = 0;
    while( pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) } ) ++count;
    return count;
}
