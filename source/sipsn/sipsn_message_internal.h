// The `sipsn___` functions of the message layer, and what its source files share. Exported where declared so, but no
// part of the public interface.
#pragma once

#include "sipsn_cursor.h"
#include "sipsn_field_table.h"
#include "sipsn_internal.h"
#include "sipsn_message.h"
#include "sipsn_message_lines.h"

#include <span>

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
    int64_t   number;      // of the name, -1 when it is no known one

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnMessageHeader::name, &SipsnMessageHeader::onlyLine, &SipsnMessageHeader::linesVector,
                            &SipsnMessageHeader::number };
    }
    struct CompareOrder
    {
        static int64_t Compare( SipsnMessageHeader &a, SipsnMessageHeader &b );
    };
};

// A header of a known name is in one of two places: what was decoded, in the table, as long as nobody changes it; what
// was set, as an object.
struct SipsnMessageFragment
{
    PbObj              obj;
    PbString          *requestMethod;
    PbString          *requestIri;
    int64_t            responseStatusCode;
    PbString          *responseReasonPhrase;
    SipsnVersion      *version;
    sipsn::FieldTable *received;   // also of names that are no longer there; null: of none
    sipsn::NameSet     inReceived; // those that are
    PbVector          *known;      // SipsnMessageHeader in the order of names; null: none
    sipsn::NameSet     inKnown;
    PbDict            *others; // of all other names, canonical name to SipsnMessageHeader; null: none
    PbBuffer          *body;

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnMessageFragment::requestMethod,
                            &SipsnMessageFragment::requestIri,
                            &SipsnMessageFragment::responseStatusCode,
                            &SipsnMessageFragment::responseReasonPhrase,
                            &SipsnMessageFragment::version,
                            &SipsnMessageFragment::received,
                            &SipsnMessageFragment::inReceived,
                            &SipsnMessageFragment::known,
                            &SipsnMessageFragment::inKnown,
                            &SipsnMessageFragment::others,
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

// A header of a known name with these lines, or this one; and one of another canonical name. References are taken over.
SipsnMessageHeader *CreateHeader( int64_t number, PbVector *lines );
SipsnMessageHeader *CreateHeader( int64_t number, PbString *line );
SipsnMessageHeader *CreateOtherHeader( PbString *name, PbString *line );

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

// Whether a fragment has a header of that known name.
inline bool HasKnown( const SipsnMessageFragment *frag, int64_t number )
{
    return frag->inReceived.Has( number ) || frag->inKnown.Has( number );
}

// The headers of known names that are kept as objects, in the order of their numbers, without references of their own.
inline std::span< SipsnMessageHeader *const > KnownHeaders( SipsnMessageFragment *frag )
{
    if( !frag->known ) return {};
    const auto headers = reinterpret_cast< SipsnMessageHeader *const * >( pb___VectorPeekAll( frag->known ) );
    return { headers, size_t( pbVectorLength( frag->known ) ) };
}

// One of them, or null.
SipsnMessageHeader *PeekKnown( SipsnMessageFragment *frag, int64_t number );

// The lines of a header field, to be read one after the other, wherever they are kept.
class FieldLines
{
public:
    explicit FieldLines( SipsnMessageHeader *header ) : header_{ header }, count_{ LineCount( header ) } {}

    // Those of a known name that the fragment has.
    FieldLines( SipsnMessageFragment *frag, int64_t number )
    {
        if( frag->inReceived.Has( number ) ) {
            const FieldTable::Range range = frag->received->Find( number );
            table_                        = frag->received;
            first_                        = range.first;
            count_                        = range.count;
        } else {
            header_ = PeekKnown( frag, number );
            count_  = LineCount( header_ );
        }
    }

    int64_t Count() const { return count_; }

    // The line at an index below that, until the next is asked for.
    Span At( int64_t index )
    {
        if( !header_ ) return FromTable( index );
        const PbString *line = PeekLine( header_, index );
        return { line->chs, line->length };
    }

    // The same as a new reference.
    PbString *TextAt( int64_t index ) const;

private:
    // Lines of the usual length, of which no string is made.
    static constexpr int64_t usual = 256;

    Span FromTable( int64_t index );

    SipsnMessageHeader *header_ = nullptr;
    const FieldTable   *table_  = nullptr;
    int64_t             first_  = 0; // line of the table
    int64_t             count_  = 0;
    pb::Ref< PbString > long_;
    PbChar              chs_[ usual ];
};

// A new string of bytes that are well-formed UTF-8.
inline PbString *TextOf( Bytes utf8 ) { return pb___StringTryCreateFromUtf8( utf8.data, utf8.length ); }

} // namespace sipsn
