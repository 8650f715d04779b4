// The table of received header fields: how it is laid out, and looking into it.
#include "sipsn_field_table.h"

#include "sipsn_internal.h"

#include <algorithm>
#include <array>

namespace sipsn {

namespace {

// "Via: " and so on, each in as many bytes, which are copied at once.
using NameText = std::array< char, longestHeaderName >;

constexpr auto nameTexts = [] {
    std::array< NameText, headerNameCount > table{};
    for( size_t number = 0; number < table.size(); ++number ) {
        const std::string_view name = headerNames[ number ];
        std::ranges::copy( name, table[ number ].begin() );
        std::ranges::copy( std::string_view{ ": " }, table[ number ].begin() + int64_t( name.size() ) );
    }
    return table;
}();

PbSort sortOfTables = { .header   = {},
                        .module   = &sipsn___module,
                        .name     = "SIPSN_FIELD_TABLE",
                        .free     = []( PbObj     *) {},
                        .compare  = nullptr,
                        .toString = nullptr,
                        .reserved = {} };

} // namespace

FieldTable::Range FieldTable::Find( int64_t number ) const
{
    const pb::Block wanted  = pb::Block::Of( char( number ) );
    const auto      matches = [ & ]( int64_t at ) { return pb::Block::Load( Numbers() + at ).Equal( wanted ); };

    int64_t at = 0;
    while( matches( at ) == 0 ) at += 16;
    const int64_t first = at + std::countr_zero( matches( at ) );
    int64_t       end   = std::min( first + std::countr_one( matches( at ) >> ( first - at ) ), count );
    while( end < count && NumberAt( end ) == number ) ++end; // in further blocks
    return { first, end - first };
}

Bytes FieldTable::LinesOf( int64_t first, int64_t end ) const
{
    const int64_t begin = first > 0 ? Ends()[ first - 1 ] : 0;
    return { Text() + begin, Ends()[ end - 1 ] - begin };
}

Bytes FieldTable::ValueAt( int64_t index ) const
{
    const Bytes   line = LinesOf( index, index + 1 );
    const int64_t name = NameWidth( NumberAt( index ) );
    return { line.data + name, line.length - name - separatorWidth };
}

FieldTableBuilder::~FieldTableBuilder()
{
    if( rows_ != usualRows_ ) pbMemFree( rows_ );
}

void FieldTableBuilder::Grow()
{
    Row *rows = static_cast< Row * >( pbMemAllocN( 2 * capacity_, sizeof( Row ) ) );
    std::copy_n( rows_, count_, rows );
    if( rows_ != usualRows_ ) pbMemFree( rows_ );
    rows_ = rows;
    capacity_ *= 2;
}

FieldTable *FieldTableBuilder::MakeTable() const
{
    if( count_ == 0 ) return nullptr;
    // Behind the lines there is room for a name, which is copied as a whole, and for a block.
    const int64_t size = int64_t( sizeof( FieldTable ) ) + count_ * int64_t( sizeof( int64_t ) ) +
                         FieldTable::BlocksOf( count_ ) + textLength_ + int64_t( sizeof( NameText ) );

    auto *table     = reinterpret_cast< FieldTable     *>( pb___ObjCreate( size, &sortOfTables ) );
    table->count    = count_;
    int64_t *end    = const_cast< int64_t    *>( table->Ends() );
    uint8_t *nameOf = const_cast< uint8_t * >( table->Numbers() );
    PbByte  *to     = const_cast< PbByte  *>( table->Text() );

    const PbByte *const begin = to;
    names_.ForEach( [ & ]( int64_t number ) {
        for( int64_t at = first_[ number ]; at >= 0; at = rows_[ at ].next ) {
            std::memcpy( to, nameTexts[ size_t( number ) ].data(), sizeof( NameText ) );
            to += NameWidth( number );
            std::memcpy( to, rows_[ at ].value.data, size_t( rows_[ at ].value.length ) );
            to += rows_[ at ].value.length;
            std::memcpy( to, "\r\n", separatorWidth );
            to += separatorWidth;
            *nameOf++ = uint8_t( number );
            *end++    = to - begin;
        }
    } );
    return table;
}

} // namespace sipsn
