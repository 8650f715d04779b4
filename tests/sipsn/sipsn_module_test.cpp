// The module: its record, and what its constants hold between start and stop, after a stop, and after another start.
#include "exports.h"
#include "message_text.h"

#include "in/in_module.h"
#include "iri/iri_module.h"
#include "sipsn/sipsn_header_internal.h"
#include "sipsn/sipsn_internal.h"
#include "sipsn/sipsn_schema.h"

#include <gmock/gmock.h>

SIPSN_DECLARE_NAME( Via )
SIPSN_DECLARE_NAME( UserToUser )

namespace {

// The name constants of all header types, by their exported names.
std::vector< std::pair< std::string, PbString ** > > NameConstants()
{
    std::vector< std::pair< std::string, PbString ** > > constants;
    for( const std::string &type : ExportsBetween( "sipsn___Pbs", "" ) )
        constants.emplace_back( type, Exported< PbString * >( "sipsn___Pbs" + type ) );
    return constants;
}

TEST( SipsnModule, TheRecordTellsWhatWasBuilt )
{
    const PbModuleRecord *record = pbModuleRecord( sipsnModule() );
    EXPECT_EQ( sipsnModule(), &sipsn___module );
    EXPECT_EQ( record, &sipsn___module_record );
    EXPECT_EQ( record->recordVersion, 2 );
    EXPECT_STREQ( record->moduleName, "sipsn" );
    EXPECT_STREQ( record->moduleDescription, "SIP Syntax" );
    EXPECT_STREQ( record->moduleVersion, "0.0" );
    EXPECT_STREQ( record->dependencies, "in iri pb" );
    EXPECT_STREQ( pbModuleRecord( inModule() )->moduleName, "in" );
    EXPECT_STREQ( pbModuleRecord( iriModule() )->moduleName, "iri" );
    EXPECT_STREQ( record->reserved, "" );
    EXPECT_STREQ( record->versionString, sipsn___module_version_string );
    EXPECT_THAT( record->buildTime, testing::MatchesRegex( "UTC ....-..-.. ..:..:.. \\([A-Z][a-z]+day\\)" ) );
    EXPECT_THAT( record->versionString,
                 testing::StartsWith( "###QK_VERSION### " + std::string( record->productName ) + "-" ) );
    EXPECT_THAT( record->versionString, testing::EndsWith( "), sipsn 0.0" ) );
}

TEST( SipsnModule, ConstantsArePoisonedByAStopAndMadeAnewByAStart )
{
    const auto constants = NameConstants();
    ASSERT_EQ( int64_t( constants.size() ), sipsnSchemaFamiliesLength() );
    pb::Ref           before{ pb::Retain( sipsn___PbsVia ) };
    const std::string wire = "OPTIONS sip:a SIP/2.0\r\nVia: SIP/2.0/UDP h\r\n\r\n";

    pbModuleStop( sipsnModule() );
    EXPECT_FALSE( pbModuleStarted( sipsnModule() ) );
    for( const auto &[ name, constant ] : constants )
        EXPECT_EQ( reinterpret_cast< uintptr_t >( *constant ), UINTPTR_MAX ) << name;
    EXPECT_EQ( Text( before.Get() ), "Via" ) << "what others hold stays";

    pbModuleStart( sipsnModule() );
    for( const auto &[ name, constant ] : constants ) {
        ASSERT_NE( *constant, nullptr ) << name;
        pb::Ref canonical{ sipsnMessageHeaderNameNormalize( *constant ) };
        EXPECT_EQ( canonical.Get() == *constant, name != "UserToUser" ) << name;
    }
    pb::Ref msg = Message( wire );
    EXPECT_TRUE( sipsnHeaderViaPresentInMessage( msg.Get() ) );
    EXPECT_EQ( Text( *&sipsn___PbsUserToUser ), "User-to-User" );
}

} // namespace
