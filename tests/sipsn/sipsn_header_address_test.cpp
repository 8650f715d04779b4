// The headers that are one address with parameters: From and To, P-Called-Party-ID, Remote-Party-ID, Reply-To, Refer-To
// and Referred-By.
#include "header_text.h"

#include "sipsn/sipsn_value_internal.h"

namespace {

constexpr HeaderFamily from          = HEADER_FAMILY( sipsnHeaderFrom, "From" );
constexpr HeaderFamily to            = HEADER_FAMILY( sipsnHeaderTo, "To" );
constexpr HeaderFamily pCalledParty  = HEADER_FAMILY( sipsnHeaderPCalledPartyId, "P-Called-Party-ID" );
constexpr HeaderFamily remotePartyId = HEADER_FAMILY( sipsnHeaderRemotePartyId, "Remote-Party-ID" );
constexpr HeaderFamily replyTo       = HEADER_FAMILY( sipsnHeaderReplyTo, "Reply-To" );
constexpr HeaderFamily referTo       = HEADER_FAMILY( sipsnHeaderReferTo, "r" );
constexpr HeaderFamily referredBy    = HEADER_FAMILY( sipsnHeaderReferredBy, "b" );

// A line and the one that its header is encoded to; null when it does not decode.
struct LineCase
{
    const char *line, *canonical;
};

void CheckLines( std::initializer_list< HeaderFamily > families, std::initializer_list< LineCase > cases )
{
    for( const HeaderFamily &family : families )
        for( const auto &[ line, canonical ] : cases )
            CheckHeader( { family, { line }, canonical ? EncodedLines( { canonical } ) : EncodedLines( nullptr ) } );
}

auto From( const char *line ) { return Header< sipsnHeaderFromTryDecode >( "From", { line } ); }

pb::Ref< SipsnGenericParams > Params( std::string_view text )
{
    const auto chs = Chars( text );
    return pb::Ref{ sipsn___GenericParamsTryDecode( chs.data(), int64_t( chs.size() ) ) };
}

TEST( SipsnHeaderAddress, AllReadTheSameAddresses )
{
    CheckLines( { from, to, pCalledParty, remotePartyId, replyTo, referTo, referredBy },
                {
                    { "<sip:a@b>", "<sip:a@b>" },
                    { "sip:a@b", "<sip:a@b>" },
                    { "sip:a@b;x=1", "<sip:a@b>;x=1" },
                    { "<sip:a@b;transport=tcp>;x=1", "<sip:a@b;transport=tcp>;x=1" },
                    { "<sip:a@b?Subject=c>", "<sip:a@b?Subject=c>" },
                    { "tel:+1-201-555-0123;phone-context=x", "<tel:+1-201-555-0123>;phone-context=x" },
                    { "Alice <sip:a@b>", "\"Alice\" <sip:a@b>" },
                    { "Alice  B.  Cooper<sip:a@b>", "\"Alice B. Cooper\" <sip:a@b>" },
                    { "\"a \\\" <b>\" \t<sip:a@b> ; x", "\"a \\\" <b>\" <sip:a@b>;x" },
                    { "\"\" <sip:a@b>", "\"\" <sip:a@b>" },
                    { "J\xc3\xbcrgen <sip:a@b>", nullptr }, // beyond ASCII between quotes alone
                    { "\"J\xc3\xbcrgen\" <sip:j%c3%bcrgen@b>", "\"J\xc3\xbcrgen\" <sip:j%C3%BCrgen@b>" },
                    { "<sip:a@[2001:db8::1]:5060>", "<sip:a@[2001:db8::1]:5060>" },
                    { "<sip:a@b>;z;y=\"; ,\";X=[::1]", "<sip:a@b>;x=[::1];y=\"; ,\";z" },
                    { "<sip:a@b>;x=1;X=2", "<sip:a@b>;x=2" },
                    { "<sip:a@b> ; x = 1", "<sip:a@b>;x=1" },
                    { "", nullptr },
                    { "<>", nullptr },
                    { ";x", nullptr },
                    { "Alice", nullptr },
                    { "Alice sip:a@b", nullptr },
                    { "\"Alice\" sip:a@b", nullptr },
                    { "<sip:a@b", nullptr },
                    { "<Alice>", nullptr },
                    { "<sip:a b>", nullptr },
                    { "<sip:a@b> x", nullptr },
                    { "<sip:a@b>,<sip:c@d>", nullptr },
                    { "<sip:a@b>;", nullptr },
                    { "<sip:a@b>;x;", nullptr },
                    { "<sip:a@b>;;x", nullptr },
                    { "<sip:a@b>;x=", nullptr },
                    { "<sip:a@b>;x=\"", nullptr },
                    { "<sip:a@b>;x?y", nullptr },
                    { "sip:a@b;x=1 y", nullptr },
                } );
}

TEST( SipsnHeaderAddress, TagAndEpidAreMembersOfFromAndToAlone )
{
    CheckLines( { from, to },
                {
                    { "A <sip:a@b>;tag=1928", "\"A\" <sip:a@b>;tag=1928" },
                    { "sip:a@b;tag=887s", "<sip:a@b>;tag=887s" },
                    { "<sip:a@b>;x;EPID=1234567890abcdef;TAG = T;a", "<sip:a@b>;tag=T;epid=1234567890abcdef;a;x" },
                    { "<sip:a@b>;tag=1;tag=2", "<sip:a@b>;tag=2" },
                    // Refused by their member, kept as generic parameters.
                    { "<sip:a@b>;tag", "<sip:a@b>;tag" },
                    { "<sip:a@b>;tag=\"1\"", "<sip:a@b>;tag=\"1\"" },
                    { "<sip:a@b>;epid=[::1]", "<sip:a@b>;epid=[::1]" },
                    { "<sip:a@b>;tagged=1;epidemic", "<sip:a@b>;epidemic;tagged=1" },
                    { "<sip:a@b>;tag=1@", nullptr },
                    { "<sip:a@b>;epid=1234567890abcdefg", nullptr },
                    { "sip:a@b;x?y;tag=1", nullptr },
                } );
    // Case is kept by a member and folded by a generic parameter's name.
    CheckLines( { pCalledParty, remotePartyId, replyTo, referTo, referredBy },
                { { "<sip:a@b>;x;EPID=1;TAG=T", "<sip:a@b>;epid=1;tag=T;x" } } );
}

TEST( SipsnHeaderAddress, CidIsAMemberOfReferredByAlone )
{
    CheckLines( { referredBy }, {
                                    { "<sip:a@b>;CID = \"20398823.2UWQFN309shb3@r.example\"",
                                      "<sip:a@b>;cid=\"20398823.2UWQFN309shb3@r.example\"" },
                                    { "sip:a@b;x;cid=\"1@b\";a;cid=\"2@b\"", "<sip:a@b>;cid=\"2@b\";a;x" },
                                    // Refused by the member, kept as generic parameters.
                                    { "<sip:a@b>;cid=1", "<sip:a@b>;cid=1" },
                                    { "<sip:a@b>;cid=\"1\"", "<sip:a@b>;cid=\"1\"" },
                                    { "<sip:a@b>;cid=\" 1@b\"", "<sip:a@b>;cid=\" 1@b\"" },
                                    { "<sip:a@b>;cid=\"1@b \"", "<sip:a@b>;cid=\"1@b \"" },
                                    { "<sip:a@b>;cid=\"1@b", nullptr },
                                    { "<sip:a@b>;cid=\"1@b\"x", nullptr },
                                } );
    auto hdr = Header< sipsnHeaderReferredByTryDecode >( "b", { "sip:a@b;cid=\"1@b\"" } );
    EXPECT_EQ( Take( sipsnHeaderReferredByCid( hdr.Get() ) ), "1@b" );
    sipsnHeaderReferredByDelCid( hdr.Slot() );
    EXPECT_FALSE( sipsnHeaderReferredByHasCid( hdr.Get() ) );
    EXPECT_DEATH( sipsnHeaderReferredBySetCid( hdr.Slot(), Str( "1" ).Get() ), "\"sipsnSipCleanMsgIdOk\\( cid \\)\"" );
}

TEST( SipsnHeaderAddress, ReferToReadsABareAddressTwice )
{
    CheckLines( { referTo }, {
                                 { "sip:a@b;method=SUBSCRIBE", "<sip:a@b>;method=SUBSCRIBE" },
                                 { "sip:a@b;method=SUBSCRIBE?h=v", "<sip:a@b;method=SUBSCRIBE?h=v>" },
                                 { "sip:a@b;x?h=v;y ;z=1", "<sip:a@b;x?h=v;y>;z=1" },
                                 { "sip:a@b;x=1:2", "<sip:a@b;x=1:2>" },
                                 { "sip:a@b;", "<sip:a@b;>" },
                                 { "sip:a@b;x?h=%c3%bc", "<sip:a@b;x?h=%C3%BC>" },
                                 { "sip:a@b;x?h <c>", nullptr },
                                 { "sip:a@b;x?h=%4", nullptr },
                                 { ":a@b;x?h", nullptr },
                             } );
    CheckLines( { from, to, pCalledParty, remotePartyId, replyTo, referredBy },
                { { "sip:a@b;x?h=v", nullptr }, { "sip:a@b;", nullptr } } );
}

TEST( SipsnHeaderAddress, LastLineCounts )
{
    CheckHeaders( { { from, {}, nullptr },
                    { from, { "sip:a@b", "sip:c@d" }, { "<sip:c@d>" } },
                    { to, { "?", "sip:c@d" }, { "<sip:c@d>" } },
                    { referTo, { "sip:a@b", "?" }, nullptr } } );
}

TEST( SipsnHeaderAddress, FromAndToAreMadeOfEachOther )
{
    auto    hdrFrom = From( "J <sip:j%C3%BC@b>;tag=1;epid=2;x=3" );
    pb::Ref hdrTo{ sipsnHeaderToCreateFromHeaderFrom( hdrFrom.Get() ) };
    EXPECT_EQ( Take( sipsnHeaderToToString( hdrTo.Get() ) ), "\"J\" <sip:j%C3%BC@b>;tag=1;epid=2;x=3" );
    EXPECT_EQ( Take( sipsnHeaderToIri( hdrTo.Get() ) ), "sip:j\xc3\xbc@b" );
    pb::Ref back{ sipsnHeaderFromCreateFromHeaderTo( hdrTo.Get() ) };
    EXPECT_TRUE( sipsnHeaderFromEquals( hdrFrom.Get(), back.Get() ) );

    auto plain = From( "sip:a@b" );
    hdrTo      = pb::Ref{ sipsnHeaderToCreateFromHeaderFrom( plain.Get() ) };
    EXPECT_FALSE( sipsnHeaderToHasDisplayName( hdrTo.Get() ) || sipsnHeaderToHasTag( hdrTo.Get() ) ||
                  sipsnHeaderToHasEpid( hdrTo.Get() ) );
    EXPECT_DEATH( sipsnHeaderToCreateFromHeaderFrom( nullptr ), "\"hdrFrom\"" );
    EXPECT_DEATH( sipsnHeaderFromCreateFromHeaderTo( nullptr ), "\"hdrTo\"" );
}

TEST( SipsnHeaderAddress, MembersGoBeforeGenericParamsOfTheirName )
{
    auto hdr = From( "<sip:a@b>;tag=1;tag=\"2\"" );
    EXPECT_EQ( Take( sipsnHeaderFromToString( hdr.Get() ) ), "<sip:a@b>;tag=1" );
    sipsnHeaderFromDelTag( hdr.Slot() );
    EXPECT_EQ( Take( sipsnHeaderFromToString( hdr.Get() ) ), "<sip:a@b>;tag=\"2\"" );
}

TEST( SipsnHeaderAddress, ChangesItsOwnCopyOnly )
{
    const char *line = "\"A\" <sip:a@b>;tag=1;epid=2;x=3";
    auto        hdr  = From( line );
    pb::Ref     copy{ sipsnHeaderFromRetain( hdr.Get() ) };
    sipsnHeaderFromSetIri( copy.Slot(), Str( "sip:\xc3\xbc@b" ).Get() );
    sipsnHeaderFromSetDisplayName( copy.Slot(), Str( "\\" ).Get() );
    sipsnHeaderFromSetTag( copy.Slot(), Str( "T" ).Get() );
    sipsnHeaderFromSetEpid( copy.Slot(), Str( "E" ).Get() );
    sipsnHeaderFromSetGenericParams( copy.Slot(), Params( ";z;tag=0" ).Get() );
    CheckHeaderObject( from, sipsnHeaderFromObj( hdr.Get() ), { line } );
    EXPECT_EQ( Take( sipsnHeaderFromToString( copy.Get() ) ), "\"\\\\\" <sip:%C3%BC@b>;tag=T;epid=E;z" );
    sipsnHeaderFromDelDisplayName( copy.Slot() );
    sipsnHeaderFromDelEpid( copy.Slot() );
    EXPECT_EQ( Take( sipsnHeaderFromToString( copy.Get() ) ), "<sip:%C3%BC@b>;tag=T;z" );
}

TEST( SipsnHeaderAddress, ComparesMemberByMember )
{
    const auto order = []( const char *a, const char *b ) {
        return sipsnHeaderFromCompare( From( a ).Get(), From( b ).Get() );
    };
    EXPECT_EQ( order( "sip:a@b;tag=1;x", "<sip:a@b>;X;TAG=1" ), 0 );
    EXPECT_LT( order( "Z <sip:a@b>;tag=2", "sip:a@c" ), 0 );
    EXPECT_LT( order( "sip:a@b;tag=9", "A <sip:a@b>" ), 0 );
    EXPECT_LT( order( "sip:a@b;epid=9", "sip:a@b;tag=1" ), 0 );
    EXPECT_LT( order( "sip:a@b;tag=1;z", "sip:a@b;tag=1;epid=1" ), 0 );
}

TEST( SipsnHeaderAddress, RefusesInvalidMembers )
{
    auto hdr = From( "sip:a@b" );
    EXPECT_DEATH( sipsnHeaderFromCreate( Str( "a" ).Get() ), "sipsn_header_from.*\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnHeaderReferToCreate( Str( "" ).Get() ), "sipsn_header_refer_to.*\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnHeaderFromSetIri( hdr.Slot(), Str( "a" ).Get() ), "\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnHeaderFromSetDisplayName( hdr.Slot(), Str( "a\n" ).Get() ),
                  "\"sipsnDisplayNameOk\\( displayName \\)\"" );
    EXPECT_DEATH( sipsnHeaderFromSetTag( hdr.Slot(), Str( "a b" ).Get() ), "\"sipsnTagOk\\( tag \\)\"" );
    EXPECT_DEATH( sipsnHeaderFromSetEpid( hdr.Slot(), Str( "" ).Get() ), "\"sipsnEpidOk\\( epid \\)\"" );
    EXPECT_DEATH( sipsnHeaderFromSetGenericParams( hdr.Slot(), nullptr ), "\"genericParams\"" );
}

} // namespace
