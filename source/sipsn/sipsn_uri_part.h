// The parts of SIP and tel URIs: what matches them, and how they are kept. C++ only; never installed.
#pragma once

#include "sipsn_cursor.h"
#include "sipsn_uri.h"

#include "pb/pb_dict.h"

namespace sipsn::uri {

// The longest text of a kind that a text begins with, characters beyond ASCII included. `changes` counts the escapes
// and the characters beyond ASCII, which Keep has to look at; without any the text is kept as it stands.
NumberedName SkipUser;
NumberedName SkipPassword;
NumberedName SkipParamPart; // a name or a value
NumberedName SkipHeaderPart;

Production SkipScheme;
Production SkipNumberChars; // what a number consists of, escapes included

NumberedName SkipPort; // the port, -1 for one beyond 64 bits

// In ASCII or in Unicode; `plain` says whether it is kept as it stands.
NumberedName SkipHost;

// Values of parameters that are members.
Production SkipToken;
Production SkipLowerToken; // without letters of upper case, and a parameter's whole value
Production SkipIsdnSubaddress;
Production SkipExtension;
Production SkipContext;
Production SkipRoutingNumber;
Production SkipRoutingContext;
Production SkipTrunkGroup;

// The text with escapes only where they change its meaning (RFC 3261 section 19.1.2), as a new string.
PbString        *Keep( const PbChar *chs, int64_t length );
inline PbString *Keep( Span text, int64_t changes )
{
    return changes > 0 ? Keep( text.chs, text.length ) : text.ToString();
}
PbString *Keep( PbString *text ); // the string itself when there is nothing to change

// A number with "#" for its escape; null when it is none.
PbString *TryKeepNumber( const PbChar *chs, int64_t length );
PbString *TryKeepNumber( PbString *number );

// A host in Unicode; null when it is none.
PbString *TryKeepHost( const PbChar *chs, int64_t length );
PbString *TryKeepHost( PbString *host );

// A token in lower case; null when it is none.
PbString *TryLowerToken( const PbChar *chs, int64_t length );

// The number, or what begins with one, without separators.
PbString *WithoutSeparators( PbString *number );

bool IsGlobal( PbString *number );

// Where the name of "name=value" ends.
int64_t NameLength( PbString *item );

bool HasName( PbString *item, PbString *name ); // in any letter case

// All parameters as they are written, the value of each by its name; empty for one without a value.
PbDict *ParamsByName( SipsnUri *uri );

} // namespace sipsn::uri
