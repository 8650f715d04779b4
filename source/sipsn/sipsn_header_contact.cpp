// SipsnHeaderContact: the Contact header field, RFC 3261 section 20.10.
#include "sipsn_header_contact.h"

#include "sipsn_header_frame.h"

SIPSN_DECLARE_TEXT( Contact )

struct SipsnHeaderContact
{
    PbObj     obj;
    bool      starForm;
    PbVector *items;

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnHeaderContact::starForm, sipsn::Values( "contacts", &SipsnHeaderContact::items,
                                                                          sipsn___SkipContact, sipsn::schemaContact )
                                                               .Star( &SipsnHeaderContact::starForm ) };
    }
};

SIPSN_DEFINE_NAME( Contact, "Contact" )

static constexpr sipsn::List< SipsnHeaderContact > contacts{ .noLines = sipsn::NoLines::givesNull };

// That list, or the line "*" instead.
struct ContactShape
{
    SipsnHeaderContact *Create( bool starForm ) const
    {
        SipsnHeaderContact *hdr = contacts.Create();
        hdr->starForm           = starForm;
        return hdr;
    }

    SipsnHeaderContact *TryDecode( sipsn::FieldLines &lines ) const
    {
        if( lines.Count() == 0 ) return nullptr;
        sipsn::Cursor in{ lines.At( 0 ) };
        if( !in.Take( sipsn___SkipStar ) ) return contacts.TryDecode( lines );

        if( !in.AtEnd() ) return nullptr;
        for( int64_t at = 1; at < lines.Count(); ++at )
            if( lines.At( at ).length > 0 ) return nullptr;
        return Create( true );
    }

    bool WatchLine( sipsn::Span line, sipsn::Watch &watch ) const
    {
        sipsn::WatchedCursor in{ line, { &watch } };
        return in.Sees( sipsn___SkipStar ) ? in.Take( sipsn___SkipStar ) && in.AtEnd()
                                           : contacts.WatchLine( line, watch );
    }

    SipsnMessageHeader *Encode( SipsnHeaderContact *hdr, int64_t number ) const
    {
        if( !hdr->starForm || pbVectorLength( hdr->items ) > 0 ) return contacts.Encode( hdr, number );
        return sipsn::CreateHeader( number, pbStringCreateFromCstr( "*", -1 ) );
    }
};

static constexpr ContactShape shape{};

SIPSN_DEFINE_HEADER( Contact, SIPSN_HEADER_CONTACT, shape )
SIPSN_DEFINE_LIST( Contact, Contacts, Contact, SipsnContact, contact, sipsn___ContactEncode )

SipsnHeaderContact *sipsnHeaderContactCreate( void ) { return shape.Create( false ); }

bool sipsnHeaderContactIsStarForm( SipsnHeaderContact *hdr ) { return PB_GET( hdr, starForm ); }

void sipsnHeaderContactSetStarForm( SipsnHeaderContact **hdr, bool starForm )
{
    sipsnHeaderContactClear( hdr );
    ( *hdr )->starForm = starForm;
}

SipsnContact *sipsnHeaderContactTryDecodeContactAt( SipsnHeaderContact *hdr, int64_t index )
{
    return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___ContactTryDecode );
}

void sipsnHeaderContactClear( SipsnHeaderContact **hdr )
{
    SIPSN_LIST_CLEAR( hdr );
    ( *hdr )->starForm = false;
}
