// Keeps the header fields of a SIP message in an LMDB database, and restores them from there.
//
//     store_lmdb store FOLDER MESSAGE-ID < MESSAGE
//     store_lmdb show FOLDER MESSAGE-ID
//
// Both print the header fields. Each line of a field is an entry of the database, "MESSAGE-ID/Header-Name/line-key"
// with the text in UTF-8. A field that has a type goes through that type's Store and TryRestore, any other through its
// lines.
#include <sipsn/sipsn.h>

#include <lmdb.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>

namespace {

// ---- References and texts --------------------------------------------------------------------------

// A reference that is released at the end of its scope.
template< class T > class Ref
{
public:
    Ref( T *object, void ( *release )( T * ) ) : object_{ object }, release_{ release } {}
    Ref( const Ref & )            = delete;
    Ref &operator=( const Ref & ) = delete;
    ~Ref()
    {
        if( object_ ) release_( object_ );
    }

    T       *Get() const { return object_; }
    T      **Slot() { return &object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    T *object_;
    void ( *release_ )( T * );
};

std::string Utf8( PbString *text )
{
    const Ref bytes{ pbCharsetStringToBufferWithFlags( PB_CHARSET_UTF8, text, PB_CHARSET_FLAG_STRICT ),
                     pbBufferRelease };
    return { reinterpret_cast< const char * >( pbBufferBacking( bytes.Get() ) ),
             size_t( pbBufferLength( bytes.Get() ) ) };
}

// Null when the bytes are not UTF-8.
PbString *TryString( std::string_view utf8 )
{
    const Ref bytes{ pbBufferCreateFromBytesCopy( utf8.data(), int64_t( utf8.size() ) ), pbBufferRelease };
    return pbCharsetBufferToStringWithFlags( PB_CHARSET_UTF8, bytes.Get(), PB_CHARSET_FLAG_STRICT );
}

[[noreturn]] void Fail( const char *reason )
{
    std::fprintf( stderr, "store_lmdb: %s\n", reason );
    std::exit( 1 );
}

// ---- Header types ----------------------------------------------------------------------------------

struct Family
{
    std::string_view name;
    // Null when the message has no such field that decodes; else its canonical form, and the store to keep.
    SipsnMessageHeader *( *tryStore )( SipsnMessage *message, PbStore **store );
    SipsnMessageHeader *( *tryRestore )( PbStore *store );
};

template< auto tryDecodeFromMessage, auto encode, auto toStore, auto release >
SipsnMessageHeader *TryStore( SipsnMessage *message, PbStore **store )
{
    const Ref hdr{ tryDecodeFromMessage( message ), release };
    if( !hdr ) return nullptr;
    *store = toStore( hdr.Get() );
    return encode( hdr.Get() );
}

template< auto tryRestore, auto encode, auto release > SipsnMessageHeader *TryRestore( PbStore *store )
{
    const Ref hdr{ tryRestore( store ), release };
    return hdr ? encode( hdr.Get() ) : nullptr;
}

#define FAMILY( name, Type )                                                                                           \
    {                                                                                                                  \
        name,                                                                                                          \
            TryStore< sipsnHeader##Type##TryDecodeFromMessage, sipsnHeader##Type##Encode, sipsnHeader##Type##Store,    \
                      sipsnHeader##Type##Release >,                                                                    \
            TryRestore< sipsnHeader##Type##TryRestore, sipsnHeader##Type##Encode, sipsnHeader##Type##Release >         \
    }

constexpr Family families[] = {
    FAMILY( "Accept", Accept ),
    FAMILY( "Accept-Encoding", AcceptEncoding ),
    FAMILY( "Accept-Resource-Priority", AcceptResourcePriority ),
    FAMILY( "Alert-Info", AlertInfo ),
    FAMILY( "Allow", Allow ),
    FAMILY( "Allow-Events", AllowEvents ),
    FAMILY( "Call-Id", CallId ),
    FAMILY( "Call-Info", CallInfo ),
    FAMILY( "Contact", Contact ),
    FAMILY( "Content-Disposition", ContentDisposition ),
    FAMILY( "Content-Encoding", ContentEncoding ),
    FAMILY( "Cseq", Cseq ),
    FAMILY( "Date", Date ),
    FAMILY( "Diversion", Diversion ),
    FAMILY( "Error-Info", ErrorInfo ),
    FAMILY( "Event", Event ),
    FAMILY( "Expires", Expires ),
    FAMILY( "From", From ),
    FAMILY( "History-Info", HistoryInfo ),
    FAMILY( "In-Reply-To", InReplyTo ),
    FAMILY( "Max-Forwards", MaxForwards ),
    FAMILY( "Min-Expires", MinExpires ),
    FAMILY( "Min-Se", MinSe ),
    FAMILY( "Organization", Organization ),
    FAMILY( "P-Asserted-Identity", PAssertedIdentity ),
    FAMILY( "P-Called-Party-Id", PCalledPartyId ),
    FAMILY( "P-Early-Media", PEarlyMedia ),
    FAMILY( "P-Preferred-Identity", PPreferredIdentity ),
    FAMILY( "Priority", Priority ),
    FAMILY( "Privacy", Privacy ),
    FAMILY( "Proxy-Require", ProxyRequire ),
    FAMILY( "Rack", Rack ),
    FAMILY( "Reason", Reason ),
    FAMILY( "Record-Route", RecordRoute ),
    FAMILY( "Refer-To", ReferTo ),
    FAMILY( "Referred-By", ReferredBy ),
    FAMILY( "Remote-Party-Id", RemotePartyId ),
    FAMILY( "Replaces", Replaces ),
    FAMILY( "Reply-To", ReplyTo ),
    FAMILY( "Require", Require ),
    FAMILY( "Resource-Priority", ResourcePriority ),
    FAMILY( "Retry-After", RetryAfter ),
    FAMILY( "Route", Route ),
    FAMILY( "Rseq", Rseq ),
    FAMILY( "Server", Server ),
    FAMILY( "Service-Route", ServiceRoute ),
    FAMILY( "Session-Expires", SessionExpires ),
    FAMILY( "Session-Id", SessionId ),
    FAMILY( "Subject", Subject ),
    FAMILY( "Subscription-State", SubscriptionState ),
    FAMILY( "Supported", Supported ),
    FAMILY( "Timestamp", Timestamp ),
    FAMILY( "To", To ),
    FAMILY( "Unsupported", Unsupported ),
    FAMILY( "User-Agent", UserAgent ),
    FAMILY( "User-To-User", UserToUser ),
    FAMILY( "Via", Via ),
    FAMILY( "Warning", Warning ),
};

const Family *FindFamily( std::string_view name )
{
    const auto *found = std::find_if( std::begin( families ), std::end( families ),
                                      [ & ]( const Family &family ) { return family.name == name; } );
    return found == std::end( families ) ? nullptr : found;
}

void PrintField( const char *way, const std::string &name, SipsnMessageHeader *header )
{
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( header ); ++at ) {
        const Ref line{ sipsnMessageHeaderLineAt( header, at ), pbStringRelease };
        std::printf( "%s  %s: %s\n", way, name.c_str(), Utf8( line.Get() ).c_str() );
    }
}

// The store to keep of a field.
PbStore *StoreField( SipsnMessage *message, SipsnMessageHeader *header, const std::string &name )
{
    const Family *family = FindFamily( name );
    PbStore      *store  = nullptr;
    const Ref     canonical{ family ? family->tryStore( message, &store ) : nullptr, sipsnMessageHeaderRelease };
    PrintField( canonical ? "typed" : "lines", name, canonical ? canonical.Get() : header );
    return canonical ? store : sipsnMessageHeaderStoreLines( header );
}

void RestoreField( const std::string &name, PbStore *store )
{
    const Family *family = FindFamily( name );
    const Ref     canonical{ family ? family->tryRestore( store ) : nullptr, sipsnMessageHeaderRelease };
    const Ref     lines{ sipsnMessageHeaderRestoreLinesCstr( name.data(), int64_t( name.size() ), store ),
                     sipsnMessageHeaderRelease };
    PrintField( canonical ? "typed" : "lines", name, canonical ? canonical.Get() : lines.Get() );
}

// ---- The database ----------------------------------------------------------------------------------

void Check( int status )
{
    if( status != MDB_SUCCESS ) Fail( mdb_strerror( status ) );
}

// LMDB does not write to what it is given.
MDB_val Val( std::string_view text ) { return { text.size(), const_cast< char * >( text.data() ) }; }

std::string_view Text( const MDB_val &val ) { return { static_cast< const char * >( val.mv_data ), val.mv_size }; }

// A database that is open for one transaction, which counts only when it is committed.
class Database
{
public:
    Database( const char *folder, unsigned flags )
    {
        Check( mdb_env_create( &environment_ ) );
        Check( mdb_env_open( environment_, folder, flags, 0644 ) );
        Check( mdb_txn_begin( environment_, nullptr, flags, &transaction_ ) );
        Check( mdb_dbi_open( transaction_, nullptr, 0, &entries_ ) );
    }
    Database( const Database & )            = delete;
    Database &operator=( const Database & ) = delete;
    ~Database()
    {
        if( transaction_ ) mdb_txn_abort( transaction_ );
        mdb_env_close( environment_ );
    }

