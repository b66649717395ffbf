#include "customize/tag_parser.h"

#include <algorithm>

#include "customize/control_spec.h"
#include "customize/entry_value_search.h"
#include "support/number_text.h"
#include "support/token_scanner.h"

namespace {

constexpr char kDelimiters[] = ":";
constexpr char kActionWord[] = "action";
constexpr int kActionWordLen = sizeof kActionWord - 1;

// The first byte of a line's first token, null for a blank line. Most lines of a script need no more than
// this.
const char* FindFirstToken(const char* line, int length) {
    const char* const end = line + length;
    while (line < end && (*line == ' ' || *line == '\t'))
        ++line;
    const bool blank = line == end || *line == '\0' || *line == '\r' || *line == '\n';
    return blank ? nullptr : line;
}

bool BeginsComment(const char* token, const char* end) {
    return end - token >= 2 && token[0] == '/' && token[1] == '/';
}

// Without leading blanks, tabs and colons, and trimmed at both ends.
CString ArgumentText(const char* text, int length) {
    TokenScanner scanner;
    const char* const start = scanner.First(text, length, kDelimiters);
    if (start == nullptr) return {};
    CString argument(start, static_cast<int>(text + length - start));
    argument.Trim();
    return argument;
}

void AddHelp(CScriptEntry& entry, const CString& argument) {
    if (!entry.help.IsEmpty()) entry.help += "\r\n";
    entry.help += argument;
}

// A flag or skill of an action: one word of label, one of value.
void ReadNumberedTag(CScriptEntry& entry, const CString& argument) {
    TokenScanner scanner;
    entry.label.Empty();
    entry.value = "0";
    const char* token = scanner.First(argument, argument.GetLength(), nullptr);
    if (token == nullptr) return;
    entry.label = CString(token, scanner.TokenLen());
    token = scanner.Next();
    if (token != nullptr) entry.value = CString(token, scanner.TokenLen());
}

TagNote NoteOf(TokenFailure failure) {
    switch (failure) {
        case TokenFailure::Comment: return TagNote::CommentInValue;
        case TokenFailure::Bracket: return TagNote::BracketNotClosed;
        case TokenFailure::Quote: return TagNote::QuoteNotClosed;
        case TokenFailure::EndOfText: return TagNote::TextEnded;
        case TokenFailure::None: break;
    }
    return TagNote::NoValue;
}

// One walk over a text: the record under construction and the skip flag.
class TagParser {
public:
    TagParser(ScriptHeader& header, CEntryList& list, CLex& lex, TagObserver* observer)
        : header_(header), list_(list), lex_(lex), observer_(observer) {}

    void Run() {
        while (lex_.getNextUnformLine() != nullptr) {
            line_ = lex_.getCurrLinePos();
            length_ = lex_.getLineLen();
            token_ = FindFirstToken(line_, length_);
            ReadLine();
        }
        Drop(TagNote::TextEnded);
    }

private:
    void ReadLine() {
        if (skipping_) {
            SkipLine();
        } else if (token_ == nullptr) {
            const bool last = lex_.getLineNum() == lex_.getLinesNumber();
            Drop(last ? TagNote::TextEnded : TagNote::BlankLine);
        } else if (BeginsComment(token_, line_ + length_)) {
            ReadComment();
        } else if (touched_) {
            ReadCode();
        }
    }

    void SkipLine() {
        const bool ends = token_ == nullptr || (line_ + length_ - token_ >= kActionWordLen &&
                                                _strnicmp(token_, kActionWord, kActionWordLen) == 0);
        if (ends) skipping_ = false;
        Drop(TagNote::ActionBegan);
        if (observer_ != nullptr && token_ != nullptr) {
            observer_->Passed(TagNote::InsideAction, ReadTagLine(line_, length_).keyword, lex_.getCurrLine(),
                              token_);
        }
    }

