// Free text that is written as a quoted string: what is valid, and the quoted form.
#include "sipsn_quotable_string.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnQuotableStringOk( PbString *quotableString )
{
    PB_ASSERT( quotableString );
    return !sipsn::HasLineEnd( quotableString );
}

PbString *sipsn::Unquote( const PbChar *chs, int64_t length )
{
    const int64_t begin = sipsn___SkipSws( chs, length ) + 1;
    const int64_t count = length - 1 - begin;
    if( pb::CountRun< false >( charClasses, QuoteStop, chs + begin, count ) == count )
        return pbStringCreateFromCharsCopy( chs + begin, count );
    return StringOf( [ = ]( auto put ) {
        for( int64_t i = begin; i < length - 1; ++i ) {
            if( chs[ i ] == '\\' ) ++i;
            put( chs[ i ] );
        }
    } );
}

PbString *sipsn___QuotableStringTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return sipsn::Matches( chs, length, sipsn___SkipQuotedString ) ? sipsn::Unquote( chs, length ) : nullptr;
}

// Whether there may be a character to escape. To the end in any case, so that it is done several at a time.
static bool MayNeedEscape( PbString *string )
{
    uint32_t found    = 0;
    PbChar   previous = 0;
    for( PbChar ch : sipsn::Characters( string ) ) {
        found |= uint32_t( ch < ' ' ) | uint32_t( ch == '"' ) | uint32_t( ch == '\\' ) | uint32_t( ch == 127 ) |
                 uint32_t( ch == ' ' && previous == ' ' );
        previous = ch;
    }
    return found != 0;
}

PbString *sipsn___QuotableStringEncode( PbString *quotableString )
{
    PB_ASSERT( sipsnQuotableStringOk( quotableString ) );

    if( !MayNeedEscape( quotableString ) ) {
        PbString *quoted                          = pb___StringCreateUninitialized( quotableString->length + 2 );
        quoted->chs[ 0 ]                          = '"';
        quoted->chs[ quotableString->length + 1 ] = '"';
        std::copy_n( quotableString->chs, quotableString->length, quoted->chs + 1 );
        return quoted;
    }
    return sipsn::StringOf( [ = ]( auto put ) {
        // Whoever folds white space takes several spaces for one, so that every second of a run is escaped.
        bool afterPlainSpace = false;
        put( '"' );
        for( PbChar ch : sipsn::Characters( quotableString ) ) {
            const bool space = ch == ' ';
            if( space ? afterPlainSpace : ch < 33 || ch == '"' || ch == '\\' || ch == 127 ) {
                put( '\\' );
                afterPlainSpace = false;
            } else {
                afterPlainSpace = space;
            }
            put( ch );
        }
        put( '"' );
    } );
}
