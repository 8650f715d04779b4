// The operations on a whole message that are counted and timed. Those that decode start from the bytes as a socket
// gives them: to make a buffer of them counts.
#pragma once

#include "samples.h"
#include "values.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

// References to values, in order. It takes no memory of its own, so that only what the library takes is counted.
template< class Type, size_t most = 64 > class Values
{
public:
    Values() = default;
    Values( Values &&other ) noexcept : count_( std::exchange( other.count_, 0 ) )
    {
        std::copy_n( other.values_, count_, values_ );
    }
    Values &operator=( Values && ) = delete;
    ~Values()
    {
        while( count_ > 0 ) pb::Release( values_[ --count_ ] );
    }

    void Add( Type *owned )
    {
        PB_ASSERT( count_ < most );
        if( owned ) values_[ count_++ ] = owned;
    }
    Type *const *begin() const { return values_; }
    Type *const *end() const { return values_ + count_; }

private:
    Type  *values_[ most ];
    size_t count_ = 0;
};

// What a full decode types: the header fields with values of a type of their own, and the others.
#define FULL_LISTS( LIST )                                                                                             \
    LIST( Via, Vias, Via, Via )                                                                                        \
    LIST( Contact, Contacts, Contact, Contact )                                                                        \
    LIST( Route, Routes, Route, Route )                                                                                \
    LIST( RecordRoute, Routes, Route, Route )                                                                          \
    LIST( Accept, Accepts, Accept, Accept )
#define FULL_SINGLES( SINGLE )                                                                                         \
    SINGLE( From )                                                                                                     \
    SINGLE( To )                                                                                                       \
    SINGLE( CallId )                                                                                                   \
    SINGLE( Cseq )                                                                                                     \
    SINGLE( MaxForwards )                                                                                              \
    SINGLE( Expires )                                                                                                  \
    SINGLE( SessionExpires )                                                                                           \
    SINGLE( MinSe )                                                                                                    \
    SINGLE( Event )                                                                                                    \
    SINGLE( ContentType )                                                                                              \
    SINGLE( Allow )                                                                                                    \
    SINGLE( Require )                                                                                                  \
    SINGLE( Supported )

// A message with what a proxy or a phone reads of it, each header field and each value of a list in its type. What is
// absent is no reference. The message is released last.
struct FullMessage
{
    pb::Ref< SipsnMessage > message;
#define LIST( Type, Items, Item, Value )                                                                               \
    pb::Ref< SipsnHeader##Type > header##Type;                                                                         \
    Values< Sipsn##Value >       values##Type;
    FULL_LISTS( LIST )
#undef LIST
#define SINGLE( Type ) pb::Ref< SipsnHeader##Type > header##Type;
    FULL_SINGLES( SINGLE )
#undef SINGLE
    int64_t sum = 0; // of all numbers and lengths of texts that were read
};

// Looks the six header fields up that tell a dialog, a transaction and a peer; answers how many the message has.
int64_t FindFields( SipsnMessage *message );

// The message decoded, and its six header fields found.
pb::Ref< SipsnMessage > DecodeAndFind( std::string_view bytes );

// All but the message and the sum, from a message that may be shared.
void TypeFields( SipsnMessage *message, FullMessage &full );

FullMessage DecodeFull( std::string_view bytes );

// A message and what was made of it; the message is released last.
using Objects = Values< PbObj, 1024 >;

// The message, whatever header field there is a type for, asked for with the type's own function, and every value.
Objects DecodeAll( std::string_view bytes );

// The same by way of the schema, of those header fields that the message has.
Objects DecodeTyped( std::string_view bytes );

// The message's bytes, with every header field that was typed written anew from its objects.
pb::Ref< PbBuffer > EncodeTyped( const FullMessage &full );

// Decodes all and encodes the message with the lines that it has.
pb::Ref< PbBuffer > FullAndEncode( std::string_view bytes );

// The encoded 200 (OK) to an INVITE, RFC 3261 section 13.3.1.4: Via, From, Call-Id, Cseq and Record-Route copied, To
// with a tag, a Contact, and a body with its Content-Type.
pb::Ref< PbBuffer > Reply( SipsnMessage *request );