    void ReadComment() {
        const TagLine tag = ReadTagLine(line_, length_);
        switch (tag.keyword) {
            case KindNone: ReadPlainComment(); break;
            case KindTitle:
            case KindImage:
            case KindText:
            case KindSection:
                Begin(tag);
                Append();
                break;
            case KindHelp:
            case KindEntryHelp:
            case KindId:
            case KindCntl: Add(tag); break;
            case KindEnable:
            case KindEntry:
            case KindEntity:
            case KindPath:
            case KindDrop:
            case KindEntryText: Begin(tag); break;
            case KindAction: skipping_ = true; break;
            case KindVer: header_.scriptVersion = ParseTagInt(tag.argument, tag.argumentLen); break;
            case KindDate: header_.scriptDate = ParseTagInt(tag.argument, tag.argumentLen); break;
            default: Tell(TagNote::IgnoredKeyword, tag.keyword); break;
        }
    }

    void Begin(const TagLine& tag) {
        if (entry_.kind != KindNone) Drop(TagNote::ReplacedByTag);
        NotePlace(tag.keyword);
        BeginEntry(entry_, tag.keyword, tag.argument, tag.argumentLen);
        touched_ = true;
    }

    void Add(const TagLine& tag) {
        if (!touched_) NotePlace(tag.keyword);
        if (tag.keyword == KindCntl) {
            const bool known = ParseControlSpec(entry_, ArgumentText(tag.argument, tag.argumentLen));
            if (!known) Tell(TagNote::UnknownControl, KindCntl);
        } else {
            ApplyTag(entry_, tag.keyword, tag.argument, tag.argumentLen);
        }
        touched_ = true;
    }

    // Below an enable tag a comment is the switched-off form of its line.
    void ReadPlainComment() {
        if (entry_.kind != KindEnable) {
            Tell(TagNote::PlainComment, KindNone);
            return;
        }
        AppendSwitch("0", token_);
    }

    void ReadCode() {
        switch (entry_.kind) {
            case KindEnable: AppendSwitch("1", line_); break;
            case KindEntry: ReadEntryValue(); break;
            case KindEntity:
            case KindPath:
            case KindDrop:
            case KindEntryText: ReadKeptValue(); break;
            default: Drop(TagNote::NoEntry); break;
        }
    }

    void AppendSwitch(const char* value, const char* place) {
        entry_.value = value;
        entry_.textPos = place;
        entry_.textLen = 0;
        Append();
    }

    bool FindValue() {
        TokenFailure failure = TokenFailure::None;
        const int line = lex_.getCurrLine();
        if (FindEntryValue(entry_, lex_, line_, length_, &failure) != 0) return true;
        Drop(NoteOf(failure));
        if (observer_ != nullptr) TellUsedUpTags(line);
        return false;
    }

    // A failed search does not give its lines back.
    void TellUsedUpTags(int line) {
        const char* const last = lex_.getCurrLinePos();
        const char* start = line_ + length_ + 1;
        for (++line; line <= lex_.getCurrLine() && start <= last; ++line) {
            const char* const end = lex_.getBuf() + lex_.getBufSize();
            const char* const line_end = std::find(start, end, '\n');
            const TagLine tag = ReadTagLine(start, static_cast<int>(line_end - start));
            if (tag.keyword != KindNone) observer_->Passed(TagNote::UsedUp, tag.keyword, line, tag.slashes);
            start = line_end == end ? end : line_end + 1;
        }
    }

    // The final kind of an `entry` comes from the form of its value.
    void ReadEntryValue() {
        if (!FindValue()) return;
        if (entry_.value.IsEmpty()) {
            Drop(TagNote::NoValue);
            return;
        }
        if (StripQuotes(entry_)) {
            entry_.kind = KindStrEdit;
        } else if (StripBrackets(entry_)) {
            entry_.kind = KindChooseFile;
        } else {
            const int number = ClassifyNumber(entry_.value);
            if (number == 0) {
                Drop(TagNote::NotANumber);
                return;
            }
            entry_.kind = number == 1 ? KindNumEdit : KindNumEditF;
        }
        Append();
    }

