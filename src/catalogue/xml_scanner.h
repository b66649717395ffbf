#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "catalogue/ascii_case.h"

// Cuts a text that ends in a 0 into the tokens of CXmlReader. The text is neither owned nor changed. All is
// inline: a catalogue has millions of tokens.

// Open and close strings of the raw blocks. The open string counts in any case of letters, the close string
// as it stands. The last row has two nulls.
struct XmlClearTag {
    const char* open;
    const char* close;
};
inline constexpr XmlClearTag XmlClearTags[] = {
    {"<![CDATA[", "]]>"}, {"<PRE>", "</PRE>"}, {"<Script>", "</Script>"},
    {"<!--", "-->"},      {"<!DOCTYPE", ">"},  {nullptr, nullptr},
};

enum XmlTokenType : int32_t {
    XmlTokenText,         // a bare word
    XmlTokenQuoted,       // with its quotes
    XmlTokenTagStart,     // <
    XmlTokenTagEnd,       // </
    XmlTokenClose,        // >
    XmlTokenEquals,       // =
    XmlTokenDeclaration,  // <?
    XmlTokenShortClose,   // />
    XmlTokenClear,        // an open string of XmlClearTags
    XmlTokenError,        // the end of the text, or a quote without a mate
};

struct XmlToken {
    const char* start = nullptr;
    int32_t length = 0;
    XmlTokenType type = XmlTokenError;

    std::string_view View() const { return {start, static_cast<size_t>(length)}; }
};

// What a byte may be in a token.
namespace xml_bytes {

enum : uint8_t { Blank = 1, EndsWord = 2, BeginsNoWord = 4, Slash = 8, FollowsInClearTag = 16 };

constexpr std::array<uint8_t, 256> MakeClasses() {
    std::array<uint8_t, 256> classes{};
    const auto add = [&classes](std::string_view bytes, int kind) {
        for (const char ch : bytes) {
            uint8_t& entry = classes[static_cast<uint8_t>(ch)];
            entry = static_cast<uint8_t>(entry | kind);
        }
    };
    add(" \t\n\r", Blank | EndsWord | BeginsNoWord);
    add({"\0<=>", 4}, EndsWord | BeginsNoWord);
    add("\"'", BeginsNoWord);
    add("/", Slash);
    for (const XmlClearTag* row = XmlClearTags; row->open; ++row) {
        const char second[] = {row->open[1], FoldCase(row->open[1])};
        add({second, 2}, FollowsInClearTag);
    }
    return classes;
}
inline constexpr std::array<uint8_t, 256> kClasses = MakeClasses();

inline bool Is(uint8_t kind, char ch) {
    return kClasses[static_cast<uint8_t>(ch)] & kind;
}

// One-sided: what the token holds behind the name does not matter.
inline bool BeginsWith(std::string_view token, std::string_view name) {
    if (token.size() < name.size()) return false;
    for (size_t i = 0; i < name.size(); ++i) {
        if (token[i] != name[i] && FoldCase(token[i]) != FoldCase(name[i])) return false;
    }
    return true;
}

// Whether none of the eight bytes is an angle bracket or a quote. A few others count as quotes as well.
inline bool IsPlain(const char* eight) {
    constexpr uint64_t kOnes = 0x0101010101010101u;
    const auto holdsZero = [](uint64_t bytes) { return (bytes - kOnes) & ~bytes & kOnes * 0x80; };
    uint64_t bytes;
    std::memcpy(&bytes, eight, sizeof bytes);
    const uint64_t brackets = (bytes | kOnes * ('<' ^ '>')) ^ kOnes * '>';
    const uint64_t quotes = (bytes & kOnes * static_cast<uint8_t>(~('"' ^ '\''))) ^ kOnes * ('"' & '\'');
    return (holdsZero(brackets) | holdsZero(quotes)) == 0;
}

}  // namespace xml_bytes

class XmlScanner {
public:
    XmlScanner(const char* text, size_t length) : text_(text), end_(text + length), at_(text) {}

    // The next token. Blanks in front of it are passed over, and so is one blank behind a word, and all
    // behind a quoted string. A quote without a mate stays where it is.
    XmlToken Next();

    // For a run of words, of which only the two ends matter: passes over the words that come next.
    void SkipWords();

    // The table row of the XmlTokenClear that came last.
    const XmlClearTag& ClearTag() const { return *clearTag_; }

    // Takes what comes up to the first `close`, and that as well. False, and nothing taken, when there is
    // none.
    bool TakeUpTo(std::string_view close, std::string_view& value);

    // Takes exactly this name and the ">" right behind it, if that is what stands here and what Next would
    // make of it.
    bool TakeNameAndClose(std::string_view name);

