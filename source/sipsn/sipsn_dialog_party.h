// What From and To share: the ends of a dialog, which differ in their names alone. C++ only; never installed.
#pragma once

#include "sipsn_epid.h"
#include "sipsn_header_frame.h"
#include "sipsn_header_from.h"
#include "sipsn_header_to.h"

namespace sipsn {

namespace rule {

inline constexpr TextRule epid{ .words = "an epid", .ok = sipsnEpidOk, .production = sipsn___SkipEpid };

} // namespace rule

struct DialogParty
{
    PbObj               obj;
    PbString           *iri;
    PbString           *displayName;
    PbString           *tag;
    PbString           *epid;
    SipsnGenericParams *genericParams;

    using Fields = DialogParty; // what a header type inherits

    static constexpr auto Members()
    {
        return pb::Members{
            Text( "iri", &DialogParty::iri, rule::iri ),
            OptionalText( "displayName", &DialogParty::displayName, rule::displayName ),
            TextParam( "tag", &DialogParty::tag, rule::tag ),
            TextParam( "epid", &DialogParty::epid, rule::epid ),
            OtherParams( &DialogParty::genericParams ),
        };
    }
};

} // namespace sipsn

struct SipsnHeaderFrom : sipsn::DialogParty
{
};
struct SipsnHeaderTo : sipsn::DialogParty
{
};

namespace sipsn {

// The one as the other: a new object with the same members.
template< class To, class From > To *Turned( From *party )
{
    To *turned = pb::New< To >();
    pb::membersOf< DialogParty >.template Share< DialogParty >( *turned, *party );
    return turned;
}

} // namespace sipsn
