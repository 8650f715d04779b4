// SipsnMessageHeader: a header field as a canonical name and its value lines.
#include "sipsn_message_header.h"

#include "sipsn_header_names.h"
#include "sipsn_message_internal.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

using sipsn::StringFrom;

static PbString *MakeText( SipsnMessageHeader *header );

SIPSN_DEFINE_TYPE( SipsnMessageHeader, sipsnMessageHeader, SIPSN_MESSAGE_HEADER, header, header, MakeText )

static constexpr pb::ConstantString nameKey{ "name" };
static constexpr pb::ConstantString linesKey{ "lines" };

static SipsnMessageHeader *CreateOf( int64_t number )
{
    SipsnMessageHeader *header = pb::New< SipsnMessageHeader >();
    header->name               = sipsn::HeaderNameAt( number );
    header->number             = number;
    return header;
}

SipsnMessageHeader *sipsn::CreateHeader( int64_t number, PbVector *lines )
{
    SipsnMessageHeader *header = CreateOf( number );
    header->linesVector        = lines;
    return header;
}
SipsnMessageHeader *sipsn::CreateHeader( int64_t number, PbString *line )
{
    SipsnMessageHeader *header = CreateOf( number );
    header->onlyLine           = line;
    return header;
}
SipsnMessageHeader *sipsn::CreateOtherHeader( PbString *name, PbString *line )
{
    SipsnMessageHeader *header = pb::New< SipsnMessageHeader >();
    header->name               = name;
    header->onlyLine           = line;
    return header;
}

SipsnMessageHeader *sipsnMessageHeaderCreate( PbString *name )
{
    PB_ASSERT( sipsnMessageHeaderNameOk( name ) );
    const int64_t number = sipsn::ScanHeaderName( name->chs, name->length ).number;
    if( number >= 0 ) return CreateOf( number );
    return sipsn::CreateOtherHeader( sipsnMessageHeaderNameNormalize( name ), nullptr );
}

SipsnMessageHeader *sipsnMessageHeaderCreateCstr( const char *name, int64_t nameLength )
{
    return sipsnMessageHeaderCreate( StringFrom( name, nameLength ).Get() );
}

SipsnMessageHeader *sipsnMessageHeaderCreateWcstr( const wchar_t *name, int64_t nameLength )
{
    return sipsnMessageHeaderCreate( StringFrom( name, nameLength ).Get() );
}

// ---- The name --------------------------------------------------------------------------------------

bool sipsnMessageHeaderNameOk( PbString *name )
{
    PB_ASSERT( name );
    return sipsn::Matches( name, sipsn___SkipMessageHeaderName );
}

PbString *sipsnMessageHeaderNameNormalize( PbString *name )
{
    PB_ASSERT( sipsnMessageHeaderNameOk( name ) );

    const int64_t number = sipsn::ScanHeaderName( name->chs, name->length ).number;
    if( number >= 0 ) return pb::Retain( sipsn::HeaderNameAt( number ) );
    return sipsn::CapitaliseHeaderName( name->chs, name->length );
}

PbString *sipsnMessageHeaderName( SipsnMessageHeader *header ) { return PB_GET( header, name ); }

void sipsnMessageHeaderSetName( SipsnMessageHeader **header, PbString *name )
{
    PB_SET( header, name, sipsnMessageHeaderNameOk( name ), sipsnMessageHeaderNameNormalize( name ) );
    ( *header )->number = sipsn::ScanHeaderName( ( *header )->name->chs, ( *header )->name->length ).number;
}

void sipsnMessageHeaderSetNameCstr( SipsnMessageHeader **header, const char *name, int64_t nameLength )
{
    sipsnMessageHeaderSetName( header, StringFrom( name, nameLength ).Get() );
}

void sipsnMessageHeaderSetNameWcstr( SipsnMessageHeader **header, const wchar_t *name, int64_t nameLength )
{
    sipsnMessageHeaderSetName( header, StringFrom( name, nameLength ).Get() );
}

bool sipsnMessageHeaderNameEquals( SipsnMessageHeader *header, PbString *name )
{
    PB_ASSERT( header );
    pb::Ref canonical{ sipsnMessageHeaderNameNormalize( name ) };
    return canonical.Get() == header->name || pbStringEquals( canonical.Get(), header->name );
}

