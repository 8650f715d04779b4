// Encoding: a fragment into the bytes of a message.
//
// The pieces of the message are visited twice: once to add up their lengths, once to write them into a buffer of
// exactly that size. A message that is ASCII but for its body, as nearly all are, is written without asking for UTF-8
// lengths.
#include "sipsn_message_fragment.h"

#include "sipsn_field_walk.h"
#include "sipsn_token_internal.h"

#include "iri/iri_internal.h"
#include "pb/pb_text.h"

#include <cstring>
#include <string_view>

namespace {

constexpr int64_t contentLength = sipsn::HeaderNumber( "Content-Length" );

// A number in as many digits as it needs, which for a status code are three.
class NumberText
{
public:
    void Set( int64_t number )
    {
        length_ = size_t( pb::WriteNumber( digits_, uint64_t( number ), pb::Radix< 10 >{} ) - digits_ );
    }
    std::string_view View() const { return { digits_, length_ }; }

private:
    char   digits_[ pb::maxDigits ];
    size_t length_ = 0;
};

// What is not written as the fragment holds it.
struct MadeTexts
{
    pb::Ref< PbString > uri;
    NumberText          statusCode;
    pb::Ref< PbString > reasonPhrase;
    NumberText          contentLength;

    MadeTexts( SipsnMessageFragment *frag, int64_t bodyLength )
    {
        if( sipsnMessageFragmentIsRequest( frag ) ) {
            uri = pb::Ref{ iri___ConvertValidIri( frag->requestIri ) };
        } else if( sipsnMessageFragmentIsResponse( frag ) ) {
            statusCode.Set( frag->responseStatusCode );
            reasonPhrase = pb::Ref{ sipsn___ReasonPhraseEncode( frag->responseReasonPhrase ) };
        }
        contentLength.Set( bodyLength );
    }
};

// Hands the text of a message, piece by piece, to a visitor that takes a std::string_view or a PbString.
template< class Visitor > class Pieces
{
public:
    Pieces( SipsnMessageFragment *frag, const MadeTexts &texts, Visitor &visit )
        : frag_{ frag }, texts_{ texts }, visit_{ visit }
    {}

    void VisitAll()
    {
        VisitStartLine();
        sipsn::FieldWalk{ frag_, *this }.All();
        if( !sipsn::HasKnown( frag_, contentLength ) ) VisitContentLength();
        visit_( "\r\n" );
    }

    void Received( int64_t first, int64_t end )
    {
        const auto [ at, count ] = frag_->inReceived.Has( contentLength ) ? frag_->received->Find( contentLength )
                                                                          : sipsn::FieldTable::Range{ end, 0 };
        if( at < first || at >= end ) return VisitLines( first, end );
        VisitLines( first, at );
        VisitContentLength();
        VisitLines( at + count, end );
    }
    void Header( SipsnMessageHeader *header )
    {
        if( header->number == contentLength ) return VisitContentLength();
        for( int64_t at = 0, length = sipsn::LineCount( header ); at < length; ++at ) {
            VisitName( header );
            visit_( sipsn::PeekLine( header, at ) );
            visit_( "\r\n" );
        }
    }

private:
    void VisitStartLine()
    {
        if( sipsnMessageFragmentIsRequest( frag_ ) ) {
            VisitText( frag_->requestMethod );
            visit_( " " );
            VisitText( texts_.uri.Get() );
            visit_( " " );
            VisitVersion();
            visit_( "\r\n" );
        } else if( sipsnMessageFragmentIsResponse( frag_ ) ) {
            VisitVersion();
            visit_( " " );
            visit_( texts_.statusCode.View() );
            visit_( " " );
            VisitText( texts_.reasonPhrase.Get() );
            visit_( "\r\n" );
        }
    }

    void VisitVersion()
    {
        VisitText( frag_->version ? frag_->version->protocolName : nullptr );
        visit_( "/" );
        VisitText( frag_->version->protocolVersion );
    }

    void VisitLines( int64_t first, int64_t end )
    {
        if( first == end ) return;
        const sipsn::Bytes lines = frag_->received->LinesOf( first, end );
        visit_( { reinterpret_cast< const char * >( lines.data ), size_t( lines.length ) } );
    }

    void VisitName( SipsnMessageHeader *header )
    {
        if( const int64_t number = header->number; number >= 0 ) {
            visit_( { sipsn::nameTexts[ size_t( number ) ].data(), size_t( sipsn::NameWidth( number ) ) } );
        } else {
            visit_( header->name );
            visit_( ": " );
        }
    }

    void VisitContentLength()
    {
        visit_( "Content-Length: " );
        visit_( texts_.contentLength.View() );
        visit_( "\r\n" );
    }

    // A text that is missing is one that could not be encoded, or a version that was never set.
    void VisitText( PbString *pbs )
    {
        PB_ASSERT( pbs );
        visit_( pbs );
    }

    SipsnMessageFragment *frag_;
    const MadeTexts      &texts_;
    Visitor              &visit_;
};

// As memcpy, without a call for what is as short as most pieces are: two copies that overlap cover it.
[[gnu::always_inline]] inline void CopyShort( PbByte *to, const char *from, size_t size )
{
    const auto copyEnds = [=]( auto part ) __attribute__( ( always_inline ) )
    {
        std::memcpy( to, from, part );
        std::memcpy( to + size - part, from + size - part, part );
    };
    if( size > 32 )
        std::memcpy( to, from, size );
    else if( size >= 16 )
        copyEnds( std::integral_constant< size_t, 16 >{} );
    else if( size >= 4 ) {
        if( size >= 8 )
            copyEnds( std::integral_constant< size_t, 8 >{} );
        else
            copyEnds( std::integral_constant< size_t, 4 >{} );
    } else
        for( size_t n = 0; n < size; ++n ) to[ n ] = PbByte( from[ n ] );
}

// Adds up code points: the length in bytes, as long as all strings are ASCII. What was received counts in bytes.
struct CharCounter
{
    int64_t length = 0;

