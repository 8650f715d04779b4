// The table of received header fields: how it is laid out, and looking into it.
#include "sipsn_field_table.h"

#include "sipsn_internal.h"

#include <algorithm>
#include <array>

namespace sipsn {

constinit const std::array< NameText, headerNameCount > nameTexts = [] {
    std::array< NameText, headerNameCount > table{};
    for( size_t number = 0; number < table.size(); ++number ) {
        const std::string_view name = headerNames[ number ];
        std::ranges::copy( name, table[ number ].begin() );
        std::ranges::copy( std::string_view{ ": " }, table[ number ].begin() + int64_t( name.size() ) );
    }
    return table;
}();

static PbSort sortOfTables = { .header   = {},
                               .module   = &sipsn___module,
                               .name     = "SIPSN_FIELD_TABLE",
                               .free     = []( PbObj     *) {},
                               .compare  = nullptr,
                               .toString = nullptr,
                               .reserved = {} };

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
    const int64_t size = int64_t( sizeof( FieldTable ) ) + ( count_ + 1 ) * int64_t( sizeof( int64_t ) ) +
                         FieldTable::BlocksOf( count_ ) + textLength_ + int64_t( sizeof( NameText ) );

    auto *table = reinterpret_cast< FieldTable * >( pb___ObjCreate( size, &sortOfTables ) );

    table->count = count_;

    auto *begin  = const_cast< int64_t  *>( table->Begins() );
    auto *nameOf = const_cast< uint8_t * >( table->Numbers() );
    auto *to     = const_cast< PbByte     *>( table->Text() );

    const PbByte *const text = to;
    names_.ForEach( [ & ]( int64_t number ) {
        for( int64_t at = first_[ number ]; at >= 0; at = rows_[ at ].next ) {
            *nameOf++ = uint8_t( number );
            *begin++  = to - text;
            std::memcpy( to, nameTexts[ size_t( number ) ].data(), sizeof( NameText ) );
            to += NameWidth( number );
            std::memcpy( to, rows_[ at ].data, size_t( rows_[ at ].length ) );
            to += rows_[ at ].length;
            std::memcpy( to, "\r\n", separatorWidth );
            to += separatorWidth;
        }
    } );
    *begin = to - text;
    return table;
}

} // namespace sipsn
