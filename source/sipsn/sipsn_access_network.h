/* SipsnAccessNetwork: one network of P-Access-Network-Info, RFC 7315 section 5.4 and RFC 7913 section 2.
 *
 * Example:
 * 3GPP-E-UTRAN-FDD;cgi-3gpp=1;utran-cell-id-3gpp=1;dsl-location=1;i-wlan-node-id=1;ci-3gpp2=1;ci-3gpp2-femto=1;eth-location=1;fiber-location=1;gstn-location=1;operator-specific-gi=1;utran-sai-3gpp=1;dvb-rcs2-node-id="1";local-time-zone="UTC+01:00";network-provided;lang=en
 *
 *     access-net-spec = token *( SEMI access-info )
 *     access-info     = "network-provided" / token EQUAL ( token / quoted-string ) / generic-param
 *
 *     access type            a token such as "3GPP-E-UTRAN-FDD", or a class of them,
 *                            kept as written; never absent
 *     cgi3gpp                a token or a quoted string; optional
 *     utran cell id3gpp      a token or a quoted string; optional
 *     dsl location           a token or a quoted string; optional
 *     i wlan node id         a token or a quoted string; optional
 *     ci3gpp2                a token or a quoted string; optional
 *     ci3gpp2 femto          a token or a quoted string; optional
 *     eth location           a token or a quoted string; optional
 *     fiber location         a token or a quoted string; optional
 *     gstn location          a token or a quoted string; optional
 *     operator specific gi   a token or a quoted string; optional
 *     utran sai3gpp          a token or a quoted string; optional
 *     dvb rcs2 node id       a quoted string; optional
 *     local time zone        a quoted string; optional
 *     network provided       whether the network says so, and not the user; false by
 *                            default
 *     generic params         every other parameter; never absent, may be empty
 *
 * A decoded parameter whose value does not fit its member is kept as a generic one. Values compare in the order
 * above. */
#ifndef SIPSN_ACCESS_NETWORK_H
#define SIPSN_ACCESS_NETWORK_H

#include "sipsn_member.h"
#include "sipsn_quotable_string.h"
#include "sipsn_token.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnAccessNetwork ), see pb_types.h */
typedef struct SipsnAccessNetwork SipsnAccessNetwork;

PB_API SipsnAccessNetwork *sipsnAccessNetworkCreateFrom( SipsnAccessNetwork *source );
PB_API SipsnAccessNetwork *sipsnAccessNetworkRetain( SipsnAccessNetwork *obj );
PB_API void                sipsnAccessNetworkRelease( SipsnAccessNetwork *obj );
PB_API PbObj              *sipsnAccessNetworkObj( SipsnAccessNetwork *obj );
PB_API SipsnAccessNetwork *sipsnAccessNetworkFrom( PbObj *obj );
PB_API PbSort             *sipsnAccessNetworkSort( void );
PB_API PbString           *sipsnAccessNetworkToString( SipsnAccessNetwork *obj );
PB_API int64_t             sipsnAccessNetworkCompare( SipsnAccessNetwork *a, SipsnAccessNetwork *b );
PB_API bool                sipsnAccessNetworkEquals( SipsnAccessNetwork *a, SipsnAccessNetwork *b );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnAccessNetwork *sipsnAccessNetworkCreate( PbString *accessType );
PB_API SipsnAccessNetwork *sipsnAccessNetworkCreateCstr( const char *accessType, int64_t length );
PB_API SipsnAccessNetwork *sipsnAccessNetworkCreateWcstr( const wchar_t *accessType, int64_t length );