bool sipsnMessageHeaderNameEqualsCstr( SipsnMessageHeader *header, const char *name, int64_t nameLength )
{
    return sipsnMessageHeaderNameEquals( header, StringFrom( name, nameLength ).Get() );
}

bool sipsnMessageHeaderNameEqualsWcstr( SipsnMessageHeader *header, const wchar_t *name, int64_t nameLength )
{
    return sipsnMessageHeaderNameEquals( header, StringFrom( name, nameLength ).Get() );
}

// ---- The lines -------------------------------------------------------------------------------------

bool sipsnMessageHeaderLineOk( PbString *line )
{
    PB_ASSERT( line );
    return !sipsn::HasLineEnd( line );
}

// A new reference to the vector, which is made when the header has none.
static PbVector *MakeLinesVector( SipsnMessageHeader *header )
{
    if( header->linesVector ) return pb::Retain( header->linesVector );
    PbVector *lines = pb___VectorCreateWithCapacity( 1 );
    if( header->onlyLine ) pb___VectorAppendOwned( &lines, pbStringObj( pb::Retain( header->onlyLine ) ) );
    return lines;
}

// The vector of a header of the caller's own, which keeps its lines there from then on.
static PbVector **LinesVectorOf( SipsnMessageHeader *header )
{
    if( !header->linesVector ) {
        header->linesVector = MakeLinesVector( header );
        pb::Del( header->onlyLine );
    }
    return &header->linesVector;
}

void sipsn::AppendLineOwned( SipsnMessageHeader *header, PbString *line )
{
    if( LineCount( header ) == 0 && !header->linesVector )
        header->onlyLine = line;
    else
        pb___VectorAppendOwned( LinesVectorOf( header ), pbStringObj( line ) );
}

// ---- Reading lines wherever they are ---------------------------------------------------------------

// Behind the lines of a table there is always room for a block.
sipsn::Span sipsn::FieldLines::FromTable( int64_t index )
{
    const Bytes value    = table_->ValueAt( first_ + index );
    uint32_t    notAscii = 0;
    if( value.length <= usual )
        for( int64_t at = 0; at < value.length; at += 16 ) {
            const pb::Block block = pb::Block::Load( value.data + at );
            notAscii |= block.NotAscii();
            block.Widen( chs_ + at );
        }
    if( value.length <= usual && notAscii == 0 ) return { chs_, value.length };
    long_ = pb::Ref{ TextOf( value ) };
    return { long_->chs, long_->length };
}

PbString *sipsn::FieldLines::TextAt( int64_t index ) const
{
    return header_ ? pb::Retain( PeekLine( header_, index ) ) : TextOf( table_->ValueAt( first_ + index ) );
}

// ---- Comparing -------------------------------------------------------------------------------------

int64_t SipsnMessageHeader::CompareOrder::Compare( SipsnMessageHeader &a, SipsnMessageHeader &b )
{
    if( const int64_t order = pbStringCompare( a.name, b.name ) ) return order;
    if( a.onlyLine && b.onlyLine ) return pbStringCompare( a.onlyLine, b.onlyLine );
    pb::Ref linesA{ MakeLinesVector( &a ) }, linesB{ MakeLinesVector( &b ) };
    return pbVectorCompare( linesA.Get(), linesB.Get() );
}

PbVector *sipsnMessageHeaderLinesVector( SipsnMessageHeader *header )
{
    PB_ASSERT( header );
    return MakeLinesVector( header );
}

void sipsnMessageHeaderSetLinesVector( SipsnMessageHeader **header, PbVector *lines )
{
    PB_ASSERT_SLOT( header );
    PB_ASSERT( pbVectorContainsOnly( lines, pbStringSort() ) );
    for( int64_t at = 0, length = pbVectorLength( lines ); at < length; ++at ) {
        PbString *pbs = reinterpret_cast< PbString * >( pb___VectorPeek( lines, at ) );
        PB_ASSERT( sipsnMessageHeaderLineOk( pbs ) );
    }
    PB_UNSHARE( header );
    pb::Set( ( *header )->linesVector, pb::Retain( lines ) );
    pb::Del( ( *header )->onlyLine );
}