    bool MetUnmatchedQuote() const { return unmatchedQuote_; }

    // Bytes read.
    size_t Index() const { return static_cast<size_t>(at_ - text_); }

private:
    XmlToken Take(XmlTokenType type, int32_t length) {
        const char* start = at_;
        at_ += length;
        return {start, length, type};
    }
    void SkipBlanks() {
        const char* at = at_;
        while (xml_bytes::Is(xml_bytes::Blank, *at))
            ++at;
        at_ = at;
    }
    bool BeginsWord() const {
        return !xml_bytes::Is(xml_bytes::BeginsNoWord, *at_) && !(at_[0] == '/' && at_[1] == '>');
    }
    static const char* WordEnd(const char* at);
    XmlToken TakeWord();
    XmlToken TakeMark();
    XmlToken TakeQuoted();
    XmlToken TakeTagOpening();

    const char* text_;
    const char* end_;  // at the 0
    const char* at_;
    const XmlClearTag* clearTag_ = nullptr;
    bool unmatchedQuote_ = false;
};

inline XmlToken XmlScanner::Next() {
    SkipBlanks();
    using namespace xml_bytes;
    return Is(BeginsNoWord | Slash, *at_) ? TakeMark() : TakeWord();
}

inline const char* XmlScanner::WordEnd(const char* at) {
    using namespace xml_bytes;
    for (;; ++at) {
        while (!Is(EndsWord | Slash, *at))
            ++at;
        if (*at != '/' || at[1] == '>') return at;
    }
}

// Words that hold nothing of interest go by eights, with the blanks and the "=" between them.
inline void XmlScanner::SkipWords() {
    using namespace xml_bytes;
    for (SkipBlanks(); BeginsWord(); SkipBlanks()) {
        const char* at = at_;
        while (end_ - at >= 8 && IsPlain(at))
            at += 8;
        const bool insideWord = at == at_ || !Is(EndsWord, at[-1]);
        at_ = insideWord ? WordEnd(at) : at;
    }
}

inline XmlToken XmlScanner::TakeWord() {
    const XmlToken word = Take(XmlTokenText, static_cast<int32_t>(WordEnd(at_) - at_));
    if (xml_bytes::Is(xml_bytes::Blank, *at_)) ++at_;
    return word;
}

inline XmlToken XmlScanner::TakeMark() {
    switch (*at_) {
        case '=': return Take(XmlTokenEquals, 1);
        case '>': return Take(XmlTokenClose, 1);
        case '/': return at_[1] == '>' ? Take(XmlTokenShortClose, 2) : TakeWord();
        case '<': return TakeTagOpening();
        case '\0': return Take(XmlTokenError, 0);
        default: return TakeQuoted();
    }
}

inline XmlToken XmlScanner::TakeQuoted() {
    const void* mate = std::memchr(at_ + 1, *at_, static_cast<size_t>(end_ - at_ - 1));
    if (!mate) {
        unmatchedQuote_ = true;
        return {at_, 0, XmlTokenError};
    }
    const XmlToken quoted =
        Take(XmlTokenQuoted, static_cast<int32_t>(static_cast<const char*>(mate) + 1 - at_));
    SkipBlanks();
    return quoted;
}

inline XmlToken XmlScanner::TakeTagOpening() {
    if (at_[1] == '/') return Take(XmlTokenTagEnd, 2);
    if (at_[1] == '?') return Take(XmlTokenDeclaration, 2);
    if (xml_bytes::Is(xml_bytes::FollowsInClearTag, at_[1])) {
        for (clearTag_ = XmlClearTags; clearTag_->open; ++clearTag_) {
            const std::string_view open = clearTag_->open;
            if (xml_bytes::BeginsWith({at_, static_cast<size_t>(end_ - at_)}, open)) {
                return Take(XmlTokenClear, static_cast<int32_t>(open.size()));
            }
        }
    }
    return Take(XmlTokenTagStart, 1);
}

inline bool XmlScanner::TakeUpTo(std::string_view close, std::string_view& value) {
    const std::string_view rest(at_, static_cast<size_t>(end_ - at_));
    const size_t length = rest.find(close);
    if (length == std::string_view::npos) return false;
    value = rest.substr(0, length);
    at_ += length + close.size();
    return true;
}

inline bool XmlScanner::TakeNameAndClose(std::string_view name) {
    if (static_cast<size_t>(end_ - at_) <= name.size() || at_[name.size()] != '>') return false;
    if (name.back() == '/' || std::memcmp(at_, name.data(), name.size()) != 0) return false;
    at_ += name.size() + 1;
    return true;
}
