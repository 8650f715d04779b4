// The driver of the tables of header lines that the tests of header types share.
//
//     constexpr HeaderFamily via = HEADER_FAMILY( sipsnHeaderVia, "Via" );
//
//     CheckHeaders( {
//         { via, { "SIP/2.0/UDP a, SIP/2.0/UDP b" }, { "SIP/2.0/UDP a", "SIP/2.0/UDP b" } },
//         { via, { "SIP/2.0/UDP a," }, nullptr },
//     } );
#pragma once

#include "message_text.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>
#include <vector>

// The header functions of a family, over PbObj, so that one table may hold rows of many families.
struct HeaderFamily
{
    const char *name;
    PbObj *( *tryDecode )( SipsnMessageHeader *header );
    SipsnMessageHeader *( *encode )( PbObj *hdr );
    PbObj *( *tryDecodeFromMessage )( SipsnMessage *msg );
    void ( *encodeToMessage )( PbObj *hdr, SipsnMessage **msg );
    bool ( *presentInMessage )( SipsnMessage *msg );
    void ( *removeFromMessage )( SipsnMessage **msg );
    PbStore *( *store )( PbObj *hdr );
    PbObj *( *tryRestore )( PbStore *store );
};

#define HEADER_FAMILY( prefix, name )                                                                                  \
    {                                                                                                                  \
        name, []( SipsnMessageHeader *header ) { return prefix##Obj( prefix##TryDecode( header ) ); },                 \
            []( PbObj *hdr ) { return prefix##Encode( prefix##From( hdr ) ); },                                        \
            []( SipsnMessage *msg ) { return prefix##Obj( prefix##TryDecodeFromMessage( msg ) ); },                    \
            []( PbObj *hdr, SipsnMessage **msg ) { prefix##EncodeToMessage( prefix##From( hdr ), msg ); },             \
            prefix##PresentInMessage, prefix##RemoveFromMessage,                                                       \
            []( PbObj *hdr ) { return prefix##Store( prefix##From( hdr ) ); },                                         \
            []( PbStore *store ) { return prefix##Obj( prefix##TryRestore( store ) ); }                                \
    }

using HeaderLines = std::vector< std::string >;

// The lines that a header is encoded to; null says that there is no header to encode.
struct EncodedLines
{
    EncodedLines( std::nullptr_t ) : decodes( false ) {}
    EncodedLines( std::initializer_list< const char * > texts ) : decodes( true ), lines( texts.begin(), texts.end() )
    {}

    bool        decodes;
    HeaderLines lines;
};

struct HeaderCase
{
    HeaderFamily                family;
    std::vector< const char * > lines;
    EncodedLines                encoded;
};

inline pb::Ref< SipsnMessageHeader > Field( const char *name, const std::vector< const char * > &lines )
{
    pb::Ref field{ sipsnMessageHeaderCreateCstr( name, -1 ) };
    for( const char *line : lines ) sipsnMessageHeaderAppendLineCstr( field.Slot(), line, -1 );
    return field;
}

inline HeaderLines Lines( SipsnMessageHeader *field )
{
    HeaderLines lines;
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( field ); ++at )
        lines.push_back( Take( sipsnMessageHeaderLineAt( field, at ) ) );
    return lines;
}

inline HeaderLines EncodedBy( const HeaderFamily &family, PbObj *hdr )
{
    return Lines( pb::Ref{ family.encode( hdr ) }.Get() );
}

// The header of one line, or of several, as an object of its type.
template< auto tryDecode > auto Header( const char *name, const std::vector< const char * > &lines )
{
    return pb::Ref{ tryDecode( Field( name, lines ).Get() ) };
}

// What the text of a header object is, by the lines that it is encoded to.
inline std::string TextOfLines( SipsnMessageHeader *field )
{
    switch( sipsnMessageHeaderLinesLength( field ) ) {
    case 0: return "";
    case 1: return Take( sipsnMessageHeaderLineAt( field, 0 ) );
    default: return Take( pbVectorToString( pb::Ref{ sipsnMessageHeaderLinesVector( field ) }.Get() ) );
    }
}

inline bool SameHeader( PbObj *a, PbObj *b ) { return a && b ? pbObjCompare( a, b ) == 0 : a == b; }

// Into a message that has such a field already, over the wire, and out of it again.
inline void CheckMessageRoundTrip( const HeaderFamily &family, PbObj *hdr )
{
    auto    msg = Message( "OPTIONS sip:a@b SIP/2.0\r\nX-Other: 1\r\n\r\n" );
    pb::Ref other{ sipsnMessageRetain( msg.Get() ) };
    sipsnMessageSetHeader( msg.Slot(), Field( family.name, { "to be replaced", "" } ).Get() );
    family.encodeToMessage( hdr, msg.Slot() );
    EXPECT_TRUE( family.presentInMessage( msg.Get() ) );
    EXPECT_FALSE( family.presentInMessage( other.Get() ) );

    pb::Ref       field{ sipsnMessageHeaderCstr( msg.Get(), family.name, -1 ) };
    const auto    lines = EncodedBy( family, hdr );
    const pb::Ref found{ family.tryDecodeFromMessage( msg.Get() ) };
    EXPECT_EQ( Lines( field.Get() ), lines );
    EXPECT_TRUE( lines.empty() ? !found : SameHeader( found.Get(), hdr ) );

    pb::Ref wire{ sipsnMessageEncode( msg.Get() ) };
    pb::Ref decoded{ sipsnMessageTryDecode( wire.Get() ) };
    EXPECT_EQ( family.presentInMessage( decoded.Get() ), !lines.empty() );

    family.removeFromMessage( msg.Slot() );
    EXPECT_FALSE( family.presentInMessage( msg.Get() ) );
    EXPECT_FALSE( pb::Ref{ family.tryDecodeFromMessage( msg.Get() ) } );
    EXPECT_TRUE( sipsnMessageHasHeaderCstr( msg.Get(), "X-Other", -1 ) );
}

// Checks a header object by what it is encoded to: the lines, the text, that decoding and restoring give an equal
// header, and the way through a message.
inline void CheckHeaderObject( const HeaderFamily &family, PbObj *hdr, const HeaderLines &expected )
{
    pb::Ref field{ family.encode( hdr ) };
    EXPECT_TRUE( sipsnMessageHeaderNameEqualsCstr( field.Get(), family.name, -1 ) );
    EXPECT_EQ( Lines( field.Get() ), expected );
    EXPECT_EQ( Take( pbObjToString( hdr ) ), TextOfLines( field.Get() ) );

    pb::Ref store{ family.store( hdr ) };
    EXPECT_EQ( pbStoreLength( store.Get() ), int64_t( expected.size() ) );
    const pb::Ref again{ family.tryDecode( field.Get() ) };
    const pb::Ref restored{ family.tryRestore( store.Get() ) };
    EXPECT_TRUE( SameHeader( again.Get(), restored.Get() ) );
    if( again || !expected.empty() ) { // not every type has a header for a field without lines
        EXPECT_TRUE( SameHeader( again.Get(), hdr ) );
    }
    CheckMessageRoundTrip( family, hdr );
}

// Checks what the lines decode to, from a header field, a store and a message, and the header that they give.
inline void CheckHeader( const HeaderCase &row )
{
    SCOPED_TRACE( std::string( row.family.name ) + ": " + testing::PrintToString( row.lines ) );
    auto          field = Field( row.family.name, row.lines );
    const pb::Ref hdr{ row.family.tryDecode( field.Get() ) };
    ASSERT_EQ( bool( hdr ), row.encoded.decodes );

    const pb::Ref restored{ row.family.tryRestore( pb::Ref{ sipsnMessageHeaderStoreLines( field.Get() ) }.Get() ) };
    EXPECT_TRUE( SameHeader( restored.Get(), hdr.Get() ) );

    auto msg = Message( "OPTIONS sip:a@b SIP/2.0\r\n\r\n" );
    EXPECT_FALSE( row.family.presentInMessage( msg.Get() ) );
    EXPECT_FALSE( pb::Ref{ row.family.tryDecodeFromMessage( msg.Get() ) } );
    sipsnMessageSetHeader( msg.Slot(), field.Get() );
    EXPECT_TRUE( row.family.presentInMessage( msg.Get() ) );
    const pb::Ref found{ row.family.tryDecodeFromMessage( msg.Get() ) };
    EXPECT_TRUE( row.lines.empty() ? !found : SameHeader( found.Get(), hdr.Get() ) );

    if( hdr ) CheckHeaderObject( row.family, hdr.Get(), row.encoded.lines );
}

inline void CheckHeaders( std::initializer_list< HeaderCase > rows )
{
    for( const HeaderCase &row : rows ) CheckHeader( row );
}
