// Reading text with the scanner's productions, so that a decoder names what comes next instead of counting indexes.
// C++ only; never installed.
//
//     Cursor in{ chs, length };
//     Span   protocol = in.Take( sipsn___SkipToken );
//     if( !protocol ) return nullptr;
//     while( !in.AtEnd() ) {
//         if( !in.Take( sipsn___SkipSemi ) ) return nullptr;
//         if( Span digits = in.Param( "cause", sipsn___SkipDigits ) ) ...
//     }
//
// A decoder is a template over its cursor. With `Cursor` it answers yes or no as fast as it can; with `WatchedCursor`
// the same code tells a Watch how far it came and what it looked for there, which is how a refusal is explained.
#pragma once

#include "pb/pb_string.h"
#include "sipsn_char_class.h"
#include "sipsn_skip_internal.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace sipsn {

using Production   = int64_t( const PbChar *chs, int64_t length );
using NumberedName = int64_t( const PbChar *chs, int64_t length, int64_t *number );

// A run of characters in somebody else's text; empty stands for "no match".
struct Span
{
    const PbChar *chs    = nullptr;
    int64_t       length = 0;

    explicit  operator bool() const { return length > 0; }
    PbString *ToString() const { return pbStringCreateFromCharsCopy( chs, length ); } // the caller's reference
};

// ---- Why a text is refused -------------------------------------------------------------------------

// What a decoder looked for: something that has a name ("a host"), a word as it would stand in the text ("branch"), or
// what separates the others.
struct Wanted
{
    enum Kind
    {
        named,
        literal,
        separator,
        blank // a separator that has a name
    };

    std::string_view words;
    Kind             kind = named;
};

// Keeps the farthest place that a decoder came to, and all that it looked for there.
struct Watch
{
    const PbChar           *farthest = nullptr; // where the text stops to make sense
    std::array< Wanted, 6 > wanted{};           // there, as far as there is room
    size_t                  wantedCount = 0;
    Wanted                  before{};  // what was read last before it
    Span                    refused{}; // what ends there and has the right form, but is not wanted[ 0 ]: "300"
    int64_t                 lowest = 0, highest = -1; // what it might have been, when that is a number

    void Missed( const PbChar *at, Wanted what );
    void Took( Span text, Wanted what );
    void Refused( Span text, std::string_view words, int64_t from, int64_t to );

private:
    Wanted        last_{};
    const PbChar *lastEnd_ = nullptr;
};

// A cursor's link to its watch. The unwatched one is empty and costs nothing.
struct Unwatched
{
    void Missed( const PbChar *, Wanted ) const {}
    void Took( Span, Wanted ) const {}
    void Refused( Span, std::string_view, int64_t, int64_t ) const {}
};
struct Watched
{
    Watch *watch;

    void Missed( const PbChar *at, Wanted what ) const { watch->Missed( at, what ); }
    void Took( Span text, Wanted what ) const { watch->Took( text, what ); }
    void Refused( Span text, std::string_view words, int64_t from, int64_t to ) const
    {
        watch->Refused( text, words, from, to );
    }
};

// What decoders call the productions that they take without saying what for. Another one aborts.
Wanted WordsOf( Production *production );

// ---- The cursor ------------------------------------------------------------------------------------

