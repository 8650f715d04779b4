// Generic parameters: texts, the three types of value, look-up in any letter case, sets.
#include "header_text.h"

#include "sipsn/sipsn_value_internal.h"

#define VALUE( Type, ... ) SIPSN_DECLARE_TEXT( Type )
#include "sipsn/sipsn_values.inc"

namespace {

TEST( SipsnGenericParam, TypesOfValues )
{
    const std::pair< const char *, int64_t > cases[] = {
        { "a", SIPSN_GENERIC_PARAM_VALUE_TYPE_NONE },
        { "a=host.example", SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN },
        { "a=192.0.2.1", SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN },
        { "a=[::1]", SIPSN_GENERIC_PARAM_VALUE_TYPE_HOST },
        { "a=\"b\"", SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING },
    };
    for( const auto &[ text, type ] : cases )
        EXPECT_EQ( sipsnGenericParamValueType( Decoded< sipsn___GenericParamTryDecode >( text ).Get() ), type ) << text;
}

TEST( SipsnGenericParam, ComparesTokensWithoutCaseAndOthersWithIt )
{
    const auto compare = []( const char *a, const char *b ) {
        return sipsnGenericParamCompare( Decoded< sipsn___GenericParamTryDecode >( a ).Get(),
                                         Decoded< sipsn___GenericParamTryDecode >( b ).Get() );
    };
    EXPECT_EQ( compare( "Tag=ABC", "tag=abc" ), 0 );
    EXPECT_NE( compare( "tag=\"ABC\"", "tag=\"abc\"" ), 0 );
    EXPECT_LT( compare( "tag", "tag=a" ), 0 ) << "no value comes first";
    EXPECT_LT( compare( "tag=z", "tag=[::1]" ), 0 ) << "the type comes before the value";
    EXPECT_LT( compare( "a=z", "b=a" ), 0 );
}

TEST( SipsnGenericParam, ChangesItsOwnCopyOnly )
{
    pb::Ref param{
        sipsnGenericParamCreateWithValueCstr( "X", -1, SIPSN_GENERIC_PARAM_VALUE_TYPE_TOKEN, Str( "AbC" ).Get() ) };
    pb::Ref copy{ sipsnGenericParamRetain( param.Get() ) };
    sipsnGenericParamNormalizeValue( copy.Slot() );
    EXPECT_EQ( Take( sipsnGenericParamToString( copy.Get() ) ), "x=abc" );
    sipsnGenericParamSetValue( copy.Slot(), SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING, Str( "v" ).Get() );
    EXPECT_EQ( Take( sipsnGenericParamToString( copy.Get() ) ), "x=\"v\"" );
    sipsnGenericParamDelValue( copy.Slot() );
    EXPECT_FALSE( sipsnGenericParamHasValue( copy.Get() ) );
    EXPECT_TRUE( sipsnGenericParamHasValue( param.Get() ) );
    sipsnGenericParamNormalizeValue( copy.Slot() );
    sipsnGenericParamSetNameWcstr( copy.Slot(), L"Y", -1 );
    EXPECT_EQ( Take( sipsnGenericParamToString( copy.Get() ) ), "y" );
    EXPECT_EQ( sipsnGenericParamValueNormalized( copy.Get() ), nullptr );
    EXPECT_EQ( Take( sipsnGenericParamToString( param.Get() ) ), "x=AbC" );
    EXPECT_EQ( Take( sipsnGenericParamValueNormalized( param.Get() ) ), "abc" );
}

TEST( SipsnGenericParams, FindsNamesInAnyCase )
{
    auto params = Decoded< sipsn___GenericParamsTryDecode >( ";received=A;lr" );
    EXPECT_TRUE( sipsnGenericParamsHasParamCstr( params.Get(), "Received", -1 ) );
    EXPECT_TRUE( sipsnGenericParamsHasParamWcstr( params.Get(), L"LR", -1 ) );
    EXPECT_EQ( Take( sipsnGenericParamsParamValueNonNormalizedCstr( params.Get(), "RECEIVED", -1 ) ), "A" );
    EXPECT_EQ( Take( sipsnGenericParamsParamValueNormalizedWcstr( params.Get(), L"received", -1 ) ), "a" );
    EXPECT_EQ( sipsnGenericParamsParamValueTypeCstr( params.Get(), "lr", -1 ), -1 );
    EXPECT_EQ( sipsnGenericParamsParamValueTypeCstr( params.Get(), "absent", -1 ), -1 );
    EXPECT_EQ( sipsnGenericParamsParamCstr( params.Get(), "absent", -1 ), nullptr );
    EXPECT_EQ( sipsnGenericParamsParamValueNormalizedAt( params.Get(), 0 ), nullptr );
    EXPECT_EQ( sipsnGenericParamsParamValueTypeAt( params.Get(), 1 ), 0 );
    EXPECT_EQ( Take( sipsnGenericParamsParamValueNonNormalizedAt( params.Get(), 1 ) ), "A" );
    EXPECT_DEATH( sipsnGenericParamsHasParamCstr( params.Get(), "a b", -1 ), "\"sipsnTokenOk\\( token \\)\"" );
    EXPECT_DEATH( sipsnGenericParamsParamAt( params.Get(), 2 ), "index" );
}

TEST( SipsnGenericParams, AnEmptiedSetEqualsAnEmptyOne )
{
    pb::Ref empty{ sipsnGenericParamsCreate() };
    auto    params = Decoded< sipsn___GenericParamsTryDecode >( ";a=1;b" );
    pb::Ref copy{ sipsnGenericParamsRetain( params.Get() ) };
    EXPECT_LT( sipsnGenericParamsCompare( empty.Get(), params.Get() ), 0 );
    sipsnGenericParamsDelParamCstr( copy.Slot(), "A", -1 );
    sipsnGenericParamsDelParamCstr( copy.Slot(), "absent", -1 );
    EXPECT_EQ( Take( sipsnGenericParamsToString( copy.Get() ) ), ";b" );
    sipsnGenericParamsDelParamWcstr( copy.Slot(), L"b", -1 );
    EXPECT_TRUE( sipsnGenericParamsEquals( copy.Get(), empty.Get() ) );
    EXPECT_EQ( sipsnGenericParamsLength( copy.Get() ), 0 );
    EXPECT_EQ( sipsnGenericParamsLength( params.Get() ), 2 );
}

TEST( SipsnGenericParams, TakesAVectorWhoseLaterElementsWin )
{
    pb::Ref vector{ pbVectorCreate() };
    for( const char *text : { "a=1", "b", "A=2" } )
        pbVectorAppend( vector.Slot(), sipsnGenericParamObj( Decoded< sipsn___GenericParamTryDecode >( text ).Get() ) );
    auto params = Decoded< sipsn___GenericParamsTryDecode >( ";z" );
    sipsnGenericParamsSetParamsVector( params.Slot(), vector.Get() );
    sipsnGenericParamsSetParamValueCstr( params.Slot(), "C", -1, SIPSN_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING,
                                         Str( "x" ).Get() );
    EXPECT_EQ( Take( sipsnGenericParamsToString( params.Get() ) ), ";a=2;b;c=\"x\"" );
    pbVectorAppendString( vector.Slot(), Str( "a" ).Get() );
    EXPECT_DEATH( sipsnGenericParamsSetParamsVector( params.Slot(), vector.Get() ), "stdfunc from" );
}

TEST( SipsnGenericParamDeathTest, RefusesWhatIsNotOfItsType )
{
    const auto create = []( int64_t type, const char *value ) {
        sipsnGenericParamCreateWithValueCstr( "a", -1, type, Str( value ).Get() );
    };
    EXPECT_DEATH( create( 0, "a b" ), "\"sipsnGenericParamValueOk\\( type, value \\)\"" );
    EXPECT_DEATH( create( 1, "[::" ), "\"sipsnGenericParamValueOk\\( type, value \\)\"" );
    EXPECT_DEATH( create( 2, "a\r" ), "\"sipsnGenericParamValueOk\\( type, value \\)\"" );
    EXPECT_DEATH( create( 3, "a" ), "\"SIPSN_GENERIC_PARAM_VALUE_TYPE_OK\\( type \\)\"" );
    EXPECT_DEATH( create( -1, "a" ), "\"SIPSN_GENERIC_PARAM_VALUE_TYPE_OK\\( type \\)\"" );
}

} // namespace
