// The `sipsn___` functions of the message layer, and what its source files share. Exported where declared so, but no
// part of the public interface.
#pragma once

#include "sipsn_internal.h"
#include "sipsn_message.h"
#include "sipsn_message_lines.h"

struct SipsnVersion
{
    PbObj     obj;
    PbString *protocolName;
    PbString *protocolVersion;

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnVersion::protocolName, &SipsnVersion::protocolVersion };
    }
};

// Nearly every header has one line, and then no vector for it.
struct SipsnMessageHeader
{
    PbObj     obj;
    PbString *name;
    PbString *onlyLine;    // null when there is none, and when there is `linesVector`
    PbVector *linesVector; // null as long as there is one line or none; it may hold any number

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnMessageHeader::name, &SipsnMessageHeader::onlyLine,
                            &SipsnMessageHeader::linesVector };
    }
    struct CompareOrder
    {
        static int64_t Compare( SipsnMessageHeader &a, SipsnMessageHeader &b );
    };
};

struct SipsnMessageFragment
{
    PbObj         obj;
    PbString     *requestMethod;
    PbString     *requestIri;
    int64_t       responseStatusCode;
    PbString     *responseReasonPhrase;
    SipsnVersion *version;
    PbDict       *headers;            // canonical name to SipsnMessageHeader
    int64_t       mayHold, mayHold64; // a bit for each known name: clear when there is no such header field
    PbBuffer     *body;

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnMessageFragment::requestMethod,
                            &SipsnMessageFragment::requestIri,
                            &SipsnMessageFragment::responseStatusCode,
                            &SipsnMessageFragment::responseReasonPhrase,
                            &SipsnMessageFragment::version,
                            &SipsnMessageFragment::headers,
                            &SipsnMessageFragment::mayHold,
                            &SipsnMessageFragment::mayHold64,
                            &SipsnMessageFragment::body };
    }
    using CompareOrder = pb::ByAddress;
};

struct SipsnMessage
{
    PbObj                 obj;
    SipsnMessageFragment *fragment;

    static constexpr auto Members() { return pb::Members{ &SipsnMessage::fragment }; }
    using CompareOrder = pb::ByAddress;
};

PB_BEGIN_DECLS

PB_API PbString     *sipsn___VersionEncode( SipsnVersion *version );
PB_API SipsnVersion *sipsn___VersionTryDecode( const PbChar *chs, int64_t length );

PB_API void sipsn___VersionStartup( void );
PB_API void sipsn___VersionShutdown( void );
PB_API void sipsn___MessageHeaderStartup( void );
PB_API void sipsn___MessageHeaderShutdown( void );
PB_API void sipsn___MessageFragmentStartup( void );
PB_API void sipsn___MessageFragmentShutdown( void );

PB_END_DECLS

namespace sipsn {

// The place of the CR LF CR LF that ends a header block, searched from `position`; -1 when there is none.
int64_t FindHeaderEnd( const PbByte *bytes, int64_t length, int64_t position );

// What a header block was refused for: its first line, a field with all of its lines, or the value of the last
// Content-Length. A block without a start line decodes all the same; its first line is noted here, too.
struct Refusal
{
    enum Part
    {
        nothing,
        startLine,
        field,
        contentLength
    };

    Part  part = nothing;
    Bytes where; // not for contentLength
};

// Decodes a header block; see sipsnMessageFragmentTryDecodeHeaders. The refusal may be null.
SipsnMessageFragment *TryDecodeHeaders( Bytes head, int64_t *contentLength, Refusal *refusal );

// The fault that a header block is refused for, and the bytes that are at fault.
struct Explanation
{
    int64_t kind;
    Bytes   where;
};
Explanation Explain( Bytes head, const Refusal &refusal );
Explanation ExplainNoHeaderEnd( Bytes head );

// The value of the last Content-Length in a header block, as it stands; empty, at the end, when there is none.
Bytes FindContentLength( Bytes head );

// The offset of the first start line behind the first line; -1 when there is none.
int64_t FindStartLine( Bytes bytes );

// The parts of a start line.
bool          IsStartLine( Bytes line );
SipsnVersion *TryDecodeVersion( Bytes text );
int64_t       ReadStatusCode( Bytes digits ); // -1 when they are none, or make a number above 999

// A header of a canonical name with these lines, or this one; the references are taken over.
SipsnMessageHeader *CreateHeader( PbString *name, PbVector *lines );
SipsnMessageHeader *CreateHeader( PbString *name, PbString *line );

// Takes over the reference of the line. The header is the caller's own.
void AppendLineOwned( SipsnMessageHeader *header, PbString *line );

inline int64_t LineCount( const SipsnMessageHeader *header )
{
    return header->linesVector ? pbVectorLength( header->linesVector ) : header->onlyLine != nullptr;
}

// The line at an index below that count, without a reference of its own.
inline PbString *PeekLine( const SipsnMessageHeader *header, int64_t index )
{
    if( !header->linesVector ) return header->onlyLine;
    return reinterpret_cast< PbString * >( pb___VectorPeek( header->linesVector, index ) );
}

// The header of a canonical name, without a reference of its own, or null.
inline SipsnMessageHeader *PeekHeader( SipsnMessageFragment *frag, PbString *canonicalName )
{
    return reinterpret_cast< SipsnMessageHeader * >( pb___DictPeek( frag->headers, canonicalName ) );
}

// Whether there may be a header of the known name of that number: 128 names apart, two share a bit. Setting a header
// sets all bits.
inline bool MayHold( const SipsnMessageFragment *frag, int64_t number )
{
    return ( ( number % 128 < 64 ? frag->mayHold : frag->mayHold64 ) >> ( number % 64 ) & 1 ) != 0;
}

// The fragment's Content-Length header, without a reference of its own, or null.
SipsnMessageHeader *PeekContentLength( SipsnMessageFragment *frag );

} // namespace sipsn