    void operator()( std::string_view text ) { length += int64_t( text.size() ); }
    void operator()( PbString *text ) { length += text->length; }
};

struct Utf8Counter
{
    int64_t length = 0;

    void operator()( std::string_view text ) { length += int64_t( text.size() ); }
    void operator()( PbString *text )
    {
        length += pbCharsConvertToUtf8( nullptr, 0, text->chs, text->length, PB_FALSE );
    }
};

class AsciiWriter
{
public:
    explicit AsciiWriter( PbByte *out ) : out_{ out } {}

    void operator()( std::string_view text )
    {
        CopyShort( out_, text.data(), text.size() );
        out_ += text.size();
    }
    void operator()( PbString *text )
    {
        narrower_.Write( out_, text->chs, text->length );
        out_ += text->length;
    }

    bool AllAscii() const { return narrower_.AllAscii(); }

private:
    PbByte      *out_;
    pb::Narrower narrower_;
};

struct Utf8Writer
{
    PbByte *out;
    PbByte *end;

    void operator()( std::string_view text )
    {
        std::memcpy( out, text.data(), text.size() );
        out += text.size();
    }
    void operator()( PbString *text )
    {
        out += pbCharsConvertToUtf8( out, end - out, text->chs, text->length, PB_FALSE );
    }
};

template< class Visitor > Visitor VisitMessage( SipsnMessageFragment *frag, const MadeTexts &texts, Visitor visitor )
{
    Pieces< Visitor >{ frag, texts, visitor }.VisitAll();
    return visitor;
}

void CopyBody( SipsnMessageFragment *frag, PbByte *out )
{
    if( frag->body && pbBufferLength( frag->body ) > 0 )
        std::memcpy( out, pbBufferBacking( frag->body ), size_t( pbBufferLength( frag->body ) ) );
}

} // namespace

PbBuffer *sipsnMessageFragmentEncode( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );

    const int64_t   bodyLength = frag->body ? pbBufferLength( frag->body ) : 0;
    const MadeTexts texts{ frag, bodyLength };

    PbByte       *bytes;
    const int64_t asciiLength = VisitMessage( frag, texts, CharCounter{} ).length;
    pb::Ref       buffer{ pb___BufferCreateUninitialized( asciiLength + bodyLength, &bytes ) };
    if( VisitMessage( frag, texts, AsciiWriter{ bytes } ).AllAscii() ) {
        CopyBody( frag, bytes + asciiLength );
        return buffer.Detach();
    }
    const int64_t utf8Length = VisitMessage( frag, texts, Utf8Counter{} ).length;
    buffer                   = pb::Ref{ pb___BufferCreateUninitialized( utf8Length + bodyLength, &bytes ) };
    VisitMessage( frag, texts, Utf8Writer{ bytes, bytes + utf8Length } );
    CopyBody( frag, bytes + utf8Length );
    return buffer.Detach();
}
