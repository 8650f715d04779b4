// Header fields as they are on the wire: canonical names, lines, copy on write, stores.
#include "message_text.h"

#include <gmock/gmock.h>

#include <sstream>

namespace {

std::string Normal( std::string_view name ) { return Take( sipsnMessageHeaderNameNormalize( Str( name ).Get() ) ); }

pb::Ref< SipsnMessageHeader > Header( const char *name, std::initializer_list< const char * > lines )
{
    pb::Ref header{ sipsnMessageHeaderCreateCstr( name, -1 ) };
    for( const char *line : lines ) sipsnMessageHeaderAppendLineCstr( header.Slot(), line, -1 );
    return header;
}

TEST( SipsnMessageHeader, NamesHaveOneCanonicalForm )
{
    const struct
    {
        const char *name, *canonical;
    } cases[] = {
        { "l", "Content-Length" },
        { "L", "Content-Length" },
        { "CONTENT-LENGTH", "Content-Length" },
        { "Call-ID", "Call-Id" },
        { "CSeq", "Cseq" },
        { "WWW-Authenticate", "Www-Authenticate" },
        { "P-Asserted-Identity", "P-Asserted-Identity" },
        { "User-to-User", "User-To-User" },
        { "x-y-z", "X-Y-Z" },
        { "X-My-HEADER-", "X-My-Header-" },
        { "--x", "--X" },
        { "z", "Z" },
        { "9-a.b", "9-A.b" },
        { "Vi", "Vi" },
        { "Viaa", "Viaa" },
    };
    for( const auto &[ name, canonical ] : cases ) {
        EXPECT_EQ( Normal( name ), canonical ) << name;
        EXPECT_EQ( Normal( canonical ), canonical );
    }
}

TEST( SipsnMessageHeader, EveryCompactNameHasItsLongName )
{
    std::istringstream names{
        "a Accept-Contact u Allow-Events i Call-Id m Contact e Content-Encoding l Content-Length "
        "c Content-Type o Event f From y Identity n Identity-Info r Refer-To b Referred-By "
        "j Reject-Contact d Request-Disposition x Session-Expires s Subject k Supported t To v Via" };
    std::string compact;
    for( std::string letter, name; names >> letter >> name; ) {
        EXPECT_EQ( Normal( letter ), name );
        compact += letter;
    }
    for( char letter = 'a'; letter <= 'z'; ++letter ) {
        if( compact.find( letter ) != compact.npos ) continue;
        EXPECT_EQ( Normal( std::string( 1, letter ) ), std::string( 1, char( letter - 32 ) ) );
    }
}

TEST( SipsnMessageHeader, NamesAreTokensAndLinesHaveNoLineEnds )
{
    for( const char *bad : { "", " ", "Via ", "Vi a", "Via:", "V\xc3\xaf", "(x)" } )
        EXPECT_FALSE( sipsnMessageHeaderNameOk( Str( bad ).Get() ) ) << bad;
    for( const char *good : { "", " ", "a\tb", "\x01", "\xc3\xa9" } )
        EXPECT_TRUE( sipsnMessageHeaderLineOk( Str( good ).Get() ) ) << good;
    for( const char *bad : { "\r", "a\nb", "a\r\n" } )
        EXPECT_FALSE( sipsnMessageHeaderLineOk( Str( bad ).Get() ) ) << bad;
}

TEST( SipsnMessageHeader, EqualsByNameInWhateverForm )
{
    pb::Ref via = Header( "v", { "x" } );
    EXPECT_TRUE( sipsnMessageHeaderNameEqualsCstr( via.Get(), "VIA", -1 ) );
    EXPECT_FALSE( sipsnMessageHeaderNameEqualsCstr( via.Get(), "Route", -1 ) );
    EXPECT_TRUE( sipsnMessageHeaderEquals( via.Get(), Header( "Via", { "x" } ).Get() ) );
    EXPECT_LT( sipsnMessageHeaderCompare( via.Get(), Header( "Via", { "x", "" } ).Get() ), 0 );
    EXPECT_LT( sipsnMessageHeaderCompare( Header( "To", { "z" } ).Get(), via.Get() ), 0 );
}

TEST( SipsnMessageHeader, ChangesLinesOfItsOwnCopyOnly )
{
    pb::Ref    header = Header( "Q", { "a", "b" } );
    pb::Ref    copy{ sipsnMessageHeaderRetain( header.Get() ) };
    const auto format = Str( "%s-%i" ), text = Str( "c" );
    sipsnMessageHeaderSetLineAtFormat( copy.Slot(), 1, format.Get(), text.Get(), int64_t{ 7 } );
    sipsnMessageHeaderAppendLineFormat( copy.Slot(), format.Get(), text.Get(), int64_t{ 8 } );
    sipsnMessageHeaderAppendLineFormatCstr( copy.Slot(), "%ix", 2, int64_t{ 9 } );
    sipsnMessageHeaderAppendLineFormatWcstr( copy.Slot(), L"%^!16i", -1, int64_t{ 250 } );
    sipsnMessageHeaderSetLineAtFormatCstr( copy.Slot(), 2, "%s", -1, text.Get() );
    sipsnMessageHeaderSetLineAtFormatWcstr( copy.Slot(), 3, L"%ix", 2, int64_t{ 5 } );
    sipsnMessageHeaderDelLineAt( copy.Slot(), 0 );
    sipsnMessageHeaderSetNameCstr( copy.Slot(), "s", -1 );
    EXPECT_EQ( Take( sipsnMessageHeaderToString( copy.Get() ) ),
               "Subject: c-7\r\nSubject: c\r\nSubject: 5\r\nSubject: FA" );
    EXPECT_EQ( Take( sipsnMessageHeaderToString( header.Get() ) ), "Q: a\r\nQ: b" );
    EXPECT_EQ( Take( sipsnMessageHeaderLastLine( header.Get() ) ), "b" );
    EXPECT_EQ( sipsnMessageHeaderLastLine( Header( "X", {} ).Get() ), nullptr );
}

TEST( SipsnMessageHeader, StoresAndRestores )
{
    pb::Ref header = Header( "v", { "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10" } );
    pb::Ref store{ sipsnMessageHeaderStore( header.Get() ) };
    pb::Ref lines{ pbStoreStoreCstr( store.Get(), "lines", -1 ) };
    EXPECT_EQ( Take( pbStoreValueCstr( store.Get(), "name", -1 ) ), "Via" );
    EXPECT_EQ( Take( pbStoreValueCstr( lines.Get(), "02", -1 ) ), "2" );
    pb::Ref restored{ sipsnMessageHeaderTryRestore( store.Get() ) };
    EXPECT_TRUE( sipsnMessageHeaderEquals( header.Get(), restored.Get() ) );

    // What is no line is skipped: a line feed, a sub-store.
    pb::Ref odd{ pbStoreCreate() };
    pbStoreSetValueCstr( odd.Slot(), "0", -1, Str( "a" ).Get() );
    pbStoreSetValueCstr( odd.Slot(), "1", -1, Str( "b\nc" ).Get() );
    pbStoreSetStoreCstr( odd.Slot(), "2", -1, store.Get() );
    pbStoreSetValueCstr( odd.Slot(), "3", -1, Str( "" ).Get() );
    pb::Ref two{ sipsnMessageHeaderRestoreLinesWcstr( L"x", -1, odd.Get() ) };
    EXPECT_EQ( Take( sipsnMessageHeaderToString( two.Get() ) ), "Session-Expires: a\r\nSession-Expires: " );

    EXPECT_EQ( sipsnMessageHeaderTryRestore( odd.Get() ), nullptr ) << "there is no name";
    pbStoreSetValueCstr( odd.Slot(), "name", -1, Str( "not a name" ).Get() );
    EXPECT_EQ( sipsnMessageHeaderTryRestore( odd.Get() ), nullptr );
    pbStoreSetValueCstr( odd.Slot(), "name", -1, Str( "a-name" ).Get() );
    EXPECT_DEATH( sipsnMessageHeaderTryRestore( odd.Get() ), "\"store\"" ) << "a name without lines";
}

TEST( SipsnMessageHeaderDeathTest, AbortsOnMisuse )
{
    pb::Ref             header = Header( "X", { "a" } );
    SipsnMessageHeader *none   = nullptr;
    EXPECT_DEATH( sipsnMessageHeaderCreateCstr( "a b", -1 ),
                  "sipsn_message_header.*\"sipsnMessageHeaderNameOk\\( name \\)\"" );
    EXPECT_DEATH( sipsnMessageHeaderAppendLineCstr( header.Slot(), "a\rb", -1 ),
                  "\"sipsnMessageHeaderLineOk\\( value \\)\"" );
    EXPECT_DEATH( sipsnMessageHeaderSetLineAtCstr( header.Slot(), 0, "a\nb", -1 ),
                  "\"sipsnMessageHeaderLineOk\\( value \\)\"" );
    EXPECT_DEATH( sipsnMessageHeaderLineAt( header.Get(), 1 ), "index" );
    EXPECT_DEATH( sipsnMessageHeaderAppendLineCstr( nullptr, "a", -1 ), "\"header\"" );
    EXPECT_DEATH( sipsnMessageHeaderAppendLineCstr( &none, "a", -1 ), "\"\\*header\"" );

    pb::Ref vector{ pbVectorCreate() };
    pbVectorAppendString( vector.Slot(), Str( "a\n" ).Get() );
    EXPECT_DEATH( sipsnMessageHeaderSetLinesVector( header.Slot(), vector.Get() ),
                  "\"sipsnMessageHeaderLineOk\\( pbs \\)\"" );
    pbVectorAppend( vector.Slot(), pbVectorObj( vector.Get() ) );
    EXPECT_DEATH( sipsnMessageHeaderSetLinesVector( header.Slot(), vector.Get() ),
                  "\"pbVectorContainsOnly\\( lines, pbStringSort\\(\\) \\)\"" );
}

} // namespace