PB_API PbString *sipsnAccessNetworkAccessType( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetAccessType( SipsnAccessNetwork **network, PbString *accessType );
PB_API void sipsnAccessNetworkSetAccessTypeCstr( SipsnAccessNetwork **network, const char *accessType, int64_t length );
PB_API void sipsnAccessNetworkSetAccessTypeWcstr( SipsnAccessNetwork **network, const wchar_t *accessType,
                                                  int64_t length );

PB_API PbString *sipsnAccessNetworkCgi3gpp( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasCgi3gpp( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetCgi3gpp( SipsnAccessNetwork **network, PbString *cgi3gpp );
PB_API void      sipsnAccessNetworkSetCgi3gppCstr( SipsnAccessNetwork **network, const char *cgi3gpp, int64_t length );
PB_API void sipsnAccessNetworkSetCgi3gppWcstr( SipsnAccessNetwork **network, const wchar_t *cgi3gpp, int64_t length );
PB_API void sipsnAccessNetworkDelCgi3gpp( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkUtranCellId3gpp( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasUtranCellId3gpp( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetUtranCellId3gpp( SipsnAccessNetwork **network, PbString *utranCellId3gpp );
PB_API void      sipsnAccessNetworkSetUtranCellId3gppCstr( SipsnAccessNetwork **network, const char *utranCellId3gpp,
                                                           int64_t length );
PB_API void sipsnAccessNetworkSetUtranCellId3gppWcstr( SipsnAccessNetwork **network, const wchar_t *utranCellId3gpp,
                                                       int64_t length );
PB_API void sipsnAccessNetworkDelUtranCellId3gpp( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkDslLocation( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasDslLocation( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetDslLocation( SipsnAccessNetwork **network, PbString *dslLocation );
PB_API void      sipsnAccessNetworkSetDslLocationCstr( SipsnAccessNetwork **network, const char *dslLocation,
                                                       int64_t length );
PB_API void      sipsnAccessNetworkSetDslLocationWcstr( SipsnAccessNetwork **network, const wchar_t *dslLocation,
                                                        int64_t length );
PB_API void      sipsnAccessNetworkDelDslLocation( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkIWlanNodeId( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasIWlanNodeId( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetIWlanNodeId( SipsnAccessNetwork **network, PbString *iWlanNodeId );
PB_API void      sipsnAccessNetworkSetIWlanNodeIdCstr( SipsnAccessNetwork **network, const char *iWlanNodeId,
                                                       int64_t length );
PB_API void      sipsnAccessNetworkSetIWlanNodeIdWcstr( SipsnAccessNetwork **network, const wchar_t *iWlanNodeId,
                                                        int64_t length );
PB_API void      sipsnAccessNetworkDelIWlanNodeId( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkCi3gpp2( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasCi3gpp2( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetCi3gpp2( SipsnAccessNetwork **network, PbString *ci3gpp2 );
PB_API void      sipsnAccessNetworkSetCi3gpp2Cstr( SipsnAccessNetwork **network, const char *ci3gpp2, int64_t length );
PB_API void sipsnAccessNetworkSetCi3gpp2Wcstr( SipsnAccessNetwork **network, const wchar_t *ci3gpp2, int64_t length );
PB_API void sipsnAccessNetworkDelCi3gpp2( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkCi3gpp2Femto( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasCi3gpp2Femto( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetCi3gpp2Femto( SipsnAccessNetwork **network, PbString *ci3gpp2Femto );
PB_API void      sipsnAccessNetworkSetCi3gpp2FemtoCstr( SipsnAccessNetwork **network, const char *ci3gpp2Femto,
                                                        int64_t length );
PB_API void      sipsnAccessNetworkSetCi3gpp2FemtoWcstr( SipsnAccessNetwork **network, const wchar_t *ci3gpp2Femto,
                                                         int64_t length );
PB_API void      sipsnAccessNetworkDelCi3gpp2Femto( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkEthLocation( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasEthLocation( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetEthLocation( SipsnAccessNetwork **network, PbString *ethLocation );
PB_API void      sipsnAccessNetworkSetEthLocationCstr( SipsnAccessNetwork **network, const char *ethLocation,
                                                       int64_t length );
PB_API void      sipsnAccessNetworkSetEthLocationWcstr( SipsnAccessNetwork **network, const wchar_t *ethLocation,
                                                        int64_t length );
PB_API void      sipsnAccessNetworkDelEthLocation( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkFiberLocation( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasFiberLocation( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetFiberLocation( SipsnAccessNetwork **network, PbString *fiberLocation );
PB_API void      sipsnAccessNetworkSetFiberLocationCstr( SipsnAccessNetwork **network, const char *fiberLocation,
                                                         int64_t length );
PB_API void      sipsnAccessNetworkSetFiberLocationWcstr( SipsnAccessNetwork **network, const wchar_t *fiberLocation,
                                                          int64_t length );
PB_API void      sipsnAccessNetworkDelFiberLocation( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkGstnLocation( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasGstnLocation( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetGstnLocation( SipsnAccessNetwork **network, PbString *gstnLocation );
PB_API void      sipsnAccessNetworkSetGstnLocationCstr( SipsnAccessNetwork **network, const char *gstnLocation,
                                                        int64_t length );
PB_API void      sipsnAccessNetworkSetGstnLocationWcstr( SipsnAccessNetwork **network, const wchar_t *gstnLocation,
                                                         int64_t length );
PB_API void      sipsnAccessNetworkDelGstnLocation( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkOperatorSpecificGi( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasOperatorSpecificGi( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetOperatorSpecificGi( SipsnAccessNetwork **network, PbString *operatorSpecificGi );
PB_API void sipsnAccessNetworkSetOperatorSpecificGiCstr( SipsnAccessNetwork **network, const char *operatorSpecificGi,
                                                         int64_t length );
PB_API void sipsnAccessNetworkSetOperatorSpecificGiWcstr( SipsnAccessNetwork **network,
                                                          const wchar_t *operatorSpecificGi, int64_t length );
PB_API void sipsnAccessNetworkDelOperatorSpecificGi( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkUtranSai3gpp( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasUtranSai3gpp( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetUtranSai3gpp( SipsnAccessNetwork **network, PbString *utranSai3gpp );
PB_API void      sipsnAccessNetworkSetUtranSai3gppCstr( SipsnAccessNetwork **network, const char *utranSai3gpp,
                                                        int64_t length );
PB_API void      sipsnAccessNetworkSetUtranSai3gppWcstr( SipsnAccessNetwork **network, const wchar_t *utranSai3gpp,
                                                         int64_t length );
PB_API void      sipsnAccessNetworkDelUtranSai3gpp( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkDvbRcs2NodeId( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasDvbRcs2NodeId( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetDvbRcs2NodeId( SipsnAccessNetwork **network, PbString *dvbRcs2NodeId );
PB_API void      sipsnAccessNetworkSetDvbRcs2NodeIdCstr( SipsnAccessNetwork **network, const char *dvbRcs2NodeId,
                                                         int64_t length );
PB_API void      sipsnAccessNetworkSetDvbRcs2NodeIdWcstr( SipsnAccessNetwork **network, const wchar_t *dvbRcs2NodeId,
                                                          int64_t length );
PB_API void      sipsnAccessNetworkDelDvbRcs2NodeId( SipsnAccessNetwork **network );

PB_API PbString *sipsnAccessNetworkLocalTimeZone( SipsnAccessNetwork *network );
PB_API bool      sipsnAccessNetworkHasLocalTimeZone( SipsnAccessNetwork *network );
PB_API void      sipsnAccessNetworkSetLocalTimeZone( SipsnAccessNetwork **network, PbString *localTimeZone );
PB_API void      sipsnAccessNetworkSetLocalTimeZoneCstr( SipsnAccessNetwork **network, const char *localTimeZone,
                                                         int64_t length );
PB_API void      sipsnAccessNetworkSetLocalTimeZoneWcstr( SipsnAccessNetwork **network, const wchar_t *localTimeZone,
                                                          int64_t length );
PB_API void      sipsnAccessNetworkDelLocalTimeZone( SipsnAccessNetwork **network );

PB_API bool sipsnAccessNetworkNetworkProvided( SipsnAccessNetwork *network );
PB_API void sipsnAccessNetworkSetNetworkProvided( SipsnAccessNetwork **network, bool networkProvided );

PB_API SipsnGenericParams *sipsnAccessNetworkGenericParams( SipsnAccessNetwork *network );
PB_API void sipsnAccessNetworkSetGenericParams( SipsnAccessNetwork **network, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
