// Modules: order and counting of starts and stops, misuse, and what the record says.
#include "text.h"

#include "pb/pb_internal.h"

namespace {

std::string events; // "+a" for a start of module a, "-a" for a stop

// A registered module whose name is one letter.
template< char letter > class TestModule
{
public:
    explicit TestModule( const char *dependencies )
    {
        record_.moduleName   = name_;
        record_.dependencies = dependencies;
        module_.record       = &record_;
        module_.startup      = Startup;
        module_.shutdown     = Shutdown;
        pb___ModuleRegister( &module_ );
    }
    TestModule( const TestModule & )            = delete;
    TestModule &operator=( const TestModule & ) = delete;
    ~TestModule() { pb___ModuleUnregister( &module_ ); }

    PbModule *Get() { return &module_; }

private:
    static constexpr char name_[] = { letter, '\0' };

    static void Startup() { events += std::string( "+" ) + letter; }
    static void Shutdown() { events += std::string( "-" ) + letter; }

    PbModuleRecord record_{};
    PbModule       module_{};
};

std::string TakeEvents() { return std::exchange( events, {} ); }

TEST( PbModule, StartsDependenciesFirstAndStopsThemLast )
{
    TestModule< 'a' > a{ "b  c " }; // names may have more blanks around them than needed
    TestModule< 'b' > b{ "d" };
    TestModule< 'c' > c{ "d b" };
    TestModule< 'd' > d{ "" };
    pbModuleStart( a.Get() );
    EXPECT_EQ( TakeEvents(), "+d+b+c+a" );
    EXPECT_TRUE( pbModuleStarted( d.Get() ) );
    pbModuleStop( a.Get() );
    EXPECT_EQ( TakeEvents(), "-a-c-b-d" );
    EXPECT_FALSE( pbModuleStarted( d.Get() ) );
}

TEST( PbModule, CountsStarts )
{
    TestModule< 'a' > a{ "b" };
    TestModule< 'b' > b{ "" };
    pbModuleStart( b.Get() );
    pbModuleStart( a.Get() );
    pbModuleStart( a.Get() );
    EXPECT_EQ( TakeEvents(), "+b+a" );
    pbModuleStop( a.Get() );
    EXPECT_EQ( TakeEvents(), "" );
    EXPECT_TRUE( pbModuleStarted( a.Get() ) );
    pbModuleStop( a.Get() );
    EXPECT_EQ( TakeEvents(), "-a" );
    pbModuleStop( b.Get() );
    EXPECT_EQ( TakeEvents(), "-b" );
    pbModuleStart( a.Get() );
    pbModuleStop( a.Get() );
    EXPECT_EQ( TakeEvents(), "+b+a-a-b" );
}

TEST( PbModule, IsFoundByNameWhileRegistered )
{
    {
        TestModule< 'a' > a{ "" };
        TestModule< 'b' > b{ "" };
        EXPECT_EQ( pbModuleFind( "a" ), a.Get() );
        EXPECT_EQ( pbModuleFind( "b" ), b.Get() );
        EXPECT_EQ( pbModuleFind( "ab" ), nullptr );
    }
    EXPECT_EQ( pbModuleFind( "a" ), nullptr );
}

TEST( PbModule, RecordOfPbIdentifiesTheBuild )
{
    ASSERT_EQ( pbModuleFind( "pb" ), pbModule() );
    const PbModuleRecord *record = pbModuleRecord( pbModule() );
    EXPECT_STREQ( record->moduleName, "pb" );
    EXPECT_STREQ( record->versionString, pb___module_version_string );
    const std::string version = std::to_string( record->productMajor ) + "." + std::to_string( record->productMinor ) +
                                "." + std::to_string( record->productPatch );
    EXPECT_THAT( record->versionString, testing::HasSubstr( std::string( record->productName ) + "-" + version ) );
    EXPECT_THAT( record->versionString, testing::EndsWith( "), pb " + std::string( record->moduleVersion ) ) );
    EXPECT_THAT( record->buildTime, testing::MatchesRegex( "UTC ....-..-.. ..:..:.. \\(.*day\\)" ) );
}

TEST( PbModuleDeathTest, MisuseAborts )
{
    TestModule< 'a' > a{ "b" };
    TestModule< 'b' > b{ "c" };
    TestModule< 'd' > d{ "a pbx" };
    EXPECT_ABORT( "pbModuleStarted( module )", pbModuleStop( a.Get() ) );
    EXPECT_ABORT( "dependency", pbModuleStart( d.Get() ) );
    EXPECT_ABORT( "module", pbModuleStart( nullptr ) );
    EXPECT_ABORT( "!pbModuleFind( module->record->moduleName )", TestModule< 'a' >{ "" } );

    TestModule< 'c' > c{ "a" };
    EXPECT_ABORT( "module->starts != starting", pbModuleStart( a.Get() ) );
}

} // namespace
