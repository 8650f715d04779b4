// The character classes as functions.
#include "sipsn_char_internal.h"

#include "sipsn_char_class.h"

bool sipsn___CharIsAlpha( PbChar ch ) { return sipsn::Is( ch, sipsn::Alpha ); }
bool sipsn___CharIsDigit( PbChar ch ) { return sipsn::Is( ch, sipsn::Digit ); }
bool sipsn___CharIsAlphanum( PbChar ch ) { return sipsn::Is( ch, sipsn::Alphanum ); }

bool sipsn___CharIsHexdig( PbChar ch, int64_t *value )
{
    const int digit = pb::HexValue( ch );
    if( value ) *value = digit;
    return digit >= 0;
}

bool sipsn___CharIsLws( PbChar ch ) { return sipsn::Is( ch, sipsn::Lws ); }
bool sipsn___CharIsMark( PbChar ch ) { return sipsn::Is( ch, sipsn::Mark ); }
bool sipsn___CharIsUnreserved( PbChar ch ) { return sipsn::Is( ch, sipsn::Unreserved ); }
bool sipsn___CharIsReserved( PbChar ch ) { return sipsn::Is( ch, sipsn::Reserved ); }
bool sipsn___CharIsUserUnreserved( PbChar ch ) { return sipsn::Is( ch, sipsn::UserUnreserved ); }
bool sipsn___CharIsHnvUnreserved( PbChar ch ) { return sipsn::Is( ch, sipsn::HnvUnreserved ); }
bool sipsn___CharIsParamChar( PbChar ch ) { return sipsn::Is( ch, sipsn::ParamChar ); }
bool sipsn___CharIsToken( PbChar ch ) { return sipsn::Is( ch, sipsn::Token ); }
bool sipsn___CharIsTokenNodot( PbChar ch ) { return sipsn::Is( ch, sipsn::TokenNodot ); }
bool sipsn___CharIsAtom( PbChar ch ) { return sipsn::Is( ch, sipsn::Atom ); }
bool sipsn___CharIsWord( PbChar ch ) { return sipsn::Is( ch, sipsn::Word ); }
bool sipsn___CharIsSeparator( PbChar ch ) { return sipsn::Is( ch, sipsn::Separator ); }
