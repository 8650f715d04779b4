// What the token families share, so that a family's own file states only its rule: whole-text matching, case mapping,
// integers in a range, and strings written in one allocation. C++ only; never installed.
//
//     bool sipsnTokenOk( PbString *token )
//     {
//         PB_ASSERT( token );
//         return sipsn::Matches( token, sipsn___SkipToken );
//     }
//     PbString *sipsnTokenNormalize( PbString *token )
//     {
//         PB_ASSERT( sipsnTokenOk( token ) );
//         return sipsn::ToLower( token );
//     }
#pragma once

#include "pb/pb_format.h"
#include "pb/pb_internal.h"
#include "sipsn_cursor.h"
#include "sipsn_known_tokens.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace sipsn {

inline std::span< const PbChar > Characters( PbString *string ) { return { string->chs, size_t( string->length ) }; }

// To the end in any case, so that it is done several characters at a time.
inline bool HasLineEnd( PbString *string )
{
    uint32_t found = 0;
    for( PbChar ch : Characters( string ) ) found |= uint32_t( ch == '\r' ) | uint32_t( ch == '\n' );
    return found != 0;
}

// ---- Matching --------------------------------------------------------------------------------------

// Whether one production covers the whole text; no production covers the empty text.
inline bool Matches( const PbChar *chs, int64_t length, Production *production )
{
    return length > 0 && production( chs, length ) == length;
}
inline bool Matches( PbString *string, Production *production )
{
    return Matches( string->chs, string->length, production );
}

// Whether the text is what one production covers with blanks around it, or blanks alone, or empty.
inline bool MatchesBetweenBlanks( PbString *string, Production *production )
{
    Cursor in{ string->chs, string->length };
    in.Take( sipsn___SkipSws );
    in.Take( production );
    in.Take( sipsn___SkipSws );
    return in.AtEnd();
}

// ---- Strings in one allocation ---------------------------------------------------------------------

// The string of the characters that `write` hands to its argument, one by one. `write` runs twice, first to count.
template< class Write > PbString *StringOf( Write write )
{
    int64_t length = 0;
    write( [ & ]( PbChar ) { ++length; } );

    PbString *string = pb___StringCreateUninitialized( length );
    PbChar   *end    = string->chs;
    write( [ & ]( PbChar ch ) { *end++ = ch; } );
    return string;
}

// The words of the text, separated by single spaces; words are what blanks and tabs separate.
inline PbString *CollapseBlanks( const PbChar *chs, int64_t length )
{
    return StringOf( [ = ]( auto put ) {
        bool within = false, blank = false; // whether there was a word, and a blank after it
        for( int64_t i = 0; i < length; ++i ) {
            if( Is( chs[ i ], Lws ) ) {
                blank = within;
                continue;
            }
            if( blank ) put( ' ' );
            put( chs[ i ] );
            within = true;
            blank  = false;
        }
    } );
}

// The string itself when it has no blanks to drop or replace.
inline PbString *CollapseBlanks( PbString *string )
{
    bool collapsed  = true;
    bool afterBlank = true;
    for( PbChar ch : Characters( string ) ) {
        const bool blank = Is( ch, Lws );
        collapsed &= !blank || ( ch == ' ' && !afterBlank );
        afterBlank = blank;
    }
    if( ( collapsed && !afterBlank ) || string->length == 0 ) return pb::Retain( string );
    return CollapseBlanks( string->chs, string->length );
}

// ---- Case ------------------------------------------------------------------------------------------

// The text with the letters from `first` on in the other case. `beyondAscii` maps what else a text may hold.
template< PbChar first, void ( *beyondAscii )( PbString ** ) > PbString *MapCase( const PbChar *chs, int64_t length )
{
    if( PbChar token[ longestKnownToken ]; length <= longestKnownToken )
        if( pb::CopyInOtherCase< first >( token, chs, length ) ) return TokenFromChars( token, length );
    PbString *mapped = pb___StringCreateUninitialized( length );
    if( !pb::CopyInOtherCase< first >( mapped->chs, chs, length ) ) beyondAscii( &mapped );
    return mapped;
}

// The string itself when there is nothing to map.
template< PbChar first, void ( *beyondAscii )( PbString ** ) > PbString *MapCase( PbString *string )
{
    const auto mappable = []( PbChar ch ) { return pb::IsLetterFrom( first, ch ) || !pb::IsAscii( ch ); };
    if( std::ranges::none_of( Characters( string ), mappable ) ) return pb::Retain( string );
    return MapCase< first, beyondAscii >( string->chs, string->length );
}

// New strings, from characters.
inline PbString *LowerFromChars( const PbChar *chs, int64_t length )
{
    return MapCase< 'A', pbStringToLower >( chs, length );
}
inline PbString *UpperFromChars( const PbChar *chs, int64_t length )
{
    return MapCase< 'a', pbStringToUpper >( chs, length );
}

// New references, to the string itself when it has the case already.
inline PbString *ToLower( PbString *string ) { return MapCase< 'A', pbStringToLower >( string ); }
inline PbString *ToUpper( PbString *string ) { return MapCase< 'a', pbStringToUpper >( string ); }

// ---- Integers --------------------------------------------------------------------------------------

// The characters as one whole decimal integer of 0 to `highest`, or -1.
inline int64_t DecodeInt( const PbChar *chs, int64_t length, int64_t highest )
{
    const auto [ value, digits ] = pb::ReadNumber( chs, length, pb::Radix< 10 >{}, uint64_t( highest ) );
    return length > 0 && digits == length && value <= uint64_t( highest ) ? int64_t( value ) : -1;
}

// Reads digits as one decimal integer; -1 when there are none, or when they do not fit 64 bits.
inline int64_t TakeDecimal( Cursor &in )
{
    const Span digits = in.Take( sipsn___SkipDigits );
    return digits ? DecodeInt( digits.chs, digits.length, INT64_MAX ) : -1;
}

// ---- Texts of codes --------------------------------------------------------------------------------

struct CodeText
{
    int64_t     code;
    const char *text;
};

// The text of a code in a table in ascending order of codes; null when it has none.
template< size_t N > const char *TextOfCode( const CodeText ( &table )[ N ], int64_t code )
{
    const CodeText *found = std::ranges::lower_bound( table, code, {}, &CodeText::code );
    return found != std::end( table ) && found->code == code ? found->text : nullptr;
}

} // namespace sipsn
