// UTF-8 to code points and back. Runs of ASCII, which is nearly all that SIP carries, are converted 16 characters at a
// time, or 32 where the processor has AVX2.
#include "pb_text.h"

#include <algorithm>

#if defined( __SSE2__ )
#include <immintrin.h>
#endif

namespace pb {
namespace {

// WidenAscii and NarrowAscii convert ASCII from the start of a text, as far as it goes, and return how many characters
// that were. The Block functions convert one block, or answer false when it is not all ASCII. What is left of a text
// that is not a multiple of a block long is covered by a block that overlaps the one before.

#if defined( __SSE2__ )

const bool hasAvx2 = ( __builtin_cpu_init(), __builtin_cpu_supports( "avx2" ) );

__m128i Load( const PbChar *chs ) { return _mm_loadu_si128( reinterpret_cast< const __m128i * >( chs ) ); }

void Store( PbChar *chs, __m128i four ) { _mm_storeu_si128( reinterpret_cast< __m128i * >( chs ), four ); }

bool WidenBlock( PbChar *chs, const PbByte *bytes )
{
    const __m128i zero  = _mm_setzero_si128();
    const __m128i block = Block::Load( bytes ).bytes;
    if( _mm_movemask_epi8( block ) ) return false;
    const __m128i low  = _mm_unpacklo_epi8( block, zero );
    const __m128i high = _mm_unpackhi_epi8( block, zero );
    Store( chs, _mm_unpacklo_epi16( low, zero ) );
    Store( chs + 4, _mm_unpackhi_epi16( low, zero ) );
    Store( chs + 8, _mm_unpacklo_epi16( high, zero ) );
    Store( chs + 12, _mm_unpackhi_epi16( high, zero ) );
    return true;
}

// Packing 32 bits to 16 with signed saturation keeps what is not ASCII recognisable: it stays above 7F or negative.
bool NarrowBlock( PbByte *bytes, const PbChar *chs )
{
    const __m128i notAscii = _mm_set1_epi16( static_cast< int16_t >( 0xFF80 ) );
    const __m128i low      = _mm_packs_epi32( Load( chs ), Load( chs + 4 ) );
    const __m128i high     = _mm_packs_epi32( Load( chs + 8 ), Load( chs + 12 ) );
    const __m128i other    = _mm_and_si128( _mm_or_si128( low, high ), notAscii );
    if( _mm_movemask_epi8( _mm_cmpeq_epi16( other, _mm_setzero_si128() ) ) != 0xFFFF ) return false;
    _mm_storeu_si128( reinterpret_cast< __m128i * >( bytes ), _mm_packus_epi16( low, high ) );
    return true;
}

// Half a block.
bool WidenHalf( PbChar *chs, const PbByte *bytes )
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i half = _mm_loadl_epi64( reinterpret_cast< const __m128i * >( bytes ) );
    if( _mm_movemask_epi8( half ) ) return false;
    const __m128i words = _mm_unpacklo_epi8( half, zero );
    Store( chs, _mm_unpacklo_epi16( words, zero ) );
    Store( chs + 4, _mm_unpackhi_epi16( words, zero ) );
    return true;
}

__attribute__( ( target( "avx2" ) ) ) __m256i WidenEight( const PbByte *bytes )
{
    return _mm256_cvtepu8_epi32( _mm_loadl_epi64( reinterpret_cast< const __m128i * >( bytes ) ) );
}

// The blocks of 32, as far as they are ASCII.
__attribute__( ( target( "avx2" ) ) ) int64_t WidenWide( PbChar *chs, const PbByte *bytes, int64_t length )
{
    const __m256i notAscii = _mm256_set1_epi8( static_cast< char >( 0x80 ) );
    int64_t       done     = 0;
    for( ; length - done >= 32; done += 32 ) {
        const auto to = reinterpret_cast< __m256i * >( chs + done );

        const PbByte *from = bytes + done;
        if( !_mm256_testz_si256( _mm256_loadu_si256( reinterpret_cast< const __m256i * >( from ) ), notAscii ) ) break;
        _mm256_storeu_si256( to, WidenEight( from ) );
        _mm256_storeu_si256( to + 1, WidenEight( from + 8 ) );
        _mm256_storeu_si256( to + 2, WidenEight( from + 16 ) );
        _mm256_storeu_si256( to + 3, WidenEight( from + 24 ) );
    }
    return done;
}

__attribute__( ( target( "avx2" ) ) ) int64_t NarrowWide( PbByte *bytes, const PbChar *chs, int64_t length )
{
    const __m256i notAscii = _mm256_set1_epi16( static_cast< int16_t >( 0xFF80 ) );
    // Packing works in each half of the register by itself; this puts the fours of characters back in order.
    const __m256i order = _mm256_setr_epi32( 0, 4, 1, 5, 2, 6, 3, 7 );
    int64_t       done  = 0;
    for( ; length - done >= 32; done += 32 ) {
        const auto from = reinterpret_cast< const __m256i * >( chs + done );

        const __m256i low  = _mm256_packs_epi32( _mm256_loadu_si256( from ), _mm256_loadu_si256( from + 1 ) );
        const __m256i high = _mm256_packs_epi32( _mm256_loadu_si256( from + 2 ), _mm256_loadu_si256( from + 3 ) );
        if( !_mm256_testz_si256( _mm256_or_si256( low, high ), notAscii ) ) break;
        _mm256_storeu_si256( reinterpret_cast< __m256i * >( bytes + done ),
                             _mm256_permutevar8x32_epi32( _mm256_packus_epi16( low, high ), order ) );
    }
    return done;
}

int64_t WidenBlocks( PbChar *chs, const PbByte *bytes, int64_t length )
{
    if( length < 8 ) return 0;
    if( length < 16 ) {
        const int64_t last = length - 8;
        return WidenHalf( chs, bytes ) && WidenHalf( chs + last, bytes + last ) ? length : 0;
    }
    int64_t done = hasAvx2 ? WidenWide( chs, bytes, length ) : 0;
    for( ; length - done >= 16; done += 16 )
        if( !WidenBlock( chs + done, bytes + done ) ) return done;
    const int64_t last = length - 16;
    return WidenBlock( chs + last, bytes + last ) ? length : done;
}

int64_t NarrowBlocks( PbByte *bytes, const PbChar *chs, int64_t length )
{
    if( length < 16 ) return 0;
    int64_t done = hasAvx2 ? NarrowWide( bytes, chs, length ) : 0;
    for( ; length - done >= 16; done += 16 )
        if( !NarrowBlock( bytes + done, chs + done ) ) return done;
    const int64_t last = length - 16;
    return NarrowBlock( bytes + last, chs + last ) ? length : done;
}

#else

int64_t WidenBlocks( PbChar *, const PbByte *, int64_t ) { return 0; }
int64_t NarrowBlocks( PbByte *, const PbChar *, int64_t ) { return 0; }

#endif

int64_t WidenAscii( PbChar *chs, const PbByte *bytes, int64_t length )
{
    int64_t done = WidenBlocks( chs, bytes, length );
    for( ; done < length && bytes[ done ] < 0x80; ++done ) chs[ done ] = bytes[ done ];
    return done;
}

int64_t NarrowAscii( PbByte *bytes, const PbChar *chs, int64_t length )
{
    int64_t done = NarrowBlocks( bytes, chs, length );
    for( ; done < length && IsAscii( chs[ done ] ); ++done ) bytes[ done ] = static_cast< PbByte >( chs[ done ] );
    return done;
}

// Writes a character that is not ASCII to `sequence` and returns its length; 0 when UTF-8 cannot write it.
int64_t EncodeSequence( PbByte ( &sequence )[ 4 ], PbChar ch )
{
    const auto code = static_cast< uint32_t >( ch );
    const auto tail = [ code ]( int shift ) { return static_cast< PbByte >( 0x80 | ( ( code >> shift ) & 0x3F ) ); };
    if( code < 0x800 ) {
        sequence[ 0 ] = static_cast< PbByte >( 0xC0 | ( code >> 6 ) );
        sequence[ 1 ] = tail( 0 );
        return 2;
    }
    if( code < 0x10000 ) {
        if( code >= 0xD800 && code < 0xE000 ) return 0;
        sequence[ 0 ] = static_cast< PbByte >( 0xE0 | ( code >> 12 ) );
        sequence[ 1 ] = tail( 6 );
        sequence[ 2 ] = tail( 0 );
        return 3;
    }
    if( code > 0x10FFFF ) return 0;
    sequence[ 0 ] = static_cast< PbByte >( 0xF0 | ( code >> 18 ) );
    sequence[ 1 ] = tail( 12 );
    sequence[ 2 ] = tail( 6 );
    sequence[ 3 ] = tail( 0 );
    return 4;
}

} // namespace

