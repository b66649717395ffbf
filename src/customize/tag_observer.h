#pragma once

// What the tag parser passes over or drops.
enum class TagNote {
    PlainComment,    // a comment whose first word is no keyword
    InsideAction,    // a line behind an `action` tag
    IgnoredKeyword,  // a keyword that means nothing in a script
    UnknownControl,  // a `cntl` tag whose mode is not known
    ReplacedByTag,   // the entry had no value line before the next tag began
    BlankLine,       // a blank line stands between the entry's tags and its value
    ActionBegan,     // an `action` tag came before the entry's value
    NoValue,         // the code line ends without a value
    CommentInValue,  // a comment or a slash stands where the value was looked for
    BracketNotClosed,
    QuoteNotClosed,
    TextEnded,   // the script ends before the value
    NotANumber,  // an `entry` whose value is neither number, string nor file
    NoEntry,     // help, id or cntl above a line that no entry tag belongs to
    UsedUp,      // a tag line that a failed search for the value above it has read over
};

// The reason in words, as a sentence without its full stop.
const char* TagNoteText(TagNote note);

// Is told what the parser does not make into controls. Places are pointers into the parsed text.
class TagObserver {
public:
    virtual ~TagObserver() = default;

    // `keyword` is the number of the tag in question, -1 for none; `line` counts from 0 and holds `place`,
    // the first byte of the tag or of the line that was passed over.
    virtual void Passed(TagNote note, int keyword, int line, const char* place) = 0;
};
