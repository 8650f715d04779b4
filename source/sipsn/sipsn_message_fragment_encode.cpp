// Encoding: a fragment into the bytes of a message.
//
// The pieces of the message are visited twice: once to add up their lengths, once to write them into a buffer of
// exactly that size. A message that is ASCII but for its body, as nearly all are, is written without asking for UTF-8
// lengths.
#include "sipsn_message_fragment.h"

#include "sipsn_message_internal.h"
#include "sipsn_token_internal.h"

#include "iri/iri.h"

#include <cstring>
#include <string_view>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace {

// The parts of a start line that are not written as the fragment holds them.
struct StartLineTexts
{
    pb::Ref< PbString > uri;
    pb::Ref< PbString > reasonPhrase;
};

StartLineTexts MakeStartLineTexts( SipsnMessageFragment *frag )
{
    StartLineTexts texts;
    if( sipsnMessageFragmentIsRequest( frag ) )
        texts.uri = pb::Ref{ iriTryConvertToUri( frag->requestIri ) };
    else if( sipsnMessageFragmentIsResponse( frag ) )
        texts.reasonPhrase = pb::Ref{ sipsn___ReasonPhraseEncode( frag->responseReasonPhrase ) };
    return texts;
}

// Hands the text of a message, piece by piece, to a visitor that takes a std::string_view or a PbString.
template< class Visitor > class Pieces
{
public:
    Pieces( SipsnMessageFragment *frag, const StartLineTexts &texts, Visitor &visit )
        : frag_{ frag }, texts_{ texts }, visit_{ visit }
    {}

    void VisitAll()
    {
        VisitStartLine();
        contentLength_ = sipsn::PeekContentLength( frag_ );
        pb___DictVisitValues( frag_->headers, VisitField, this );
        if( !contentLength_ ) VisitContentLength();
        visit_( "\r\n" );
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
            VisitNumber( frag_->responseStatusCode );
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

    static void VisitField( void *pieces, PbObj *field )
    {
        auto *self   = static_cast< Pieces   *>( pieces );
        auto *header = reinterpret_cast< SipsnMessageHeader * >( field );
        if( header == self->contentLength_ )
            self->VisitContentLength();
        else if( header->onlyLine )
            self->VisitLine( header->name, header->onlyLine );
        else
            for( int64_t at = 0, length = sipsn::LineCount( header ); at < length; ++at )
                self->VisitLine( header->name, sipsn::PeekLine( header, at ) );
    }

    void VisitLine( PbString *name, PbString *line )
    {
        visit_( name );
        visit_( ": " );
        visit_( line );
        visit_( "\r\n" );
    }

    void VisitContentLength()
    {
        const int64_t contentLength = frag_->body ? pbBufferLength( frag_->body ) : 0;
        PB_ASSERT( contentLength >= 0 );
        visit_( "Content-Length: " );
        VisitNumber( contentLength );
        visit_( "\r\n" );
    }

    // Status codes have three digits, lengths as many as they need.
    void VisitNumber( int64_t number )
    {
        char  digits[ 20 ];
        char *begin = std::end( digits );
        do {
            *--begin = char( '0' + number % 10 );
            number /= 10;
        } while( number > 0 );
        visit_( std::string_view{ begin, size_t( std::end( digits ) - begin ) } );
    }

    // A text that is missing is one that could not be encoded, or a version that was never set.
    void VisitText( PbString *pbs )
    {
        PB_ASSERT( pbs );
        visit_( pbs );
    }

    SipsnMessageFragment *frag_;
    const StartLineTexts &texts_;
    Visitor              &visit_;
    SipsnMessageHeader   *contentLength_ = nullptr;
};

// Adds up code points: the length in bytes, as long as all are ASCII.
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

// Narrows characters and gathers their bits, so that one test at the end tells whether they were ASCII.
class AsciiWriter
{
public:
    explicit AsciiWriter( PbByte *out ) : out_{ out } {}

    void operator()( std::string_view text )
    {
        std::memcpy( out_, text.data(), text.size() );
        out_ += text.size();
    }

    void operator()( PbString *text )
    {
        Narrow( text->chs, text->length );
        out_ += text->length;
    }

#if defined( __SSE2__ )
    bool AllAscii() const
    {
        const __m128i beyond = _mm_and_si128( bits_, _mm_set1_epi32( ~0x7F ) );
        return _mm_movemask_epi8( _mm_cmpeq_epi8( beyond, _mm_setzero_si128() ) ) == 0xFFFF;
    }

private:
    // Blocks overlap at the end of the text, where that is shorter than a block. The bits are gathered in a local,
    // because a store of bytes may change any member for all that the compiler knows.
    void Narrow( const PbChar *chs, int64_t length )
    {
        PbByte *const out  = out_;
        __m128i       bits = bits_;
        const auto    load = [ & ]( int64_t at ) {
            const __m128i four = _mm_loadu_si128( reinterpret_cast< const __m128i    *>( chs + at ) );
            bits               = _mm_or_si128( bits, four );
            return four;
        };
        const auto narrowEight = [ & ]( int64_t at ) {
            const __m128i low   = load( at );
            const __m128i words = _mm_packs_epi32( low, load( at + 4 ) );
            _mm_storel_epi64( reinterpret_cast< __m128i * >( out + at ), _mm_packus_epi16( words, words ) );
        };
        const auto narrowFour = [ & ]( int64_t at ) {
            const __m128i four  = load( at );
            const __m128i words = _mm_packs_epi32( four, four );
            const int     bytes = _mm_cvtsi128_si32( _mm_packus_epi16( words, words ) );
            std::memcpy( out + at, &bytes, 4 );
        };
        if( length >= 8 ) {
            for( int64_t at = 0; at < length - 8; at += 8 ) narrowEight( at );
            narrowEight( length - 8 );
        } else if( length >= 4 ) {
            narrowFour( 0 );
            narrowFour( length - 4 );
        } else
            for( int64_t at = 0; at < length; ++at ) {
                bits      = _mm_or_si128( bits, _mm_cvtsi32_si128( chs[ at ] ) );
                out[ at ] = PbByte( chs[ at ] );
            }
        bits_ = bits;
    }

    PbByte *out_;
    __m128i bits_ = _mm_setzero_si128();
#else
    bool AllAscii() const { return uint32_t( bits_ ) < 0x80; }

private:
    void Narrow( const PbChar *chs, int64_t length )
    {
        for( int64_t at = 0; at < length; ++at ) {
            bits_ |= chs[ at ];
            out_[ at ] = PbByte( chs[ at ] );
        }
    }

    PbByte *out_;
    PbChar  bits_ = 0;
#endif
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

template< class Visitor >
Visitor VisitMessage( SipsnMessageFragment *frag, const StartLineTexts &texts, Visitor visitor )
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

    const StartLineTexts texts      = MakeStartLineTexts( frag );
    const int64_t        bodyLength = frag->body ? pbBufferLength( frag->body ) : 0;

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