// Moves over a text from front to back. What does not match consumes nothing.
template< class Link > class BasicCursor
{
public:
    BasicCursor( const PbChar *chs, int64_t length, Link link = {} ) : rest_{ chs, length }, link_{ link } {}
    explicit BasicCursor( Span text, Link link = {} ) : rest_{ text }, link_{ link } {}

    Span Rest() const { return rest_; }

    // Whether nothing is left; a decoder that stops here where something is left wanted the end.
    bool AtEnd() const
    {
        if( rest_.length == 0 ) return true;
        Missed( { "the end" } );
        return false;
    }

    Span Take( Production *production )
    {
        return Advance( production, [ = ] { return WordsOf( production ); } );
    }
    Span Take( Production *production, std::string_view words )
    {
        return Advance( production, [ = ] { return Wanted{ words }; } );
    }
    Span Take( NumberedName *production, int64_t &number, std::string_view words )
    {
        const auto numbered = [ & ]( const PbChar *chs, int64_t length ) { return production( chs, length, &number ); };
        return Advance( numbered, [ = ] { return Wanted{ words }; } );
    }
    Span Take( PbChar ch )
    {
        const auto one = [ = ]( const PbChar *chs, int64_t length ) { return int64_t( length > 0 && chs[ 0 ] == ch ); };
        return Advance( one, [ = ] { return Wanted{ CharText( ch ), Wanted::separator }; } );
    }

    // Whether the production matches here; nothing is consumed and nothing missed.
    bool Sees( Production *production ) const { return production( rest_.chs, rest_.length ) > 0; }

    // So many digits; what follows them is not looked at.
    Span Digits( int64_t count )
    {
        const auto digits = [ = ]( const PbChar *chs, int64_t length ) {
            return length >= count && sipsn___SkipDigits( chs, count ) == count ? count : 0;
        };
        return Advance( digits, [] { return Wanted{ "digits" }; } );
    }

    // The text in exactly this letter case.
    template< size_t N > Span Text( const char ( &text )[ N ] )
    {
        const auto same = [ & ]( const PbChar *chs, int64_t length ) {
            constexpr int64_t count = N - 1; // without the terminating zero
            return length >= count && std::equal( text, text + count, chs ) ? count : int64_t{ 0 };
        };
        return Advance( same, [ & ] { return Wanted{ { text, N - 1 }, Wanted::literal }; } );
    }

    // The keyword in any letter case. What follows it is not looked at: "tagged" begins with the keyword "tag".
    template< size_t N > Span   Keyword( const char ( &keyword )[ N ] ) { return Keyword( { keyword, N - 1 } ); }
    [[gnu::always_inline]] Span Keyword( std::string_view keyword )
    {
        const int64_t length = int64_t( keyword.size() );
        if( rest_.length < length ) return {};
        for( int64_t n = 0; n < length; ++n )
            if( AsciiLower( rest_.chs[ n ] ) != AsciiLower( keyword[ size_t( n ) ] ) ) return {};
        const Span taken = Move( length );
        link_.Took( taken, { keyword, Wanted::literal } );
        return taken;
    }

    // The value of `keyword EQUAL value`, the keyword in any letter case.
    [[gnu::always_inline]] Span Param( std::string_view keyword, Production *value, std::string_view words )
    {
        BasicCursor ahead = *this;
        if( !ahead.Keyword( keyword ) || !ahead.Take( sipsn___SkipEqual ) ) return {};
        const Span found = ahead.Take( value, words );
        if( found ) *this = ahead;
        return found;
    }

    // Says that a text just taken has the right form, but is not what the words say, or not a number from `from` to
    // `to`. Always false.
    bool Refuse( Span text, std::string_view words, int64_t from = 0, int64_t to = -1 ) const
    {
        link_.Refused( text, words, from, to );
        return false;
    }

    // Says that something ought to stand here. Always false.
    bool Lacks( std::string_view words ) const
    {
        Missed( { words } );
        return false;
    }

private:
    static constexpr bool watched = !std::is_empty_v< Link >;

    static std::string_view CharText( PbChar ch )
    {
        static constexpr char ascii[] = "\"*,:;<=>/";
        const char           *found   = std::find( std::begin( ascii ), std::end( ascii ) - 1, char( ch ) );
        return { found, 1 };
    }

    void Missed( Wanted what ) const { link_.Missed( rest_.chs, what ); }

    Span Move( int64_t count )
    {
        const Span taken{ rest_.chs, count };
        rest_ = { rest_.chs + count, rest_.length - count };
        return taken;
    }

    template< class Match, class Words >
    [[gnu::always_inline]] Span Advance( Match match, [[maybe_unused]] Words words )
    {
        const Span taken = Move( match( rest_.chs, rest_.length ) );
        if constexpr( watched ) {
            if( taken )
                link_.Took( taken, words() );
            else
                Missed( words() );
        }
        return taken;
    }

    Span                       rest_;
    [[no_unique_address]] Link link_;
};

using Cursor        = BasicCursor< Unwatched >;
using WatchedCursor = BasicCursor< Watched >;

} // namespace sipsn
