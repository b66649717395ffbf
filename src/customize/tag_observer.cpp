#include "customize/tag_observer.h"

const char* TagNoteText(TagNote note) {
    switch (note) {
        case TagNote::PlainComment: return "a plain comment";
        case TagNote::InsideAction: return "tags of an action make no control in a script";
        case TagNote::IgnoredKeyword: return "this tag means nothing in a script";
        case TagNote::UnknownControl: return "unknown control, expected spin, drop, drop_list or drop_pair";
        case TagNote::ReplacedByTag: return "no value line before the next tag";
        case TagNote::BlankLine: return "a blank line stands between the tag and its value line";
        case TagNote::ActionBegan: return "an action begins before the value line";
        case TagNote::NoValue: return "the value line holds no value";
        case TagNote::CommentInValue: return "a comment or a slash stands in front of the value";
        case TagNote::BracketNotClosed: return "a '<' of the value line is not closed on its line";
        case TagNote::QuoteNotClosed: return "a quote of the value line is never closed";
        case TagNote::TextEnded: return "the script ends before a value is found";
        case TagNote::NotANumber: return "the value is no number, no quoted string and no <file>";
        case TagNote::NoEntry: return "this tag belongs to no entry";
        case TagNote::UsedUp: return "this tag is lost in the search for the value of the entry above it";
    }
    return "";
}
