// SipsnHeaderRecvInfo: the Recv-Info header field, RFC 6086 section 9.2.
#include "sipsn_header_recv_info.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( InfoPackage )

struct SipsnHeaderRecvInfo
{
    PbObj     obj;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ sipsn::DecodedValues( "infoPackages", &SipsnHeaderRecvInfo::items, sipsn::SkipListItem,
                                                  sipsn::schemaInfoPackage ) };
    }
};

SIPSN_LIST_HEADER( RecvInfo, "Recv-Info", SIPSN_HEADER_RECV_INFO, givesEmptyHeader )

SIPSN_VALUES( RecvInfo, InfoPackages, InfoPackage, InfoPackage, package )
