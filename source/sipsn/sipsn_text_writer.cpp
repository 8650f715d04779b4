// Writing wire text: the parts of the writer that not every call needs.
#include "sipsn_text_writer.h"

#include <charconv>

namespace sipsn {

void TextWriter::Int( int64_t number )
{
    char       digits[ 20 ];
    const auto end = std::to_chars( digits, std::end( digits ), number ).ptr;
    Ascii( { digits, size_t( end - digits ) } );
}

void TextWriter::Grow( int64_t count )
{
    const int64_t length   = end_ - begin_;
    const int64_t capacity = std::max< int64_t >( 2 * ( limit_ - begin_ ), length + count );
    const auto    grown    = static_cast< PbChar       *>( pbMemAllocN( capacity, sizeof( PbChar ) ) );
    std::copy( begin_, end_, grown );
    if( begin_ != fixed_ ) pbMemFree( begin_ );
    begin_ = grown;
    end_   = grown + length;
    limit_ = grown + capacity;
}

} // namespace sipsn
