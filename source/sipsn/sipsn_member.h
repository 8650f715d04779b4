/* The functions of members, which behave alike in all types. Texts, numbers and objects are what the type says of the
 * member; getters of texts and objects return new references.
 *
 * A null object, an index out of range, and a value that the member cannot hold abort. Setters and deleters replace the
 * object by a private copy when it is shared. Cstr and Wcstr forms take a text of UTF-8 or wchar_t, and -1 where it
 * ends with zero.
 *
 * ./dev lists writes out the declarations that follow in the header of each type, as its file defines them. */
#ifndef SIPSN_MEMBER_H
#define SIPSN_MEMBER_H

#include "sipsn_generic_params.h"

/* CREATE_TEXT( realm ) of SipsnChallenge declares, for a type with one member that is never absent:
 *
 *     SipsnChallenge *sipsnChallengeCreate( PbString *realm );
 *     SipsnChallenge *sipsnChallengeCreateCstr( const char *realm, int64_t length );
 *     SipsnChallenge *sipsnChallengeCreateWcstr( const wchar_t *realm, int64_t length );
 */
/* CREATE_INT( realm ) of SipsnChallenge declares the same of a number:
 *
 *     SipsnChallenge *sipsnChallengeCreate( int64_t realm );
 */
/* CREATE( none ) of SipsnChallenge declares, for a type that may be empty:
 *
 *     SipsnChallenge *sipsnChallengeCreate( void );
 */

/* TEXT( self, Realm, realm ) of SipsnChallenge declares:
 *
 *     PbString *sipsnChallengeRealm( SipsnChallenge *self );
 *     void      sipsnChallengeSetRealm( SipsnChallenge **self, PbString *realm );
 *     void      sipsnChallengeSetRealmCstr( SipsnChallenge **self, const char *realm, int64_t length );
 *     void      sipsnChallengeSetRealmWcstr( SipsnChallenge **self, const wchar_t *realm, int64_t length );
 */
/* OPTIONAL_TEXT( self, Realm, realm ) of SipsnChallenge declares, for a text that may be absent, which its getter gives
 * as null:
 *
 *     PbString *sipsnChallengeRealm( SipsnChallenge *self );
 *     bool      sipsnChallengeHasRealm( SipsnChallenge *self );
 *     void      sipsnChallengeSetRealm( SipsnChallenge **self, PbString *realm );
 *     void      sipsnChallengeSetRealmCstr( SipsnChallenge **self, const char *realm, int64_t length );
 *     void      sipsnChallengeSetRealmWcstr( SipsnChallenge **self, const wchar_t *realm, int64_t length );
 *     void      sipsnChallengeDelRealm( SipsnChallenge **self );
 */
/* INT( self, Realm, realm ) of SipsnChallenge declares:
 *
 *     int64_t sipsnChallengeRealm( SipsnChallenge *self );
 *     void    sipsnChallengeSetRealm( SipsnChallenge **self, int64_t realm );
 */
/* OPTIONAL_INT( self, Realm, realm ) of SipsnChallenge declares, for a number that may be absent, which its getter
 * gives as -1:
 *
 *     int64_t sipsnChallengeRealm( SipsnChallenge *self );
 *     bool    sipsnChallengeHasRealm( SipsnChallenge *self );
 *     void    sipsnChallengeSetRealm( SipsnChallenge **self, int64_t realm );
 *     void    sipsnChallengeDelRealm( SipsnChallenge **self );
 */
/* FLAG( self, Realm, realm ) of SipsnChallenge declares:
 *
 *     bool sipsnChallengeRealm( SipsnChallenge *self );
 *     void sipsnChallengeSetRealm( SipsnChallenge **self, bool realm );
 */
/* PARAMS( self ) of SipsnChallenge declares, for all parameters that are not members of their own:
 *
 *     SipsnGenericParams *sipsnChallengeGenericParams( SipsnChallenge *self );
 *     void                sipsnChallengeSetGenericParams( SipsnChallenge **self, SipsnGenericParams *genericParams );
 */

/* VALUES( Realms, Realm, Text, realm ) of SipsnChallenge declares, beyond what LIST does (sipsn_header.h):
 *
 *     SipsnChallenge *sipsnChallengeCreate( void );
 *     SipsnText      *sipsnChallengeTryDecodeRealmAt( SipsnChallenge *hdr, int64_t index ); -- null when it is none
 *     void            sipsnChallengeClearRealms( SipsnChallenge **hdr );
 */
/* TEXTS( Realms, Realm, realm ) of SipsnChallenge declares, beyond what LIST does (sipsn_header.h):
 *
 *     SipsnChallenge *sipsnChallengeCreate( void );
 *     PbString       *sipsnChallengeRealmAt( SipsnChallenge *hdr, int64_t index );
 *     void            sipsnChallengeClearRealms( SipsnChallenge **hdr );
 */

#endif
