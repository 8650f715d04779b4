// Does a second thread slow the first one down? Each operation is done by one thread, by two processes and by two
// threads, on a processor each, and printed are the nanoseconds of a message and thread.
//
//     sipsn_threads [OPERATION...]
//
// "speed-up" is how many messages two threads do in the time in which one thread does one, with the other processor
// idle or busy with other work of the machine. "of processes" is how many they do for one of two processes, which have
// no memory in common: less than 1 is what the library itself costs, whatever the processors share. Under "shared" both
// threads use one object, and every reference to it is counted by both.
//
// Work is done in chunks of a fraction of a millisecond. Only those chunks count in which a thread was not interrupted
// and the other one was at work from beginning to end, not interrupted either. So a machine with other work can be
// used.
#include "operations.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <new>
#include <sched.h>
#include <span>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int64_t chunkLength = 100'000; // nanoseconds, at least; less than twice as long
constexpr int64_t gapLength   = 3'000;   // between two chunks of a thread that was at work all the time
constexpr int     rounds      = 8;
constexpr auto    roundLength = std::chrono::milliseconds{ 120 };

constexpr const char *operations[] = { "decode",  "full",          "encode",      "reply",
                                       "forward", "encode shared", "type shared", "read shared" };
constexpr const char *messages[]   = { "invite.sip", "ims_invite.sip" };

int64_t Now( clockid_t clock )
{
    timespec time{};
    clock_gettime( clock, &time );
    return int64_t( time.tv_sec ) * 1'000'000'000 + time.tv_nsec;
}

struct Span
{
    int64_t begin, end; // nanoseconds
};

struct Chunk : Span
{
    bool whole; // the thread was not interrupted: it had the processor for nearly all of the time
};

template< class Make > Chunk WorkOnce( int64_t times, Make make )
{
    const int64_t processor = Now( CLOCK_THREAD_CPUTIME_ID );
    const int64_t begin     = Now( CLOCK_MONOTONIC );
    for( int64_t n = 0; n < times; ++n ) make();
    const int64_t end  = Now( CLOCK_MONOTONIC );
    const int64_t used = Now( CLOCK_THREAD_CPUTIME_ID ) - processor;
    return { { begin, end }, used * 100 > ( end - begin ) * 97 };
}

struct Log
{
    size_t count;
    Chunk  chunks[ 4096 ];

    std::span< const Chunk > Chunks() const { return { chunks, count }; }
    bool                     IsFull() const { return count == std::size( chunks ); }
};

// In memory that is shared with child processes.
struct Board
{
    std::atomic< bool > stop;
    Log                 logs[ 2 ];

    static Board *Create()
    {
        void *memory =
            mmap( nullptr, sizeof( Board ), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS | MAP_POPULATE, -1, 0 );
        PB_ASSERT( memory != MAP_FAILED );
        return new( memory ) Board;
    }
};

// What threads use together, in the operations that are about that.
struct Shared
{
    pb::Ref< SipsnMessage >    message;
    pb::Ref< SipsnHeaderFrom > from;

    explicit Shared( std::string_view bytes )
        : message( Decode( BufferOf( bytes ).Get() ) ), from( sipsnHeaderFromTryDecodeFromMessage( message.Get() ) )
    {}
};

template< class Run > void RunHere( std::string_view operation, std::string_view bytes, const Shared &shared, Run run )
{
    if( operation == "encode shared" ) {
        run( [ & ] { Encode( shared.message.Get() ); } );
    } else if( operation == "type shared" ) {
        run( [ & ] {
            FullMessage full;
            TypeFields( shared.message.Get(), full );
        } );
    } else if( operation == "read shared" ) {
        run( [ & ] {
            for( int n = 0; n < 5; ++n ) {
                pb::Ref iri{ sipsnHeaderFromIri( shared.from.Get() ) };
                pb::Ref tag{ sipsnHeaderFromTag( shared.from.Get() ) };
            }
        } );
    } else {
        RunOnMessage( operation, bytes, run );
    }
}

class Comparison
{
public:
    Comparison( std::string_view operation, std::string_view bytes )
        : operation_( operation ), bytes_( bytes ), shared_( bytes )
    {
        RunHere( operation_, bytes_, shared_, [ this ]( auto make ) {
            while( ShortestOf( 5, make ) < chunkLength ) times_ *= 2;
        } );
    }

    // Nanoseconds of an operation: one for each chunk that counts.
    std::vector< double > InThreads( std::span< const int > processors ) const
    {
        std::vector< std::thread > threads;
        Clear();
        for( size_t n = 0; n < processors.size(); ++n )
            threads.emplace_back( [ =, this ] { Work( processors[ n ], board_->logs[ n ] ); } );
        Wait();
        for( std::thread &thread : threads ) thread.join();
        return Counted( processors.size() );
    }