int64_t sipsnMessageHeaderLinesLength( SipsnMessageHeader *header )
{
    PB_ASSERT( header );
    return sipsn::LineCount( header );
}

PbString *sipsnMessageHeaderLineAt( SipsnMessageHeader *header, int64_t index )
{
    PB_ASSERT( header );
    if( header->onlyLine && index == 0 ) return pb::Retain( header->onlyLine );
    return pbVectorStringAt( pb::Ref{ MakeLinesVector( header ) }.Get(), index );
}

PbString *sipsnMessageHeaderLastLine( SipsnMessageHeader *header )
{
    PB_ASSERT( header );
    const int64_t length = sipsn::LineCount( header );
    return length > 0 ? pb::Retain( sipsn::PeekLine( header, length - 1 ) ) : nullptr;
}

void sipsnMessageHeaderAppendLine( SipsnMessageHeader **header, PbString *value )
{
    PB_ASSERT_SLOT( header );
    PB_ASSERT( sipsnMessageHeaderLineOk( value ) );
    PB_UNSHARE( header );
    sipsn::AppendLineOwned( *header, pb::Retain( value ) );
}

void sipsnMessageHeaderAppendLineCstr( SipsnMessageHeader **header, const char *line, int64_t lineLength )
{
    sipsnMessageHeaderAppendLine( header, StringFrom( line, lineLength ).Get() );
}

void sipsnMessageHeaderAppendLineWcstr( SipsnMessageHeader **header, const wchar_t *line, int64_t lineLength )
{
    sipsnMessageHeaderAppendLine( header, StringFrom( line, lineLength ).Get() );
}

void sipsnMessageHeaderAppendLineFormat( SipsnMessageHeader **header, PbString *format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    pb::Ref line{ pbStringCreateFromFormatArgList( format, arguments ) };
    va_end( arguments );
    sipsnMessageHeaderAppendLine( header, line.Get() );
}

void sipsnMessageHeaderAppendLineFormatCstr( SipsnMessageHeader **header, const char *format, int64_t formatLength,
                                             ... )
{
    va_list arguments;
    va_start( arguments, formatLength );
    pb::Ref line{ pbStringCreateFromFormatCstrArgList( format, formatLength, arguments ) };
    va_end( arguments );
    sipsnMessageHeaderAppendLine( header, line.Get() );
}

void sipsnMessageHeaderAppendLineFormatWcstr( SipsnMessageHeader **header, const wchar_t *format, int64_t formatLength,
                                              ... )
{
    va_list arguments;
    va_start( arguments, formatLength );
    pb::Ref line{ pbStringCreateFromFormatWcstrArgList( format, formatLength, arguments ) };
    va_end( arguments );
    sipsnMessageHeaderAppendLine( header, line.Get() );
}

void sipsnMessageHeaderSetLineAt( SipsnMessageHeader **header, int64_t index, PbString *value )
{
    PB_ASSERT_SLOT( header );
    PB_ASSERT( sipsnMessageHeaderLineOk( value ) );
    PB_UNSHARE( header );
    pbVectorSetStringAt( LinesVectorOf( *header ), index, value );
}

void sipsnMessageHeaderSetLineAtCstr( SipsnMessageHeader **header, int64_t index, const char *line, int64_t lineLength )
{
    sipsnMessageHeaderSetLineAt( header, index, StringFrom( line, lineLength ).Get() );
}

void sipsnMessageHeaderSetLineAtWcstr( SipsnMessageHeader **header, int64_t index, const wchar_t *line,
                                       int64_t lineLength )
{
    sipsnMessageHeaderSetLineAt( header, index, StringFrom( line, lineLength ).Get() );
}

void sipsnMessageHeaderSetLineAtFormat( SipsnMessageHeader **header, int64_t index, PbString *format, ... )
{
    va_list arguments;
    va_start( arguments, format );
    pb::Ref line{ pbStringCreateFromFormatArgList( format, arguments ) };
    va_end( arguments );
    sipsnMessageHeaderSetLineAt( header, index, line.Get() );
}

