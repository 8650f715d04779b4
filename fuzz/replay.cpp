// Stands in for the fuzzing engine: runs the target on every file of the folders that are named, and on every beginning
// of each.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size );

int main( int argc, char **argv )
{
    int files = 0;
    for( int folder = 1; folder < argc; ++folder )
        for( const auto &entry : std::filesystem::directory_iterator( argv[ folder ] ) ) {
            std::ifstream     file{ entry.path(), std::ios::binary };
            const std::string bytes{ std::istreambuf_iterator< char >{ file }, {} };
            for( size_t size = 0; size <= bytes.size(); ++size ) {
                const auto data = std::make_unique< uint8_t[] >( size ); // exactly sized, for the sanitizers
                std::copy_n( bytes.begin(), size, data.get() );
                LLVMFuzzerTestOneInput( data.get(), size );
            }
            ++files;
        }
    std::printf( "%d files and their beginnings\n", files );
    return files > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
