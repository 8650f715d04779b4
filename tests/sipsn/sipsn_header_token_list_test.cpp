// Token lists: which lines decode, what is normalised, the changes that all token lists have.
#include "header_text.h"

namespace {

constexpr HeaderFamily acceptResourcePriority =
    HEADER_FAMILY( sipsnHeaderAcceptResourcePriority, "Accept-Resource-Priority" );
constexpr HeaderFamily contentEncoding  = HEADER_FAMILY( sipsnHeaderContentEncoding, "Content-Encoding" );
constexpr HeaderFamily pEarlyMedia      = HEADER_FAMILY( sipsnHeaderPEarlyMedia, "P-Early-Media" );
constexpr HeaderFamily resourcePriority = HEADER_FAMILY( sipsnHeaderResourcePriority, "Resource-Priority" );

TEST( SipsnHeaderTokenList, Lines )
{
    CheckHeaders( {
        { contentEncoding, { "GZip, b", "gzip" }, { "gzip,b,gzip" } },
        { contentEncoding, { "" }, {} },
        { contentEncoding, { "a,", "b" }, nullptr },
        { contentEncoding, { "a b" }, nullptr },
        { pEarlyMedia, { "sendrecv, Gated", "gated" }, { "sendrecv", "Gated", "gated" } },
        { pEarlyMedia, { "gated gated" }, nullptr },
        { resourcePriority, { "Q735.3, dsn.flash", "q735.3" }, { "Q735.3", "dsn.flash", "q735.3" } },
        { resourcePriority, { "dsn" }, nullptr },
        { acceptResourcePriority, { "dsn.flash , DSN.flash" }, { "dsn.flash", "DSN.flash" } },
        { acceptResourcePriority, { "dsn.flash", "dsn." }, nullptr },
    } );
}

// What a caller adds stays as it is given, unlike what is decoded.
TEST( SipsnHeaderTokenList, ChangesItsOwnCopyOnly )
{
    pb::Ref hdr{ sipsnHeaderContentEncodingCreate() };
    sipsnHeaderContentEncodingAppendContentCoding( hdr.Slot(), Str( "B" ).Get() );
    pb::Ref kept{ sipsnHeaderContentEncodingRetain( hdr.Get() ) };
    sipsnHeaderContentEncodingPrependContentCoding( hdr.Slot(), Str( "A" ).Get() );
    sipsnHeaderContentEncodingInsertContentCoding( hdr.Slot(), 1, Str( "x" ).Get() );
    sipsnHeaderContentEncodingSetContentCodingAt( hdr.Slot(), 1, Str( "B" ).Get() );
    EXPECT_EQ( Take( sipsnHeaderContentEncodingToString( hdr.Get() ) ), "A,B,B" );
    EXPECT_EQ( Take( sipsnHeaderContentEncodingToString( kept.Get() ) ), "B" );
    sipsnHeaderContentEncodingDelContentCodingAt( hdr.Slot(), 1 );
    EXPECT_EQ( Take( sipsnHeaderContentEncodingContentCodingAt( hdr.Get(), 1 ) ), "B" );

    pb::Ref all{ sipsnHeaderContentEncodingContentCodingsVector( hdr.Get() ) };
    sipsnHeaderContentEncodingClearContentCodings( hdr.Slot() );
    EXPECT_EQ( sipsnHeaderContentEncodingContentCodingsLength( hdr.Get() ), 0 );
    sipsnHeaderContentEncodingSetContentCodingsVector( hdr.Slot(), all.Get() );
    EXPECT_EQ( Take( sipsnHeaderContentEncodingToString( hdr.Get() ) ), "A,B" );
    EXPECT_DEATH( sipsnHeaderContentEncodingAppendContentCoding( hdr.Slot(), Str( "a,b" ).Get() ),
                  "\"sipsnContentCodingOk\\( contentCoding \\)\"" );
    EXPECT_DEATH( sipsnHeaderContentEncodingSetContentCodingsVector( hdr.Slot(), nullptr ), "\"vec\"" );
}

template< class Hdr >
void CheckTokenList( Hdr *( *create )(), void ( *append )( Hdr **hdr, PbString *token ),
                     void ( *setAt )( Hdr **hdr, int64_t index, PbString *token ),
                     PbString *( *at )( Hdr *hdr, int64_t index ), int64_t ( *length )( Hdr *hdr ),
                     void ( *clear )( Hdr **hdr ), const char *refused )
{
    pb::Ref hdr{ create() };
    append( hdr.Slot(), Str( "a.B" ).Get() );
    append( hdr.Slot(), Str( "a.B" ).Get() );
    setAt( hdr.Slot(), 1, Str( "x.y" ).Get() );
    EXPECT_EQ( Take( at( hdr.Get(), 0 ) ), "a.B" );
    EXPECT_EQ( Take( at( hdr.Get(), 1 ) ), "x.y" );
    EXPECT_DEATH( append( hdr.Slot(), Str( "a b" ).Get() ), refused );
    clear( hdr.Slot() );
    EXPECT_EQ( length( hdr.Get() ), 0 );
}

#define CHECK_TOKEN_LIST( prefix, Items, Item, refused )                                                               \
    CheckTokenList( prefix##Create, prefix##Append##Item, prefix##Set##Item##At, prefix##Item##At,                     \
                    prefix##Items##Length, prefix##Clear##Items, refused )

TEST( SipsnHeaderTokenList, TokensOfEachType )
{
    CHECK_TOKEN_LIST( sipsnHeaderAcceptResourcePriority, Rvalues, Rvalue, "\"sipsnRvalueOk\\( rvalue \\)\"" );
    CHECK_TOKEN_LIST( sipsnHeaderResourcePriority, Rvalues, Rvalue, "\"sipsnRvalueOk\\( rvalue \\)\"" );
    CHECK_TOKEN_LIST( sipsnHeaderPEarlyMedia, EmParams, EmParam, "\"sipsnEmParamOk\\( emParam \\)\"" );
}

} // namespace
