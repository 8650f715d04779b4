// SipsnAcceptEncoding: one element of Accept-Encoding, RFC 3261 section 20.2.
#include "sipsn_accept_encoding.h"

#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

SIPSN_DECLARE_TEXT( AcceptEncoding )

struct SipsnAcceptEncoding
{
    PbObj               obj;
    PbString           *contentCoding; // null: any
    SipsnGenericParams *genericParams;
    int64_t             q;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::OptionalText( "contentCoding", &SipsnAcceptEncoding::contentCoding, sipsn::rule::contentCoding ),
            sipsn::IntParam( "q", &SipsnAcceptEncoding::q, sipsn::rule::qvalue ),
            sipsn::OtherParams( &SipsnAcceptEncoding::genericParams ),
        };
    }
};

SIPSN_DEFINE_TYPE( SipsnAcceptEncoding, sipsnAcceptEncoding, SIPSN_ACCEPT_ENCODING, acceptEncoding, ae,
                   sipsn___AcceptEncodingEncode )

SipsnAcceptEncoding *sipsnAcceptEncodingCreate( void ) { return sipsn::New< SipsnAcceptEncoding >(); }

SipsnAcceptEncoding *sipsnAcceptEncodingCreateWithContentCoding( PbString *contentCoding )
{
    return sipsn::NewWith( &SipsnAcceptEncoding::contentCoding, sipsnContentCodingNormalize( contentCoding ) );
}

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnAcceptEncodingContentCoding( SipsnAcceptEncoding *acceptEncoding )
{
    return PB_GET( acceptEncoding, contentCoding );
}

bool sipsnAcceptEncodingHasContentCoding( SipsnAcceptEncoding *acceptEncoding )
{
    return PB_HAS( acceptEncoding, contentCoding );
}

void sipsnAcceptEncodingSetContentCoding( SipsnAcceptEncoding **acceptEncoding, PbString *contentCoding )
{
    PB_SET( acceptEncoding, contentCoding, contentCoding, sipsnContentCodingNormalize( contentCoding ) );
}

void sipsnAcceptEncodingDelContentCoding( SipsnAcceptEncoding **acceptEncoding )
{
    PB_DEL( acceptEncoding, contentCoding );
}

SipsnGenericParams *sipsnAcceptEncodingGenericParams( SipsnAcceptEncoding *acceptEncoding )
{
    return PB_GET( acceptEncoding, genericParams );
}

void sipsnAcceptEncodingSetGenericParams( SipsnAcceptEncoding **acceptEncoding, SipsnGenericParams *genericParams )
{
    PB_SET( acceptEncoding, genericParams, genericParams, pb::Retain( genericParams ) );
}

int64_t sipsnAcceptEncodingQvalue( SipsnAcceptEncoding *acceptEncoding ) { return PB_GET( acceptEncoding, q ); }
bool    sipsnAcceptEncodingHasQvalue( SipsnAcceptEncoding *acceptEncoding ) { return PB_HAS( acceptEncoding, q ); }
void    sipsnAcceptEncodingSetQvalue( SipsnAcceptEncoding **acceptEncoding, int64_t qvalue )
{
    PB_SET( acceptEncoding, q, sipsnQvalueOk( qvalue ), qvalue );
}
void sipsnAcceptEncodingDelQvalue( SipsnAcceptEncoding **acceptEncoding ) { PB_DEL( acceptEncoding, q ); }

// ---- Text form -------------------------------------------------------------------------------------

namespace {

// "*" is a content coding as well; an absent one is written so.
struct Form : sipsn::Params< SipsnAcceptEncoding >
{
    void Write( sipsn::TextWriter &out, SipsnAcceptEncoding &acceptEncoding ) const
    {
        if( acceptEncoding.contentCoding )
            out.Text( acceptEncoding.contentCoding );
        else
            out.Char( '*' );
        WriteParams( out, acceptEncoding );
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( AcceptEncoding, acceptEncoding, form )
