// History-Info entries: the required brackets and index, members.
#include "value_text.h"

namespace {

auto Entry( std::string_view text ) { return Decoded< sipsn___HistoryInfoTryDecode >( text ); }

TEST( SipsnHistoryInfo, Wire )
{
    CheckWire< sipsn___HistoryInfoTryDecode, sipsn___HistoryInfoEncode >( {
        { "<sip:192.0.2.1>;index=1.1;rc=1", "<sip:192.0.2.1>;index=1.1;rc=1" },
        { "<sip:h>;INDEX=2", "<sip:h>;index=2" },
        { "Bob <sip:b@h?Reason=SIP%3Bcause%3D302> ; z=1 ; np = 1.1 ; mp=0 ; RC=1 ; index = 1.10.2",
          "\"Bob\" <sip:b@h?Reason=SIP%3Bcause%3D302>;index=1.10.2;rc=1;mp=0;np=1.1;z=1" },
        { "\"<\" <sip:h>;index=1;index=2", "\"<\" <sip:h>;index=2" },
        { "<sip:h>;index=1;rcx=1;mp;np=x", "<sip:h>;index=1;mp;np=x;rcx=1" },
        // No angle brackets, no index.
        { "sip:192.0.2.1;index=1", nullptr },
        { "Bob sip:h;index=1", nullptr },
        { "Bob", nullptr },
        { "", nullptr },
        { "<>;index=1", nullptr },
        { "<sip:h;index=1", nullptr },
        { "<sip:192.0.2.1>", nullptr },
        { "<sip:h>;rc=1", nullptr },
        { "<sip:h>;index=x", nullptr },
        { "<sip:h>;index", nullptr },
        { "<sip:h>;indexes=1", nullptr },
        { "<sip:h>;index=1.", nullptr },
        { "<sip:h>;index=1;", nullptr },
        { "<sip:h>;index=1;rc=1x", nullptr },
        { "<sip:h>;index=1,<sip:i>;index=2", nullptr },
    } );
}

TEST( SipsnHistoryInfo, ComparesIndicesAsTexts )
{
    const auto compare = []( const char *a, const char *b ) {
        return sipsnHistoryInfoCompare( Entry( a ).Get(), Entry( b ).Get() );
    };
    EXPECT_LT( compare( "<sip:h>;index=1.10", "<sip:h>;index=1.9" ), 0 );
    EXPECT_LT( compare( "<sip:h>;index=2", "A <sip:h>;index=1" ), 0 );
    EXPECT_LT( compare( "<sip:h>;index=1;mp=1", "<sip:h>;index=1;rc=1" ), 0 );
    EXPECT_LT( compare( "<sip:h>;index=1;z", "<sip:h>;index=1;np=1" ), 0 );
}

TEST( SipsnHistoryInfo, ChangesItsOwnCopyOnly )
{
    const char *text  = "\"A\" <sip:h>;index=1.1;rc=1;mp=2;np=3;z";
    auto        entry = Entry( text );
    pb::Ref     copy{ sipsnHistoryInfoRetain( entry.Get() ) };
    sipsnHistoryInfoDelDisplayName( copy.Slot() );
    sipsnHistoryInfoSetIndex( copy.Slot(), Str( "4" ).Get() );
    sipsnHistoryInfoDelRc( copy.Slot() );
    sipsnHistoryInfoSetMp( copy.Slot(), Str( "5" ).Get() );
    sipsnHistoryInfoDelNp( copy.Slot() );
    sipsnHistoryInfoSetGenericParams( copy.Slot(),
                                      Decoded< sipsn___GenericParamsTryDecode >( ";index=x;rc=x;mp=x" ).Get() );
    EXPECT_EQ( Take( sipsnHistoryInfoToString( copy.Get() ) ), "<sip:h>;index=4;mp=5;rc=x" )
        << "a member hides the parameter of its name";
    EXPECT_FALSE( sipsnHistoryInfoHasDisplayName( copy.Get() ) || sipsnHistoryInfoHasRc( copy.Get() ) ||
                  sipsnHistoryInfoHasNp( copy.Get() ) );
    EXPECT_EQ( Take( sipsnHistoryInfoToString( entry.Get() ) ), text );
}

TEST( SipsnHistoryInfo, RefusesWhatIsInvalid )
{
    auto    iri = Str( "sip:h" ), index = Str( "1" ), bad = Str( "01" );
    pb::Ref entry{ sipsnHistoryInfoCreate( iri.Get(), index.Get() ) };
    EXPECT_EQ( Take( sipsnHistoryInfoToString( entry.Get() ) ), "<sip:h>;index=1" );
    EXPECT_DEATH( sipsnHistoryInfoCreate( bad.Get(), bad.Get() ), "\"sipsnIriOk\\( iri \\)\"" );
    EXPECT_DEATH( sipsnHistoryInfoCreate( iri.Get(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( index \\)\"" );
    EXPECT_DEATH( sipsnHistoryInfoSetIndex( entry.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( index \\)\"" );
    EXPECT_DEATH( sipsnHistoryInfoSetRc( entry.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( rc \\)\"" );
    EXPECT_DEATH( sipsnHistoryInfoSetMp( entry.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( mp \\)\"" );
    EXPECT_DEATH( sipsnHistoryInfoSetNp( entry.Slot(), bad.Get() ), "\"sipsnHistoryInfoIndexOk\\( np \\)\"" );
}

} // namespace