    void ReadKeptValue() {
        if (!FindValue()) return;
        StripQuotes(entry_);
        Append();
    }

    void Append() {
        list_.entries.push_back(std::move(entry_));
        Reset();
    }

    void Reset() {
        ResetEntry(entry_);
        touched_ = false;
    }

    // Drops what is under construction, telling the observer of it at the place where it began.
    void Drop(TagNote note) {
        if (!touched_) return;
        if (observer_ != nullptr) {
            const bool begun = entry_.kind != KindNone;
            observer_->Passed(begun ? note : TagNote::NoEntry, begun ? entry_.kind : first_keyword_,
                              first_line_, first_place_);
        }
        Reset();
    }

    void NotePlace(int keyword) {
        first_keyword_ = keyword;
        first_line_ = lex_.getCurrLine();
        first_place_ = token_;
    }

    void Tell(TagNote note, int keyword) {
        if (observer_ != nullptr) observer_->Passed(note, keyword, lex_.getCurrLine(), token_);
    }

    ScriptHeader& header_;
    CEntryList& list_;
    CLex& lex_;
    TagObserver* observer_;

    CScriptEntry entry_;
    bool touched_ = false;  // the record differs from a reset one
    bool skipping_ = false;

    const char* line_ = nullptr;  // the present line, its length and its first token
    int length_ = 0;
    const char* token_ = nullptr;

    int first_keyword_ = KindNone;  // where the record under construction began
    int first_line_ = 0;
    const char* first_place_ = nullptr;
};

}  // namespace

TagLine ReadTagLine(const char* line, int length) {
    TagLine tag;
    const char* const end = line + length;
    const char* const token = FindFirstToken(line, length);
    if (token == nullptr || !BeginsComment(token, end)) return tag;
    tag.slashes = token;
    const char* start = token + 2;
    while (start < end && (*start == ' ' || *start == '\t' || *start == ':'))
        ++start;
    // A word that is longer than every keyword need not be walked to its end, as in a line of slashes.
    const ptrdiff_t enough = std::min<ptrdiff_t>(end - start, kLongestKeyword + 1);
    TokenScanner scanner;
    const char* const word = scanner.First(start, static_cast<int>(enough), kDelimiters);
    if (word == nullptr) return tag;
    tag.keyword = FindKeyword(word, scanner.TokenLen());
    tag.argument = word + scanner.TokenLen();
    tag.argumentLen = static_cast<int>(end - tag.argument);
    return tag;
}

void ApplyTag(CScriptEntry& entry, int kind, const char* text, int length) {
    const CString argument = ArgumentText(text, length);
    switch (kind) {
        case KindHelp:
        case KindEntryHelp: AddHelp(entry, argument); break;
        case KindId: entry.id = ParseInt(argument, static_cast<size_t>(argument.GetLength())); break;
        case KindCntl: ParseControlSpec(entry, argument); break;
        case KindEntryText:
            entry.label = argument;
            ParseSizePrefix(entry.label, entry.width, entry.height);
            break;
        case KindFlag:
        case KindSkill: ReadNumberedTag(entry, argument); break;
        default: entry.label = argument; break;
    }
}

void BeginEntry(CScriptEntry& entry, int kind, const char* text, int length) {
    if (entry.kind != KindNone) ResetEntry(entry);
    entry.kind = kind;
    ApplyTag(entry, kind, text, length);
}

int ParseTagInt(const char* text, int length) {
    const CString argument = ArgumentText(text, length);
    return argument.IsEmpty() ? -1 : ParseInt(argument, static_cast<size_t>(argument.GetLength()));
}

int ParseScriptTags(ScriptHeader& header, CEntryList& list, CLex& lex, TagObserver* observer) {
    TagParser(header, list, lex, observer).Run();
    return 1;
}
