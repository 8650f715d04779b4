// The character classes of the SIP grammar (RFC 3261 section 25.1) as predicates: shared by the library's source files
// and exported, but no part of the public interface; never installed.
//
// `ch` may be any number. No class contains anything outside ASCII, DEL, or a control character other than the tab.
// There is no case folding. C++ code of this library that tests many characters uses sipsn::Is from sipsn_char_class.h
// instead, which is the same test inline.
#pragma once

#include "pb/pb_types.h"

PB_BEGIN_DECLS

PB_API bool sipsn___CharIsAlpha( PbChar ch );
PB_API bool sipsn___CharIsDigit( PbChar ch );
PB_API bool sipsn___CharIsAlphanum( PbChar ch );

// HEXDIG in either case. Unless it is null, *value becomes the digit's value, 0 to 15, or -1 for what is not a digit.
PB_API bool sipsn___CharIsHexdig( PbChar ch, int64_t *value );

// WSP: space and tab. CR and LF are not among them.
PB_API bool sipsn___CharIsLws( PbChar ch );

PB_API bool sipsn___CharIsMark( PbChar ch );
PB_API bool sipsn___CharIsUnreserved( PbChar ch );
PB_API bool sipsn___CharIsReserved( PbChar ch );
PB_API bool sipsn___CharIsUserUnreserved( PbChar ch );
PB_API bool sipsn___CharIsHnvUnreserved( PbChar ch );

// With "%" as a character of its own; whether it begins an escape is the production's business.
PB_API bool sipsn___CharIsParamChar( PbChar ch );
PB_API bool sipsn___CharIsToken( PbChar ch );
PB_API bool sipsn___CharIsTokenNodot( PbChar ch );
PB_API bool sipsn___CharIsAtom( PbChar ch );
PB_API bool sipsn___CharIsWord( PbChar ch );
PB_API bool sipsn___CharIsSeparator( PbChar ch );

PB_END_DECLS
