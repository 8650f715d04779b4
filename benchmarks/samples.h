// The messages that are measured, and the operations on a whole message.
#pragma once

#include "sipsn/sipsn.h"

#include "pb/pb_frame.h"

#include <array>
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

pb::Ref< SipsnMessage > Decode( PbBuffer *wire );
pb::Ref< PbBuffer >     Encode( SipsnMessage *message );
pb::Ref< PbBuffer >     RoundTrip( PbBuffer *wire ); // of bytes that decode

// A message with what a proxy or a phone reads of it, each header field in its type. What is absent is no reference.
struct FullMessage
{
    pb::Ref< SipsnMessage >              message;
    pb::Ref< SipsnHeaderVia >            via;
    std::array< pb::Ref< SipsnVia >, 8 > vias; // all values are decoded, and the first of them kept
    pb::Ref< SipsnHeaderFrom >           from;
    pb::Ref< SipsnHeaderTo >             to;
    pb::Ref< SipsnHeaderCallId >         callId;
    pb::Ref< SipsnHeaderCseq >           cseq;
    pb::Ref< SipsnHeaderContact >        contact;
    pb::Ref< SipsnHeaderRoute >          route;
    pb::Ref< SipsnHeaderRecordRoute >    recordRoute;
    pb::Ref< SipsnHeaderMaxForwards >    maxForwards;
    pb::Ref< SipsnHeaderAllow >          allow;
    pb::Ref< SipsnHeaderSupported >      supported;
    pb::Ref< SipsnHeaderSessionExpires > sessionExpires;
    pb::Ref< SipsnHeaderEvent >          event;
};
FullMessage DecodeFull( PbBuffer *wire );

// The message, each header field that has a type in it, and every value of their lists; none when it does not decode.
std::vector< pb::Ref< PbObj > > DecodeTyped( PbBuffer *wire );

// The encoded 200 (OK) to a request: Via, From, Call-Id, Cseq and Record-Route copied, To with a tag.
pb::Ref< PbBuffer > Reply( SipsnMessage *request, PbString *tag );

// Writes the bytes to a new stream decoder at once and reads until there is no more; answers how many messages came.
int64_t Stream( PbBuffer *wire );