void sipsnMessageHeaderSetLineAtFormatCstr( SipsnMessageHeader **header, int64_t index, const char *format,
                                            int64_t formatLength, ... )
{
    va_list arguments;
    va_start( arguments, formatLength );
    pb::Ref line{ pbStringCreateFromFormatCstrArgList( format, formatLength, arguments ) };
    va_end( arguments );
    sipsnMessageHeaderSetLineAt( header, index, line.Get() );
}

void sipsnMessageHeaderSetLineAtFormatWcstr( SipsnMessageHeader **header, int64_t index, const wchar_t *format,
                                             int64_t formatLength, ... )
{
    va_list arguments;
    va_start( arguments, formatLength );
    pb::Ref line{ pbStringCreateFromFormatWcstrArgList( format, formatLength, arguments ) };
    va_end( arguments );
    sipsnMessageHeaderSetLineAt( header, index, line.Get() );
}

void sipsnMessageHeaderDelLineAt( SipsnMessageHeader **header, int64_t index )
{
    PB_ASSERT_SLOT( header );
    PB_UNSHARE( header );
    pbVectorDelAt( LinesVectorOf( *header ), index );
}

// ---- Text and stores -------------------------------------------------------------------------------

static PbString *MakeText( SipsnMessageHeader *header )
{
    pb::Ref text{ pbStringCreate() };
    for( int64_t at = 0, length = sipsn::LineCount( header ); at < length; ++at )
        pbStringAppendFormatCstr( text.Slot(), at > 0 ? "\r\n%s: %s" : "%s: %s", -1, header->name,
                                  sipsn::PeekLine( header, at ) );
    return text.Detach();
}

PbStore *sipsnMessageHeaderStore( SipsnMessageHeader *header )
{
    PB_ASSERT( header );
    pb::Ref store{ pbStoreCreate() };
    pb::Ref lines{ sipsnMessageHeaderStoreLines( header ) };
    pbStoreSetValue( store.Slot(), nameKey.Get(), header->name );
    pbStoreSetStore( store.Slot(), linesKey.Get(), lines.Get() );
    return store.Detach();
}

PbStore *sipsnMessageHeaderStoreLines( SipsnMessageHeader *header )
{
    PB_ASSERT( header );
    pb::Ref       store{ pbStoreCreate() };
    const int64_t length = sipsn::LineCount( header );
    for( int64_t at = 0; at < length; ++at ) {
        pb::Ref key{ pbStringCreateFromFormatCstr( "%.*A", -1, length - 1, at ) };
        pbStoreSetValue( store.Slot(), key.Get(), sipsn::PeekLine( header, at ) );
    }
    return store.Detach();
}

SipsnMessageHeader *sipsnMessageHeaderTryRestore( PbStore *store )
{
    PB_ASSERT( store );
    pb::Ref name{ pbStoreValue( store, nameKey.Get() ) };
    if( !name || !sipsnMessageHeaderNameOk( name.Get() ) ) return nullptr;
    return sipsnMessageHeaderRestoreLines( name.Get(), pb::Ref{ pbStoreStore( store, linesKey.Get() ) }.Get() );
}

SipsnMessageHeader *sipsnMessageHeaderRestoreLines( PbString *name, PbStore *store )
{
    PB_ASSERT( sipsnMessageHeaderNameOk( name ) );
    PB_ASSERT( store );

    pb::Ref header{ sipsnMessageHeaderCreate( name ) };
    for( int64_t at = 0, length = pbStoreLength( store ); at < length; ++at ) {
        pb::Ref line{ pbStoreValueAt( store, at ) };
        if( line && sipsnMessageHeaderLineOk( line.Get() ) ) sipsn::AppendLineOwned( header.Get(), line.Detach() );
    }
    return header.Detach();
}

SipsnMessageHeader *sipsnMessageHeaderRestoreLinesCstr( const char *name, int64_t nameLength, PbStore *store )
{
    return sipsnMessageHeaderRestoreLines( StringFrom( name, nameLength ).Get(), store );
}

SipsnMessageHeader *sipsnMessageHeaderRestoreLinesWcstr( const wchar_t *name, int64_t nameLength, PbStore *store )
{
    return sipsnMessageHeaderRestoreLines( StringFrom( name, nameLength ).Get(), store );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___MessageHeaderStartup( void ) {}
void sipsn___MessageHeaderShutdown( void ) {}
