// Writing wire text: the parts of the writers that are not for every call.
#include "sipsn_text_writer.h"

#include "sipsn_value_internal.h"

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
    const int64_t capacity = std::max( 2 * ( limit_ - begin_ ), length + count );
    PbChar       *grown    = static_cast< PbChar          *>( pbMemAllocN( capacity, sizeof( PbChar ) ) );
    std::copy( begin_, end_, grown );
    if( begin_ != fixed_ ) pbMemFree( begin_ );
    begin_ = grown;
    end_   = grown + length;
    limit_ = grown + capacity;
}

bool ParamWriter::IsTaken( PbString *name ) const
{
    return std::any_of( taken_.begin(), taken_.begin() + takenCount_, [ & ]( std::string_view taken ) {
        return std::equal( taken.begin(), taken.end(), name->chs + 0, name->chs + name->length );
    } );
}

void ParamWriter::Generic()
{
    for( int64_t at = 0, length = sipsnGenericParamsLength( generic_ ); at < length; ++at ) {
        SipsnGenericParam *param = PeekParamAt( generic_, at );
        if( IsTaken( param->name ) ) continue;
        out_.Char( ';' );
        Write( out_, param );
    }
}

} // namespace sipsn
