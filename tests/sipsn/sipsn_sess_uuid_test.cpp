// Session identifiers: the nil one.
#include "sipsn/sipsn_sess_uuid.h"

#include "text.h"

#include <gmock/gmock.h>

namespace {

TEST( SipsnSessUuid, NilIs32Zeros )
{
    pb::Ref nil{ spisnSessUuidNil() };
    EXPECT_EQ( Text( nil.Get() ), std::string( 32, '0' ) );
    EXPECT_TRUE( sipsnSessUuidOk( nil.Get() ) );
    EXPECT_TRUE( sipsnSessUuidIsNil( nil.Get() ) );
    EXPECT_TRUE( sipsnSessUuidIsNil( Str( std::string( 32, '0' ) ).Get() ) );
    EXPECT_FALSE( sipsnSessUuidIsNil( Str( std::string( 31, '0' ) + "1" ).Get() ) );
    EXPECT_FALSE( sipsnSessUuidIsNil( Str( std::string( 33, '0' ) ).Get() ) );
}

} // namespace
