// What the fuzz targets share. A target calls Start first; what it requires holds, or the process aborts.
#pragma once

#include "sipsn/sipsn.h"

#include "pb/pb_frame.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#define REQUIRE( ... ) ( ( __VA_ARGS__ ) ? static_cast< void >( 0 ) : fuzz::Fail( #__VA_ARGS__ ) )

namespace fuzz {

[[noreturn]] inline void Fail( const char *condition )
{
    std::fprintf( stderr, "does not hold: %s\n", condition );
    std::abort();
}

inline void Start() { [[maybe_unused]] static const bool started = ( pbModuleStart( sipsnModule() ), true ); }

inline pb::Ref< PbBuffer > Buffer( const uint8_t *data, size_t size )
{
    return pb::Ref{ pbBufferCreateFromBytesCopy( data, int64_t( size ) ) };
}

// The bytes as UTF-8, U+FFFD where they are none.
inline pb::Ref< PbString > String( const uint8_t *data, size_t size )
{
    return pb::Ref{ pbStringCreateFromCstr( reinterpret_cast< const char * >( data ), int64_t( size ) ) };
}

// A text in a block of exactly its size, so that the sanitizers see whoever looks past its end.
class Text
{
public:
    explicit Text( PbString *string )
        : length_{ pbStringLength( string ) }, chs_{ std::make_unique< PbChar[] >( size_t( length_ ) ) }
    {
        std::copy_n( pbStringBacking( string ), length_, chs_.get() );
    }

    const PbChar *Chs() const { return chs_.get(); }
    int64_t       Length() const { return length_; }

private:
    int64_t                     length_;
    std::unique_ptr< PbChar[] > chs_;
};

} // namespace fuzz