    std::vector< double > InProcesses( std::span< const int > processors ) const
    {
        std::vector< pid_t > children;
        Clear();
        for( size_t n = 0; n < processors.size(); ++n ) {
            children.push_back( fork() );
            PB_ASSERT( children.back() >= 0 );
            if( children.back() > 0 ) continue;
            Work( processors[ n ], board_->logs[ n ] );
            _exit( 0 );
        }
        Wait();
        for( pid_t child : children ) waitpid( child, nullptr, 0 );
        return Counted( processors.size() );
    }

private:
    // The first chunks are longer: they find nothing in the caches.
    template< class Make > int64_t ShortestOf( int chunks, Make make ) const
    {
        int64_t shortest = INT64_MAX;
        for( int n = 0; n < chunks; ++n ) {
            const Chunk chunk = WorkOnce( times_, make );
            shortest          = std::min( shortest, chunk.end - chunk.begin );
        }
        return shortest;
    }

    void Clear() const
    {
        board_->stop = false;
        for( Log &log : board_->logs ) log.count = 0;
    }

    void Wait() const
    {
        std::this_thread::sleep_for( roundLength );
        board_->stop = true;
    }

    void Work( int processor, Log &log ) const
    {
        cpu_set_t own;
        CPU_ZERO( &own );
        CPU_SET( processor, &own );
        sched_setaffinity( 0, sizeof own, &own ); // of the calling thread
        RunHere( operation_, bytes_, shared_, [ & ]( auto make ) {
            while( !board_->stop.load( std::memory_order_relaxed ) && !log.IsFull() )
                log.chunks[ log.count++ ] = WorkOnce( times_, make );
        } );
    }

    std::vector< double > Counted( size_t workers ) const
    {
        std::vector< double > counted;
        for( size_t n = 0; n < workers; ++n )
            Count( board_->logs[ n ].Chunks(), AtWork( board_->logs[ ( n + 1 ) % workers ].Chunks() ), counted );
        return counted;
    }

    // When a thread was at work without interruption.
    static std::vector< Span > AtWork( std::span< const Chunk > log )
    {
        std::vector< Span > spans;
        for( const Chunk &chunk : log ) {
            if( !chunk.whole ) continue;
            if( !spans.empty() && chunk.begin - spans.back().end < gapLength )
                spans.back().end = chunk.end;
            else
                spans.push_back( chunk );
        }
        return spans;
    }

    void Count( std::span< const Chunk > log, const std::vector< Span > &other, std::vector< double > &counted ) const
    {
        auto span = other.begin();
        for( const Chunk &chunk : log ) {
            while( span != other.end() && span->end < chunk.end ) ++span;
            if( chunk.whole && span != other.end() && span->begin <= chunk.begin )
                counted.push_back( double( chunk.end - chunk.begin ) / double( times_ ) );
        }
    }

    std::string_view operation_, bytes_;
    Shared           shared_;
    int64_t          times_ = 1; // operations a chunk
    Board           *board_ = Board::Create();
};

double Median( std::vector< double > &values )
{
    const auto middle = values.begin() + std::ptrdiff_t( values.size() / 2 );
    std::ranges::nth_element( values, middle );
    return *middle;
}

void Compare( const char *operation, const std::string &message, std::string_view bytes,
              std::span< const int > processors )
{
    const Comparison      comparison{ operation, bytes };
    std::vector< double > alone, apart, together;
    for( int round = 0; round < rounds; ++round ) { // in turn, as the processors' own speed changes
        std::ranges::copy( comparison.InThreads( processors.first( 1 ) ), std::back_inserter( alone ) );
        std::ranges::copy( comparison.InProcesses( processors ), std::back_inserter( apart ) );
        std::ranges::copy( comparison.InThreads( processors ), std::back_inserter( together ) );
    }
    if( alone.empty() || apart.empty() || together.empty() ) {
        std::printf( "%-14s %-15s the machine is too busy\n", operation, message.c_str() );
        return;
    }
    const double one = Median( alone ), processes = Median( apart ), threads = Median( together );
    std::printf( "%-14s %-15s %10.0f %13.0f %11.0f %9.2f %13.2f %7zu\n", operation, message.c_str(), one, processes,
                 threads, 2 * one / threads, processes / threads, together.size() );
    std::fflush( stdout );
}

// Up to two processors that the process may use.
std::vector< int > Processors()
{
    cpu_set_t          allowed;
    std::vector< int > processors;
    CPU_ZERO( &allowed );
    sched_getaffinity( 0, sizeof allowed, &allowed );
    for( int n = 0; n < CPU_SETSIZE && processors.size() < 2; ++n )
        if( CPU_ISSET( n, &allowed ) ) processors.push_back( n );
    return processors;
}

} // namespace

int main( int argc, char **argv )
{
    const std::vector< std::string_view > wanted( argv + 1, argv + argc );
    const std::vector< int >              processors = Processors();
    if( processors.size() < 2 ) {
        std::puts( "There is one processor: two threads cannot be compared with one." );
        return 0;
    }
    pbModuleStart( sipsnModule() );
    std::printf( "%-30s %10s %13s %11s %9s %13s %7s\n", "nanoseconds", "one thread", "two processes", "two threads",
                 "speed-up", "of processes", "chunks" );
    for( const char *operation : operations ) {
        if( !wanted.empty() && std::ranges::count( wanted, std::string_view{ operation } ) == 0 ) continue;
        for( const std::string message : messages ) {
            pb::Ref file = ReadFile( SIPSN_SOURCE_DIR "/benchmarks/messages/" + message );
            if( file ) Compare( operation, message, BytesOf( file.Get() ), processors );
        }
    }
    pbModuleStop( sipsnModule() );
}
