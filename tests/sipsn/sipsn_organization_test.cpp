// The texts of Organization and Subject, which follow the same rules.
#include "sipsn/sipsn_organization.h"
#include "sipsn/sipsn_subject.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

struct Family
{
    bool ( *ok )( PbString * );
    PbString *( *normalize )( PbString * );
};

class SipsnOrganization : public testing::TestWithParam< Family >
{
protected:
    bool        IsValid( std::string_view text ) { return GetParam().ok( Str( text ).Get() ); }
    std::string Normalized( std::string_view text ) { return Take( GetParam().normalize( Str( text ).Get() ) ); }
};

TEST_P( SipsnOrganization, HasNoControlCharactersButTabs )
{
    for( const char *text : { "", " \t ", "Boxes by Bob", "  a\t\tb  ", "K\u00f6ln \"x\" \\" } )
        EXPECT_TRUE( IsValid( text ) ) << text;
    for( const char *text : { "a\nb", "\x01", "a\x7f", "\r" } ) EXPECT_FALSE( IsValid( text ) ) << text;
}

TEST_P( SipsnOrganization, IsStoredWithSingleSpaces )
{
    EXPECT_EQ( Normalized( " \t Boxes \t by  Bob\t" ), "Boxes by Bob" );
    EXPECT_EQ( Normalized( "Boxes\tby Bob" ), "Boxes by Bob" );
    EXPECT_EQ( Normalized( "Bob " ), "Bob" );
    EXPECT_EQ( Normalized( " Bob" ), "Bob" );
    EXPECT_EQ( Normalized( " \t" ), "" );
    EXPECT_EQ( Normalized( "" ), "" );
}

TEST_P( SipsnOrganization, IsNotCopiedWhenItIsStoredSoAlready )
{
    pb::Ref text = Str( "Boxes by Bob" );
    pb::Ref normalized{ GetParam().normalize( text.Get() ) };
    EXPECT_EQ( normalized.Get(), text.Get() );
}

INSTANTIATE_TEST_SUITE_P(, SipsnOrganization,
                         testing::Values( Family{ sipsnOrganizationOk, sipsnOrganizationNormalize },
                                          Family{ sipsnSubjectOk, sipsnSubjectNormalize } ) );

} // namespace
