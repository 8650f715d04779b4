// What a SIP URI may hold where it stands, RFC 3261 section 19.1.1.
#include "sipsn_uri.h"

#include "pb/pb_internal.h"

// Table 1 by component: one bit for each place that allows it. User, password, host, the user parameter and all other
// parameters are allowed everywhere.
namespace {

constexpr uint32_t request  = 1u << SIPSN_URI_PLACE_REQUEST;
constexpr uint32_t contact  = 1u << SIPSN_URI_PLACE_REGISTER_CONTACT;
constexpr uint32_t dialog   = 1u << SIPSN_URI_PLACE_DIALOG;
constexpr uint32_t outside  = 1u << SIPSN_URI_PLACE_OUTSIDE;
constexpr uint32_t anywhere = ( 1u << ( SIPSN_URI_PLACE_OUTSIDE + 1 ) ) - 1;

// The places that allow what is there.
uint32_t PlacesOf( SipsnUri *uri )
{
    if( !sipsnUriIsSip( uri ) ) return anywhere & ~dialog;
    const bool hasHeaders = pbVectorLength( pb::Ref{ sipsnUriHeadersVector( uri ) }.Get() ) > 0;
    uint32_t   places     = anywhere;
    if( sipsnUriHasPort( uri ) ) places &= request | contact | dialog | outside;
    if( sipsnUriHasMethod( uri ) ) places &= outside;
    if( sipsnUriHasMaddr( uri ) ) places &= request | contact | dialog | outside;
    if( sipsnUriHasTtl( uri ) ) places &= request | contact | outside;
    if( sipsnUriHasTransport( uri ) ) places &= request | contact | dialog | outside;
    if( sipsnUriLr( uri ) ) places &= request | dialog | outside;
    if( hasHeaders ) places &= contact | outside;
    return places;
}

} // namespace

bool sipsnUriAllowedIn( SipsnUri *uri, int64_t place )
{
    PB_ASSERT( uri );
    PB_ASSERT( place >= SIPSN_URI_PLACE_REQUEST && place <= SIPSN_URI_PLACE_OUTSIDE );
    return ( PlacesOf( uri ) >> place & 1 ) != 0;
}