    void Put( std::string_view key, std::string_view value )
    {
        MDB_val keyVal = Val( key ), valueVal = Val( value );
        Check( mdb_put( transaction_, entries_, &keyVal, &valueVal, 0 ) );
    }

    void Commit()
    {
        Check( mdb_txn_commit( transaction_ ) );
        transaction_ = nullptr;
    }

    // Calls `visit( name, lineKey, value )` with each entry of a message, in order; true removes the entry.
    template< class Visit > void ForEachEntry( const std::string &message, Visit visit )
    {
        const std::string prefix = message + '/';
        MDB_val           key    = Val( prefix ), value;
        MDB_cursor       *cursor;
        Check( mdb_cursor_open( transaction_, entries_, &cursor ) );
        int status = mdb_cursor_get( cursor, &key, &value, MDB_SET_RANGE );
        for( ; status == MDB_SUCCESS && Text( key ).substr( 0, prefix.size() ) == prefix;
             status = mdb_cursor_get( cursor, &key, &value, MDB_NEXT ) ) {
            const std::string_view rest  = Text( key ).substr( prefix.size() );
            const size_t           slash = rest.find( '/' ); // a second one makes it an entry of another message
            if( slash == rest.npos || rest.find( '/', slash + 1 ) != rest.npos ) continue;
            if( visit( std::string( rest.substr( 0, slash ) ), rest.substr( slash + 1 ), Text( value ) ) )
                Check( mdb_cursor_del( cursor, 0 ) );
        }
        mdb_cursor_close( cursor );
        if( status != MDB_SUCCESS && status != MDB_NOTFOUND ) Check( status );
    }

private:
    MDB_env *environment_ = nullptr;
    MDB_txn *transaction_ = nullptr;
    MDB_dbi  entries_     = 0;
};

// ---- Commands --------------------------------------------------------------------------------------

void PutStore( Database &database, const std::string &prefix, PbStore *store )
{
    for( int64_t at = 0; at < pbStoreLength( store ); ++at ) {
        const Ref key{ pbStoreKeyAt( store, at ), pbStringRelease };
        const Ref value{ pbStoreValueAt( store, at ), pbStringRelease };
        database.Put( prefix + Utf8( key.Get() ), Utf8( value.Get() ) );
    }
}

SipsnMessage *TryReadMessage()
{
    static char bytes[ 65536 ];
    const Ref   buffer{ pbBufferCreateFromBytesCopy( bytes, int64_t( std::fread( bytes, 1, sizeof( bytes ), stdin ) ) ),
                      pbBufferRelease };
    return sipsnMessageTryDecode( buffer.Get() );
}

void Store( const char *folder, const std::string &id )
{
    const Ref message{ TryReadMessage(), sipsnMessageRelease };
    if( !message ) Fail( "no message" );

    Database database{ folder, 0 };
    database.ForEachEntry( id, []( const auto &... ) { return true; } ); // of an earlier message of that name
    const Ref headers{ sipsnMessageHeadersVector( message.Get() ), pbVectorRelease };
    for( int64_t at = 0; at < pbVectorLength( headers.Get() ); ++at ) {
        const Ref header{ sipsnMessageHeaderFrom( pbVectorAt( headers.Get(), at ) ), sipsnMessageHeaderRelease };
        const Ref nameText{ sipsnMessageHeaderName( header.Get() ), pbStringRelease };
        const std::string name = Utf8( nameText.Get() );
        const Ref         store{ StoreField( message.Get(), header.Get(), name ), pbStoreRelease };
        PutStore( database, std::string( id ).append( "/" ).append( name ).append( "/" ), store.Get() );
    }
    database.Commit();
}

void Show( const char *folder, const std::string &id )
{
    Database    database{ folder, MDB_RDONLY };
    std::string name;
    Ref         store{ pbStoreCreate(), pbStoreRelease };
    database.ForEachEntry( id, [ & ]( const std::string &of, std::string_view lineKey, std::string_view value ) {
        if( of != name && !name.empty() ) {
            RestoreField( name, store.Get() );
            pbStoreRelease( *store.Slot() );
            *store.Slot() = pbStoreCreate();
        }
        name = of;
        const Ref text{ TryString( value ), pbStringRelease };
        if( text ) pbStoreSetValueCstr( store.Slot(), lineKey.data(), int64_t( lineKey.size() ), text.Get() );
        return false;
    } );
    if( name.empty() ) Fail( "no such message in the database" );
    RestoreField( name, store.Get() );
}

} // namespace

int main( int count, char **arguments )
{
    const std::string_view command = count == 4 ? arguments[ 1 ] : "";
    if( command != "store" && command != "show" ) Fail( "store_lmdb store|show FOLDER MESSAGE-ID" );

    pbModuleStart( sipsnModule() );
    ( command == "store" ? Store : Show )( arguments[ 2 ], arguments[ 3 ] );
    pbModuleStop( sipsnModule() );
    return 0;
}
