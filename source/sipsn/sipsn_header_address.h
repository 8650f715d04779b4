// The shape of the header types that are one address with parameters. C++ only; never installed.
#pragma once

#include "sipsn_header_frame.h"

namespace sipsn {

template< class Header > bool TakeNoParam( Cursor &, Header * ) { return false; }
template< class Header > void WriteNoParams( ParamWriter &, Header * ) {}

// What the last line holds: an address, kept in `iri` and `displayName`, and parameters. `takeTyped` reads one that is
// a member and says whether it did, `writeTyped` writes those; the others are in `genericParams`.
template< class Header > struct Address
{
    bool ( *takeTyped )( Cursor &in, Header *hdr )           = TakeNoParam< Header >;
    void ( *writeTyped )( ParamWriter &params, Header *hdr ) = WriteNoParams< Header >;

    // Reads a bare address anew where something other than parameters stands behind it; null when that fails.
    Production *bareAgain = nullptr;

    // Takes over the reference.
    Header *Create( PbString *iri ) const
    {
        Header *hdr        = pb::New< Header >();
        hdr->iri           = iri;
        hdr->genericParams = sipsnGenericParamsCreate();
        return hdr;
    }

    Header *TryDecode( SipsnMessageHeader *header ) const
    {
        const int64_t count = LineCount( header );
        if( count == 0 ) return nullptr;
        PbString *line = PeekLine( header, count - 1 );
        for( Production *bare : { sipsn___SkipAddrSpec, bareAgain } ) {
            Cursor   in{ line->chs, line->length };
            NameAddr address;
            if( !bare || !TryTakeNameAddr( in, &address, bare ) ) return nullptr;
            pb::Ref hdr{ Create( address.iri.Detach() ) };
            hdr->displayName     = address.displayName.Detach();
            const auto takeParam = [ & ]( Cursor &at ) { return takeTyped( at, hdr.Get() ); };
            if( TryDecodeParams( in, &hdr->genericParams, takeParam ) ) return hdr.Detach();
        }
        return nullptr;
    }

    SipsnMessageHeader *Encode( Header *hdr, PbString *name ) const
    {
        const auto write = [ & ]( TextWriter &out ) {
            WriteNameAddr( out, hdr->displayName, hdr->iri );
            ParamWriter params{ out, hdr->genericParams };
            writeTyped( params, hdr );
            params.Generic();
        };
        return CreateHeader( name, TextOf( write ) );
    }
};

// ---- From and To -----------------------------------------------------------------------------------

// The ends of a dialog, which differ in their names alone.
template< class Header > bool TakeDialogParam( Cursor &in, Header *hdr )
{
    return TakeText( in, "tag", sipsn___SkipTag, hdr->tag ) || TakeText( in, "epid", sipsn___SkipEpid, hdr->epid );
}

template< class Header > void WriteDialogParams( ParamWriter &params, Header *hdr )
{
    params.Text( "tag", hdr->tag );
    params.Text( "epid", hdr->epid );
}

template< class Header >
inline constexpr Address< Header > dialogParty{ .takeTyped  = TakeDialogParam< Header >,
                                                .writeTyped = WriteDialogParams< Header > };

} // namespace sipsn
