// Watching a decoder: where it stops, and what it looked for there.
#include "sipsn_cursor.h"

#include "pb/pb_frame.h"

namespace sipsn {

// Of all that fails only the farthest matters. What was refused there matters less than what is tried behind it.
void Watch::Missed( const PbChar *at, Wanted what )
{
    if( farthest && at < farthest ) return;
    if( !farthest || at > farthest || refused ) {
        farthest    = at;
        refused     = {};
        wantedCount = 0;
        before      = lastEnd_ && lastEnd_ <= at ? last_ : Wanted{};
    }
    const auto same = [ & ]( const Wanted &other ) { return other.words == what.words; };
    if( wantedCount == wanted.size() || std::any_of( wanted.begin(), wanted.begin() + wantedCount, same ) ) return;
    wanted[ wantedCount++ ] = what;
}

// Separators are not worth telling.
void Watch::Took( Span text, Wanted what )
{
    if( what.kind == Wanted::separator || what.kind == Wanted::blank ) return;
    last_    = what;
    lastEnd_ = text.chs + text.length;
}

void Watch::Refused( Span text, std::string_view words, int64_t from, int64_t to )
{
    const PbChar *end = text.chs + text.length;
    if( farthest && end < farthest ) return;
    farthest    = end;
    refused     = text;
    lowest      = from;
    highest     = to;
    wanted[ 0 ] = { words };
    wantedCount = 1;
}

Wanted WordsOf( Production *production )
{
    static constexpr struct
    {
        Production *production;
        Wanted      wanted;
    } table[] = {
        { sipsn___SkipColon, { ":", Wanted::separator } },  { sipsn___SkipComma, { ",", Wanted::separator } },
        { sipsn___SkipComment, { "a comment" } },           { sipsn___SkipEqual, { "=", Wanted::separator } },
        { sipsn___SkipLaquot, { "<", Wanted::separator } }, { sipsn___SkipLws, { "a blank", Wanted::blank } },
        { sipsn___SkipRaquot, { ">", Wanted::separator } }, { sipsn___SkipSemi, { ";", Wanted::separator } },
        { sipsn___SkipSlash, { "/", Wanted::separator } },  { sipsn___SkipStar, { "*", Wanted::separator } },
    };
    const auto found = std::ranges::find( table, production, []( const auto &row ) { return row.production; } );
    PB_ASSERT( found != std::end( table ) );
    return found->wanted;
}

} // namespace sipsn