// What a proxy does with a request, RFC 3261 section 16.6: decode it, count Max-Forwards down, take the topmost Route
// off, put its own Via and Record-Route in front, encode.
class Proxy
{
public:
    pb::Ref< PbBuffer > Forward( std::string_view bytes ) const;

private:
    pb::Ref< SipsnVersion > version_{ sipsnVersionCreateSip20() };
    pb::Ref< PbString >     transport_{ pbStringCreateFromCstr( "tcp", -1 ) };
    pb::Ref< PbString >     host_{ pbStringCreateFromCstr( "proxy.example.com", -1 ) };
    pb::Ref< PbString >     branch_{ pbStringCreateFromCstr( "z9hG4bK9a8b7c6d5e", -1 ) };
    pb::Ref< PbString >     iri_{ pbStringCreateFromCstr( "sip:proxy.example.com;lr", -1 ) };
};

// Decodes messages from a stream that repeats the same bytes without end, in pieces as Ethernet cuts TCP.
class PiecesReader
{
public:
    explicit PiecesReader( std::string_view bytes );

    // The next message, with its six header fields found; none once the bytes are no messages.
    pb::Ref< SipsnMessage > Next();

private:
    bool WritePiece();

    std::string                          bytes_; // with what follows them in a piece that starts near their end
    size_t                               period_;
    size_t                               at_ = 0;
    pb::Ref< SipsnMessageStreamDecoder > decoder_{ sipsnMessageStreamDecoderCreate() };
};

// Calls `run` with a function that does the operation of this name once and returns what it made. False for an unknown
// name, for bytes that do not decode, and for an operation on requests where they are a response.
template< class Run > bool RunOnMessage( std::string_view operation, std::string_view bytes, Run run )
{
    if( operation == "stream" ) {
        PiecesReader reader{ bytes };
        return reader.Next() && ( run( [ & ] { return reader.Next(); } ), true );
    }
    pb::Ref wire    = BufferOf( bytes );
    pb::Ref message = Decode( wire.Get() );
    if( !message ) return false;
    const auto does = [ & ]( std::string_view name, auto make ) { return operation == name && ( run( make ), true ); };
    if( does( "decode", [ & ] { return Decode( wire.Get() ); } ) ||
        does( "find", [ & ] { return DecodeAndFind( bytes ); } ) ||
        does( "full", [ & ] { return DecodeFull( bytes ); } ) || does( "all", [ & ] { return DecodeAll( bytes ); } ) ||
        does( "typed", [ & ] { return DecodeTyped( bytes ); } ) ||
        does( "encode", [ & ] { return Encode( message.Get() ); } ) ||
        does( "full-encode", [ & ] { return FullAndEncode( bytes ); } ) )
        return true;
    if( operation == "encode-typed" ) {
        const FullMessage full = DecodeFull( bytes );
        return run( [ & ] { return EncodeTyped( full ); } ), true;
    }
    if( !sipsnMessageIsRequest( message.Get() ) ) return false;
    const Proxy proxy;
    return does( "reply", [ & ] { return Reply( message.Get() ); } ) ||
           does( "forward", [ & ] { return proxy.Forward( bytes ); } );
}

// The same for an operation on a type of value: "scan-value", "decode-value" or "encode-value".
template< class Run > bool RunOnValue( std::string_view operation, std::string_view type, Run run )
{
    const auto samples = ValueSamples();
    const auto sample  = std::ranges::find( samples, type, &ValueSample::type );
    if( sample == samples.end() ) return false;
    pb::Ref       text{ pbStringCreateFromCstr( sample->text, -1 ) };
    const PbChar *chs    = pbStringBacking( text.Get() );
    const int64_t length = pbStringLength( text.Get() );
    const auto    decode = [ & ] { return pb::Ref{ sample->tryDecode( chs, length ) }; };
    pb::Ref       value  = decode();
    if( !value || sample->scan( chs, length ) != length ) return false;
    const auto does = [ & ]( std::string_view name, auto make ) { return operation == name && ( run( make ), true ); };
    return does( "scan-value", [ & ] { return sample->scan( chs, length ); } ) || does( "decode-value", decode ) ||
           does( "encode-value", [ & ] { return pb::Ref{ sample->encode( value.Get() ) }; } );
}

// The subject is the name of a file, or a type for the operations on values.
template< class Run > bool RunOperation( std::string_view operation, std::string_view subject, Run run )
{
    if( operation.ends_with( "-value" ) ) return RunOnValue( operation, subject, run );
    pb::Ref file = ReadFile( subject );
    return file && RunOnMessage( operation, BytesOf( file.Get() ), run );
}
