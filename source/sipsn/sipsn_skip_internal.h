// The grammar scanner: one function per production of the SIP grammar (RFC 3261 section 25.1 and its extensions).
// Shared by the library's source files and exported, but no part of the public interface; never installed.
//
// Every production answers how many characters, counted from chs[0], form it: the longest prefix that its rules allow,
// never more than `length`. 0 means no match; where a production may be empty, it also means the empty match. Text is
// one line: CR and LF are not whitespace, and end or fail every production. All of them allocate nothing and take
// linear time.
//
// A negative length and a null array with a length other than 0 abort, as does an argument `ch` above 0x10FFFF.
//
// SWS is any number of spaces and tabs. COLON, COMMA, EQUAL, SEMI, SLASH are the character with SWS on both sides;
// LAQUOT is SWS "<", RAQUOT is ">" SWS. An escape is "%" and two hexadecimal digits; any other "%" ends a run that
// allows escapes.
#pragma once

#include "pb/pb_types.h"

PB_BEGIN_DECLS

// ---- Single characters and fixed texts

PB_API int64_t sipsn___SkipSws( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipLws( const PbChar *chs, int64_t length ); // the same, optional as well
PB_API int64_t sipsn___SkipChar( const PbChar *chs, int64_t length, PbChar ch );
PB_API int64_t sipsn___SkipCharSws( const PbChar *chs, int64_t length, PbChar ch );
PB_API int64_t sipsn___SkipSwsChar( const PbChar *chs, int64_t length, PbChar ch );
PB_API int64_t sipsn___SkipSwsCharSws( const PbChar *chs, int64_t length, PbChar ch );

// The character with SWS on both sides.
PB_API int64_t sipsn___SkipColon( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipHcolon( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipComma( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipEqual( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipSemi( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipSlash( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipStar( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipLparen( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipRparen( const PbChar *chs, int64_t length );

// SWS on the outer side only.
PB_API int64_t sipsn___SkipLaquot( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipRaquot( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipLdquot( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipRdquot( const PbChar *chs, int64_t length );

// patternLength when the text begins with the pattern; an empty pattern never matches.
PB_API int64_t sipsn___SkipChars( const PbChar *chs, int64_t length, const PbChar *pattern, int64_t patternLength );
PB_API int64_t sipsn___SkipCharsAsciiCaseFold( const PbChar *chs, int64_t length, const PbChar *pattern,
                                               int64_t patternLength );

// ---- Tokens and the like

PB_API int64_t sipsn___SkipToken( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipTokenNodot( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipAtom( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDotAtom( const PbChar *chs, int64_t length ); // atom *( "." atom )
PB_API int64_t sipsn___SkipWord( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDigits( const PbChar *chs, int64_t length ); // any number of them

// SWS, then the text in double quotes. No whitespace after it.
PB_API int64_t sipsn___SkipQuotedString( const PbChar *chs, int64_t length );

// With the whitespace around the outer parentheses. Comments nest.
PB_API int64_t sipsn___SkipComment( const PbChar *chs, int64_t length );

// The token under the names that header fields give it.
PB_API int64_t sipsn___SkipBranch( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipContentCoding( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDispositionType( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipEmParam( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipEventReasonValue( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipHandling( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipMessageHeaderName( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipMethod( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipOptionTag( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipPriorityValue( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipPrivValue( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipProtocolName( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipProtocolVersion( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipPseudonym( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipPurpose( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipReasonProtocol( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipSubstateValue( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipTag( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipTransport( const PbChar *chs, int64_t length );

// Digits, however many.
PB_API int64_t sipsn___SkipDeltaSeconds( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipReasonCause( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipTtl( const PbChar *chs, int64_t length );

// Quoted strings.
PB_API int64_t sipsn___SkipReasonText( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipWarnText( const PbChar *chs, int64_t length );

// Runs of unreserved characters, escapes and a few more (RFC 3261: user, password, uric, pvalue).
PB_API int64_t sipsn___SkipUser( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipPassword( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipUric( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipPvalue( const PbChar *chs, int64_t length );

// At most 16 token characters; those after them are left.
PB_API int64_t sipsn___SkipEpid( const PbChar *chs, int64_t length );

// Exactly 32 digits and lower-case letters, any letter.
PB_API int64_t sipsn___SkipSessUuid( const PbChar *chs, int64_t length );

// ---- Addresses

PB_API int64_t sipsn___SkipIpV4Address( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipIpV6Address( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipIpV6Reference( const PbChar *chs, int64_t length ); // "[" IPv6 address "]"
PB_API int64_t sipsn___SkipPort( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipUri( const PbChar *chs, int64_t length ); // an IRI with its scheme

// Letters, digits, hyphens and escapes; neither the first nor the last is a hyphen.
PB_API int64_t sipsn___SkipDomainLabel( const PbChar *chs, int64_t length );

// Labels, each with the "." that follows it: a trailing dot belongs to the name, and "a..b" gives 2.
PB_API int64_t sipsn___SkipHostname( const PbChar *chs, int64_t length );

// The longest of host name, IPv4 address and IPv6 reference.
PB_API int64_t sipsn___SkipHost( const PbChar *chs, int64_t length );

// A ":" without a port after it is left.
PB_API int64_t sipsn___SkipHostPort( const PbChar *chs, int64_t length );

// A quoted string, or tokens separated by SWS.
PB_API int64_t sipsn___SkipDisplayName( const PbChar *chs, int64_t length );

PB_API int64_t sipsn___SkipNameAddr( const PbChar *chs, int64_t length ); // [ display-name ] LAQUOT IRI RAQUOT
PB_API int64_t sipsn___SkipAddrSpec( const PbChar *chs, int64_t length ); // an IRI that ends before the first ";"

// ---- Parameters

// token [ EQUAL ( token / host / quoted-string ) ]. An EQUAL with no value after it fails the whole.
PB_API int64_t sipsn___SkipGenericParam( const PbChar *chs, int64_t length );

// *( SEMI generic-param ), up to the first ";" with no parameter after it.
PB_API int64_t sipsn___SkipGenericParams( const PbChar *chs, int64_t length );

// ---- Values of header fields

// "0" [ "." 0*3DIGIT ] / "1" [ "." 0*3"0" ]; a fourth digit is left.
PB_API int64_t sipsn___SkipQvalue( const PbChar *chs, int64_t length );

PB_API int64_t sipsn___SkipVersion( const PbChar *chs, int64_t length );   // token SLASH token
PB_API int64_t sipsn___SkipEventType( const PbChar *chs, int64_t length ); // token-nodot *( "." token-nodot )
PB_API int64_t sipsn___SkipRvalue( const PbChar *chs, int64_t length );    // token-nodot "." token-nodot
PB_API int64_t sipsn___SkipCallId( const PbChar *chs, int64_t length );    // word [ "@" word ], no "@" without its word

// dot-atom "@" ( host / dot-atom, whichever is longer )
PB_API int64_t sipsn___SkipSipCleanMsgId( const PbChar *chs, int64_t length );

PB_API int64_t sipsn___SkipSipInstance( const PbChar *chs, int64_t length ); // "<" 1*uric ">"

// A token, but not "*" alone.
PB_API int64_t sipsn___SkipMediaType( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipMediaSubtype( const PbChar *chs, int64_t length );

// "*/*", "type/*" or "type/subtype", with generic parameters.
PB_API int64_t sipsn___SkipAccept( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipAcceptEncoding( const PbChar *chs, int64_t length ); // token or "*", then generic parameters

PB_API int64_t sipsn___SkipContact( const PbChar *chs, int64_t length ); // ( name-addr / addr-spec ) generic-params
PB_API int64_t sipsn___SkipRoute( const PbChar *chs, int64_t length );   // name-addr generic-params
PB_API int64_t sipsn___SkipIdentityValue( const PbChar *chs, int64_t length ); // name-addr / addr-spec

// LAQUOT IRI RAQUOT generic-params
PB_API int64_t sipsn___SkipAlertInfo( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipCallInfo( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipErrorInfo( const PbChar *chs, int64_t length );

// Diversion, RFC 5806: name-addr generic-params, and the values of its parameters: one or two digits (more are left); a
// token or a quoted string.
PB_API int64_t sipsn___SkipDiversion( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDiversionCounter( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDiversionLimit( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDiversionPrivacy( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDiversionReason( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipDiversionScreen( const PbChar *chs, int64_t length );

// History-Info, RFC 7044: name-addr generic-params; the index is 1*DIGIT *( "." 1*DIGIT ), and a leading zero in any of
// its numbers fails the whole.
PB_API int64_t sipsn___SkipHistoryInfo( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipHistoryInfoIndex( const PbChar *chs, int64_t length );

PB_API int64_t sipsn___SkipReason( const PbChar *chs, int64_t length );    // token generic-params
PB_API int64_t sipsn___SkipUuiValue( const PbChar *chs, int64_t length );  // ( token / quoted-string ) generic-params
PB_API int64_t sipsn___SkipRefresher( const PbChar *chs, int64_t length ); // "uac" / "uas" in any case

// 1*DIGIT [ "." *DIGIT ] [ SWS [ *DIGIT [ "." *DIGIT ] ] ]. Whitespace after the first number belongs to it.
PB_API int64_t sipsn___SkipTimestampValue( const PbChar *chs, int64_t length );

// Runs of visible characters, those above 127 included, separated by SWS; whitespace after the last one is left.
PB_API int64_t sipsn___SkipSubject( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipOrganization( const PbChar *chs, int64_t length );

// server-val = token [ SLASH token ] / comment. Server and User-Agent are several separated by SWS.
PB_API int64_t sipsn___SkipServer( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipUserAgent( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipServerVal( const PbChar *chs, int64_t length );

// Warning: warn-code, which is a run of exactly three digits, warn-agent = host [ ":" port ] / token, and warn-text,
// with at least one space or tab between them.
PB_API int64_t sipsn___SkipWarningValue( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipWarnCode( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipWarnAgent( const PbChar *chs, int64_t length );

// One via-parm; one of its parameters (received, else a generic one); the received parameter alone, whose address is a
// bare IPv6 or an IPv4 address.
PB_API int64_t sipsn___SkipVia( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipViaParams( const PbChar *chs, int64_t length );
PB_API int64_t sipsn___SkipViaReceived( const PbChar *chs, int64_t length );

// Three letters in exactly this case: "Jan" to "Dec" as 1 to 12, "Mon" to "Sun" as 0 to 6. The number may be null, and
// is stored only where the name matches.
PB_API int64_t sipsn___SkipMonth( const PbChar *chs, int64_t length, int64_t *month );
PB_API int64_t sipsn___SkipWkday( const PbChar *chs, int64_t length, int64_t *day );

PB_END_DECLS