int64_t DecodeUtf8( PbChar *chs, const PbByte *bytes, int64_t length, bool strict )
{
    PbChar *const       start = chs;
    const PbByte *const end   = bytes + length;
    while( bytes < end ) {
        const int64_t ascii = WidenAscii( chs, bytes, end - bytes );
        chs += ascii;
        bytes += ascii;
        // Text that is not ASCII comes in runs; it is not worth starting the kernels for a few bytes between.
        for( const PbByte *pause = bytes + 16; bytes < end && bytes < pause; ++chs ) {
            bytes += DecodeUtf8Sequence( *chs, bytes, end - bytes );
            if( *chs >= 0 ) continue;
            if( strict ) return -1;
            *chs = replacementChar;
        }
    }
    return chs - start;
}

int64_t EncodeUtf8( PbByte *bytes, int64_t bytesLength, const PbChar *chs, int64_t chsLength, bool strict )
{
    const PbChar *const end     = chs + chsLength;
    int64_t             written = 0;
    bool                full    = false;
    while( chs < end ) {
        // Once something did not fit, what follows is only measured.
        PbByte        scratch[ 256 ];
        const int64_t room = full ? int64_t( sizeof scratch ) : bytesLength - written;
        const int64_t ascii =
            NarrowAscii( full ? scratch : bytes + written, chs, std::min< int64_t >( room, end - chs ) );
        chs += ascii;
        written += ascii;
        if( chs == end ) break;
        if( IsAscii( *chs ) ) { // stopped by the room, not by the character
            full = true;
            continue;
        }
        PbByte  sequence[ 4 ];
        int64_t length = EncodeSequence( sequence, *chs++ );
        if( !length ) {
            if( strict ) return -1;
            length = EncodeSequence( sequence, replacementChar );
        }
        full = full || length > bytesLength - written;
        if( !full ) std::copy_n( sequence, length, bytes + written );
        written += length;
    }
    return written;
}

} // namespace pb
