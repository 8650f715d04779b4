// The messages that are measured, and the smallest operations on a whole message.
#pragma once

#include "sipsn/sipsn.h"

#include "pb/pb_frame.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// The files of benchmarks/messages and examples/messages, which are called "benchmarks/invite.sip" and the like.
struct Sample
{
    std::string           name;
    std::filesystem::path path;
};
std::vector< Sample > Samples();

// The bytes of a file; no reference when it cannot be read.
pb::Ref< PbBuffer > ReadFile( const std::filesystem::path &path );

pb::Ref< PbBuffer > BufferOf( std::string_view bytes );
std::string_view    BytesOf( PbBuffer *buffer );

pb::Ref< SipsnMessage > Decode( PbBuffer *wire );
pb::Ref< PbBuffer >     Encode( SipsnMessage *message );
pb::Ref< PbBuffer >     RoundTrip( PbBuffer *wire ); // of bytes that decode

// Writes the bytes to a new stream decoder at once and reads until there is no more; answers how many messages came.
int64_t Stream( PbBuffer *wire );
