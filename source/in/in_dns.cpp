// Domain names: label by label, so that one in Unicode does not change the others. Only unusual labels are shown to
// libidn2, which takes a microsecond for each.
#include "in_dns.h"

#include "in_internal.h"
#include "in_label.h"
#include "iri/iri_internal.h"
#include "pb/pb_text.h"

#include <algorithm>
#include <idn2.h>

namespace {

constexpr int64_t          nameLimit = 253; // RFC 1034 section 3.1: 255 octets, two of which are not characters
constexpr std::string_view acePrefix = "xn--";

using in::labelLimit;
using Label = pb::Text;

enum class LabelKind
{
    Invalid,
    Ascii,
    Ace,
    Unicode
};

// Letters, digits and the hyphen.
bool IsLabelChar( PbChar ch ) { return pb::DigitValue( ch ) < 36 || ch == '-'; }

// "xn--" and what should be Punycode, but need not.
bool HasAcePrefix( Label label ) { return label.length > 4 && pb::StartsWithKeyword( label, acePrefix ); }

// Of a label in Unicode this says only that its ASCII characters are good: libidn2 judges the rest.
LabelKind KindOf( Label label )
{
    const int64_t length = label.length;
    if( length == 0 || length > labelLimit || label[ 0 ] == '-' || label[ length - 1 ] == '-' )
        return LabelKind::Invalid;
    bool isAscii = true;
    for( int64_t n = 0; n < length; ++n ) {
        if( !pb::IsAscii( label[ n ] ) )
            isAscii = false;
        else if( !IsLabelChar( label[ n ] ) )
            return LabelKind::Invalid;
    }
    if( !isAscii ) return LabelKind::Unicode;
    return HasAcePrefix( label ) ? LabelKind::Ace : LabelKind::Ascii;
}

// Hands each label to `visit` until that says false; whether it never did. A dot at the end begins no label.
template< class Visit > bool ForEachLabel( PbString *name, Visit visit )
{
    const PbChar *at  = name->chs;
    const PbChar *end = name->chs + name->length;
    do {
        const PbChar *dot = std::find( at, end, '.' );
        if( !visit( Label{ at, dot - at } ) ) return false;
        at = dot == end ? end : dot + 1;
    } while( at != end );
    return true;
}

// A new name from what `convert` makes of each label; it appends to the new name and says whether it could. Null when
// it could not. The dots are kept.
template< class Convert > PbString *ConvertLabels( PbString *name, Convert convert )
{
    const PbChar *end = name->chs + name->length;
    pb::Ref       converted{ pbStringCreate() };
    const bool    ok = ForEachLabel( name, [ & ]( Label label ) {
        if( !convert( converted.Slot(), label ) ) return false;
        if( label.chs + label.length != end ) pbStringAppendChar( converted.Slot(), '.' );
        return true;
    } );
    return ok ? converted.Detach() : nullptr;
}

void Append( PbString **string, Label label ) { pbStringAppendChars( string, label.chs, label.length ); }

bool IsLengthOk( PbString *name )
{
    return name->length > 0 && name->length - ( name->chs[ name->length - 1 ] == '.' ) <= nameLimit;
}

bool IsBracketedV6( PbString *name )
{
    const int64_t length = name->length;
    return length > 2 && name->chs[ 0 ] == '[' && name->chs[ length - 1 ] == ']' &&
           iri___SkipIpV6Address( name->chs + 1, length - 2 ) == length - 2;
}

// What the labels of a name are, as far as that can be said without libidn2. A dotted quad is labels of digits.
struct Survey
{
    bool ok         = false;
    bool hasAce     = false;
    bool hasUnicode = false;
};

Survey SurveyName( PbString *name )
{
    if( !IsLengthOk( name ) ) return {};
    if( IsBracketedV6( name ) ) return { .ok = true };

    Survey survey;
    survey.ok = ForEachLabel( name, [ & ]( Label label ) {
        const LabelKind kind = KindOf( label );
        survey.hasAce |= kind == LabelKind::Ace;
        survey.hasUnicode |= kind == LabelKind::Unicode;
        return kind != LabelKind::Invalid;
    } );
    return survey;
}

// Whether libidn2 succeeded. What it cannot convert is the text's fault, unless memory was exhausted.
bool IsConverted( int status )
{
    PB_ASSERT( status != IDN2_MALLOC );
    return status == IDN2_OK;
}

// The same without libidn2, for most labels; false when it must be asked.
bool TryAppendPlainAscii( PbString **string, Label label )
{
    PbChar lower[ labelLimit ];
    std::transform( label.chs, label.chs + label.length, lower, pb::AsciiLower );
    const Label plain{ lower, label.length };
    if( !in::IsPlainLabel( plain ) ) return false;

    char          text[ in::punycodeLimit ];
    const int64_t length = in::EncodePunycode( plain, text );
    if( int64_t( acePrefix.size() ) + length > labelLimit ) return false;
    pbStringAppendCstr( string, acePrefix.data(), int64_t( acePrefix.size() ) );
    pbStringAppendCstr( string, text, length );
    return true;
}

// Appends the ASCII form of a label in Unicode; false when it has none. Lower case and NFC come first, as RFC 5895
// section 2 has it; beyond these nothing is mapped, for what looks alike must not become alike.
bool AppendAscii( PbString **string, Label label )
{
    if( TryAppendPlainAscii( string, label ) ) return true;
    pb::Ref lower{ pbStringCreateFromCharsCopy( label.chs, label.length ) };
    pbStringToLower( lower.Slot() );

    const auto chs = reinterpret_cast< const uint32_t * >( lower->chs );

    char      *text = nullptr;
    const bool ok =
        IsConverted( idn2_to_ascii_4i2( chs, size_t( lower->length ), &text, IDN2_NFC_INPUT | IDN2_NO_TR46 ) );
    if( ok ) pbStringAppendCstr( string, text, -1 );
    idn2_free( text );
    return ok;
}

// The name in ASCII, or null.
PbString *TryMakeAscii( PbString *name )
{
    pb::Ref ascii{ ConvertLabels( name, []( PbString **string, Label label ) {
        if( KindOf( label ) == LabelKind::Unicode ) return AppendAscii( string, label );
        Append( string, label );
        return true;
    } ) };
    if( !ascii ) return nullptr;
    const Survey survey = SurveyName( ascii.Get() );
    return survey.ok && !survey.hasUnicode ? ascii.Detach() : nullptr;
}

// The ASCII form of a name, the name itself when that is it; null for an invalid name.
PbString *TryToAscii( PbString *name )
{
    const Survey survey = SurveyName( name );
    if( !survey.ok ) return nullptr;
    return survey.hasUnicode ? TryMakeAscii( name ) : pb::Retain( name );
}

// Appends the Unicode form of an "xn--" label; false when there is none that converts back to the label. A plain one
// does: there is but one Punycode for it.
bool AppendUnicode( PbString **string, Label label )
{
    char lower[ labelLimit ]; // RFC 5891 section 5.3
    std::transform( label.chs, label.chs + label.length, lower, pb::AsciiLower );

    constexpr int64_t prefix = int64_t( acePrefix.size() );

    PbChar      chs[ labelLimit ];
    const Label unicode{ chs, in::DecodePunycode( lower + prefix, label.length - prefix, chs ) };
    if( KindOf( unicode ) != LabelKind::Unicode ) return false;
    if( !in::IsPlainLabel( unicode ) ) {
        pb::Ref back{ pbStringCreate() };
        if( !AppendAscii( back.Slot(), unicode ) || !pbStringEqualsCstr( back.Get(), lower, label.length ) )
            return false;
    }
    Append( string, unicode );
    return true;
}

} // namespace

bool inDnsIdnaDomainNameOk( PbString *name )
{
    PB_ASSERT( name );
    return bool( pb::Ref{ TryToAscii( name ) } );
}

PbString *inDnsIdnaDomainNameToAscii( PbString *name )
{
    PB_ASSERT( name );
    PbString *ascii = TryToAscii( name );
    PB_ABORT_UNLESS( nullptr, "inDnsIdnaDomainNameOk( name )", ascii );
    return ascii;
}

PbString *in___DnsTryToAscii( PbString *name )
{
    PB_ASSERT( name );
    return TryToAscii( name );
}

PbString *inDnsIdnaDomainNameToUnicode( PbString *name )
{
    PB_ASSERT( name );
    const Survey survey = SurveyName( name );
    if( survey.ok && !survey.hasAce && !survey.hasUnicode ) return pb::Retain( name );

    PB_ASSERT( inDnsIdnaDomainNameOk( name ) );
    if( !survey.hasAce ) return pb::Retain( name );
    return ConvertLabels( name, []( PbString **string, Label label ) {
        if( KindOf( label ) != LabelKind::Ace || !AppendUnicode( string, label ) ) Append( string, label );
        return true;
    } );
}
