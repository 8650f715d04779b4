// Stands in for the fuzzing engine: runs the target on every file of the folders that are named, on every beginning of
// each, and on ten thousand texts that begin as one of them and go on as another.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput( const uint8_t *data, size_t size );

static void Run( const std::string &bytes )
{
    const auto data = std::make_unique< uint8_t[] >( bytes.size() ); // exactly sized, for the sanitizers
    std::copy( bytes.begin(), bytes.end(), data.get() );
    LLVMFuzzerTestOneInput( data.get(), bytes.size() );
}

int main( int argc, char **argv )
{
    std::vector< std::string > inputs;
    for( int folder = 1; folder < argc; ++folder )
        for( const auto &entry : std::filesystem::directory_iterator( argv[ folder ] ) ) {
            std::ifstream file{ entry.path(), std::ios::binary };
            inputs.emplace_back( std::istreambuf_iterator< char >{ file }, std::istreambuf_iterator< char >{} );
        }
    if( inputs.empty() ) return EXIT_FAILURE;
    std::sort( inputs.begin(), inputs.end() ); // a folder has no order

    for( const std::string &input : inputs )
        for( size_t size = 0; size <= input.size(); ++size ) Run( input.substr( 0, size ) );

    std::mt19937 random{ 1 };
    const auto   below = [ &random ]( size_t limit ) { return random() % limit; };
    for( int round = 0; round < 10'000; ++round ) {
        const std::string &head = inputs[ below( inputs.size() ) ];
        const std::string &tail = inputs[ below( inputs.size() ) ];
        Run( head.substr( 0, below( head.size() + 1 ) ) + tail.substr( below( tail.size() + 1 ) ) );
    }
    std::printf( "%zu files\n", inputs.size() );
    return EXIT_SUCCESS;
}
