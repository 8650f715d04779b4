// The header fields of a message as they were received: their lines, as they are written again. A message is decoded
// into this table, and headers are made of its lines when somebody asks for them. C++ only; never installed.
#pragma once

#include "sipsn_header_names.h"
#include "sipsn_message_lines.h"

#include <array>
#include <bit>

namespace sipsn {

// How many bytes stand in front of a value and behind it: "Via: ", and the line end.
inline constexpr int64_t separatorWidth = 2; // of ": ", as of a line end
inline constexpr auto    nameWidths     = [] {
    std::array< uint8_t, headerNameCount > table{};
    for( size_t number = 0; number < table.size(); ++number )
        table[ number ] = uint8_t( headerNames[ number ].size() + separatorWidth );
    return table;
}();
inline int64_t NameWidth( int64_t number ) { return nameWidths[ size_t( number ) ]; }

// "Via: " and so on, each in as many bytes, which are copied at once.
using NameText = std::array< char, longestHeaderName >;
extern const std::array< NameText, headerNameCount > nameTexts;

// A set of known names, which are given by their numbers.
struct NameSet
{
    uint64_t words[ 3 ] = {};

    static uint64_t Bit( int64_t number ) { return uint64_t( 1 ) << ( number % 64 ); }

    bool Has( int64_t number ) const { return ( words[ number / 64 ] & Bit( number ) ) != 0; }
    void Add( int64_t number ) { words[ number / 64 ] |= Bit( number ); }
    void Remove( int64_t number ) { words[ number / 64 ] &= ~Bit( number ); }

    // Calls `visit( number )` in the order of the names.
    template< class Visit > void ForEach( Visit visit ) const
    {
        for( size_t word = 0; word < std::size( words ); ++word )
            for( uint64_t bits = words[ word ]; bits != 0; bits &= bits - 1 )
                visit( int64_t( word ) * 64 + std::countr_zero( bits ) );
    }

    bool operator==( const NameSet & ) const = default;
};
static_assert( headerNameCount <= 192 );

// Lines "Name: value" with their line ends, of known names only, in the order of the names; those of one name in the
// order in which they came. An object that does not change. Behind the header stand, in the same block, where each line
// begins and the last one ends, the number of its name, and the lines themselves, which are well-formed UTF-8.
struct FieldTable
{
    PbObj   obj;
    int64_t count;

    // The lines of one name.
    struct Range
    {
        int64_t first, count;
    };
    Range Find( int64_t number ) const // which must be there
    {
        const pb::Block wanted = pb::Block::Of( PbByte( number ) );
        int64_t         at     = 0;
        uint32_t        found  = 0;
        while( ( found = pb::Block::Load( Numbers() + at ).Equal( wanted ) ) == 0 ) at += 16;
        const int64_t first = at + std::countr_zero( found );
        int64_t       end   = std::min( first + std::countr_one( found >> ( first - at ) ), count );
        while( end < count && NumberAt( end ) == number ) ++end; // in further blocks
        return { first, end - first };
    }

    int64_t NumberAt( int64_t index ) const { return Numbers()[ index ]; }

    // Lines one behind the other, and the value of one of them.
    Bytes LinesOf( int64_t first, int64_t end ) const
    {
        return { Text() + Begins()[ first ], Begins()[ end ] - Begins()[ first ] };
    }
    Bytes ValueAt( int64_t index ) const
    {
        const Bytes   line = LinesOf( index, index + 1 );
        const int64_t name = NameWidth( NumberAt( index ) );
        return { line.data + name, line.length - name - separatorWidth };
    }

    const int64_t *Begins() const { return reinterpret_cast< const int64_t * >( this + 1 ); }
    const uint8_t *Numbers() const { return reinterpret_cast< const uint8_t * >( Begins() + count + 1 ); }
    const PbByte  *Text() const { return Numbers() + BlocksOf( count ); }

    // A count of bytes rounded up to whole blocks, and at least one.
    static int64_t BlocksOf( int64_t bytes ) { return ( bytes | 15 ) + 1; }
};

// Takes note of lines, in any order of their names, and makes the table.
class FieldTableBuilder
{
public:
    FieldTableBuilder() {}
    FieldTableBuilder( const FieldTableBuilder & ) = delete;
    ~FieldTableBuilder();

    // A value in memory that stays until the table is made.
    void Add( int64_t number, Bytes value )
    {
        if( count_ == capacity_ ) [[unlikely]]
            Grow();
        uint64_t      &word = names_.words[ number / 64 ];
        const uint64_t bit  = NameSet::Bit( number );

        int64_t &place    = word & bit ? rows_[ last_[ number ] ].next : first_[ number ];
        place             = count_;
        last_[ number ]   = count_;
        rows_[ count_++ ] = { value.data, value.length, -1 };
        textLength_ += NameWidth( number ) + value.length + separatorWidth;
        word |= bit;
    }

    const NameSet &Names() const { return names_; }
    FieldTable    *MakeTable() const; // null when there are no lines

private:
    struct Row
    {
        const PbByte *data; // not Bytes: nothing is to be set before it is used
        int64_t       length;
        int64_t       next; // of the same name
    };
    static constexpr int64_t usual = 48; // more than most messages have

    void Grow();

    NameSet names_;
    int64_t textLength_ = 0;
    int64_t count_ = 0, capacity_ = usual;
    Row    *rows_ = usualRows_;
    Row     usualRows_[ usual ];
    int64_t first_[ headerNameCount ], last_[ headerNameCount ]; // rows of the names that are there
};

} // namespace sipsn

template<> struct pb::Kind< sipsn::NameSet >
{
    static constexpr sipsn::NameSet absent{};

    static sipsn::NameSet Share( sipsn::NameSet member ) { return member; }
    static void           Drop( sipsn::NameSet ) {}
    static void           Free( sipsn::NameSet           &) {}
};
