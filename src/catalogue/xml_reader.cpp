#include "catalogue/xml_reader.h"

#include <memory>
#include <string_view>

#include "catalogue/xml_scanner.h"
#include "catalogue/xml_tree_builder.h"

using xml_bytes::BeginsWith;

const XmlErrorRow XmlErrorTable[] = {
    {0, "No error"},
    {1, "No XML data"},
    {2, "First token not start tag"},
    {3, "Missing start tag name"},
    {4, "Missing end tag name"},
    {5, "Unmatched quote"},
    {6, "Unmatched end tag"},
    {7, "Unexpected token found"},
    {8, "Invalid tag found"},
    {9, "No elements found"},
    {0, nullptr},
};

const char* XmlErrorText(int32_t code) {
    for (const XmlErrorRow* row = XmlErrorTable; row->text; ++row) {
        if (row->code == code) return row->text;
    }
    return nullptr;
}

namespace {

void SetPlace(XmlResult& result, std::string_view textBefore) {
    result.line = 1;
    result.column = 1;
    for (const char ch : textBefore) {
        ++result.column;
        if (ch != '\n') continue;
        ++result.line;
        result.column = 1;
    }
}

// The state of one parse.
class ElementParser {
public:
    ElementParser(XmlTree& tree, std::string_view text)
        : scanner_(text.data(), text.size()), builder_(tree) {}

    void ParseElement();

    XmlErrorCode Error() const { return error_; }
    size_t Index() const { return scanner_.Index(); }

private:
    // What comes next: the start tag or the content of the current element, what follows its end, or nothing.
    enum class Step { StartTag, Content, Ended, Stop };

    Step ParseStartTag();
    Step ParseContent();
    Step OpenElement(XmlTokenType opener);
    Step ReadEndTag();
    Step FollowEndedElement();
    bool ParseClearTag();

    XmlToken GetNextToken() { return scanner_.Next(); }
    Step Fail(XmlErrorCode code);
    Step Unexpected(const XmlToken& token);

    XmlScanner scanner_;
    XmlTreeBuilder builder_;
    XmlErrorCode error_ = XmlErrorNone;
    XmlToken pendingEndTag_;   // an end tag that did not match the element that read it; of length 0 for none
    XmlToken pendingElement_;  // the name of a start tag that closed the element that read it; likewise
};

// A declaration's closing "?" is no part of its last name or value.
void DropQuestionMark(XmlToken& token) {
    if (token.start[token.length - 1] == '?') --token.length;
}

ElementParser::Step ElementParser::Fail(XmlErrorCode code) {
    error_ = code;
    return Step::Stop;
}

// For a token that has no place where it stands. The end of the text is none of those: it just ends what is
// open.
ElementParser::Step ElementParser::Unexpected(const XmlToken& token) {
    if (token.type != XmlTokenError) return Fail(XmlErrorToken);
    return scanner_.MetUnmatchedQuote() ? Fail(XmlErrorQuote) : Step::Stop;
}

// Reads the root and everything in it. The builder's current element is the one being read, so that nesting
// needs no recursion.
void ElementParser::ParseElement() {
    Step step = Step::Content;
    while (step != Step::Stop) {
        switch (step) {
            case Step::StartTag: step = ParseStartTag(); break;
            case Step::Content: step = ParseContent(); break;
            default: step = FollowEndedElement(); break;
        }
    }
    builder_.Finish();
}

// The attributes, from behind the tag name up to ">" or "/>".
ElementParser::Step ElementParser::ParseStartTag() {
    const bool isDeclaration = builder_.Current().isDeclaration != 0;
    for (;;) {
        XmlToken name = GetNextToken();
        if (name.type == XmlTokenClose) return Step::Content;
        if (name.type == XmlTokenShortClose) return Step::Ended;
        if (name.type != XmlTokenText) return Unexpected(name);

        XmlToken next = GetNextToken();
        while (next.type == XmlTokenText) {
            builder_.AddAttribute(name.View());
            name = next;
            next = GetNextToken();
        }
        if (next.type == XmlTokenEquals) {
            XmlToken value = GetNextToken();
            if (value.type != XmlTokenText && value.type != XmlTokenQuoted) return Unexpected(value);
            if (isDeclaration) DropQuestionMark(value);
            builder_.AddAttribute(name.View(), value.View());
            continue;
        }
        if (next.type != XmlTokenClose && next.type != XmlTokenShortClose) return Unexpected(next);
        if (isDeclaration) DropQuestionMark(name);
        if (name.length > 0) builder_.AddAttribute(name.View());
        return next.type == XmlTokenClose ? Step::Content : Step::Ended;
    }
}

ElementParser::Step ElementParser::ParseContent() {
    const char* run = nullptr;
    const auto closeRun = [this, &run](const char* end) {
        if (!run) return;
        while (xml_bytes::Is(xml_bytes::Blank, end[-1]))
            --end;
        builder_.AddText({run, static_cast<size_t>(end - run)});
        run = nullptr;
    };
    for (;;) {
        const XmlToken token = GetNextToken();
        switch (token.type) {
            case XmlTokenText:
            case XmlTokenQuoted:
            case XmlTokenEquals:
                if (!run) run = token.start;
                scanner_.SkipWords();
                break;
            case XmlTokenTagStart:
            case XmlTokenDeclaration: closeRun(token.start); return OpenElement(token.type);
            case XmlTokenTagEnd: closeRun(token.start); return ReadEndTag();
            case XmlTokenClear:
                closeRun(token.start);
                if (!ParseClearTag()) return Fail(XmlErrorEndTag);
                break;
            default: return Unexpected(token);
        }
    }
}

// Behind "<" or "<?" in content.
ElementParser::Step ElementParser::OpenElement(XmlTokenType opener) {
    const XmlToken name = GetNextToken();
    if (name.type != XmlTokenText) return Fail(XmlErrorStartTagName);
    const std::string_view current = builder_.CurrentName();
    if (!current.empty() && BeginsWith(name.View(), current)) {
        pendingElement_ = name;
        return Step::Ended;
    }
    builder_.AddElement(name.View(), opener == XmlTokenDeclaration);
    return Step::StartTag;
}

// Behind "</" in content. Nearly every end tag names the element that is open; that one is compared on the
// spot.
ElementParser::Step ElementParser::ReadEndTag() {
    const std::string_view current = builder_.CurrentName();
    if (!current.empty() && scanner_.TakeNameAndClose(current)) return Step::Ended;
    const XmlToken name = GetNextToken();
    if (name.type != XmlTokenText) return Fail(XmlErrorEndTagName);
    if (GetNextToken().type != XmlTokenClose) return Fail(XmlErrorEndTagName);
    if (current.empty()) return Fail(XmlErrorEndTag);
    if (!BeginsWith(name.View(), current)) pendingEndTag_ = name;
    return Step::Ended;
}

// The tag that ended an element may end its parents as well: an end tag goes up to the element that it names,
// a start tag past all parents whose names it begins with, to become the next sibling of the last of them.
ElementParser::Step ElementParser::FollowEndedElement() {
    builder_.CloseElement();
    const std::string_view name = builder_.CurrentName();
    if (pendingEndTag_.length > 0) {
        if (name.empty()) return Fail(XmlErrorEndTag);
        if (BeginsWith(pendingEndTag_.View(), name)) pendingEndTag_ = {};
        return Step::Ended;
    }
    if (pendingElement_.length == 0) return Step::Content;
    if (!name.empty() && BeginsWith(pendingElement_.View(), name)) return Step::Ended;
    builder_.AddElement(pendingElement_.View(), false);
    pendingElement_ = {};
    return Step::StartTag;
}

// Behind the open string of a raw block. False when the block never closes.
bool ElementParser::ParseClearTag() {
    const XmlClearTag& tag = scanner_.ClearTag();
    std::string_view value;
    if (!scanner_.TakeUpTo(tag.close, value)) return false;
    builder_.AddClear(tag.open, value, tag.close);
    return true;
}

}  // namespace

CXmlElement* CXmlReader::Parse(const char* text, XmlResult* result) {
    const std::string_view whole(text);
    std::unique_ptr<XmlTree> tree;
    XmlErrorCode error = XmlErrorNoData;
    size_t index = 0;
    if (whole.size() <= kLongestText) {
        tree = std::make_unique<XmlTree>();
        ElementParser parser(*tree, whole);
        parser.ParseElement();
        error = parser.Error();
        index = parser.Index();
    }
    if (result) {
        result->error = error;
        if (error != XmlErrorNone) SetPlace(*result, whole.substr(0, index));
    }
    return error == XmlErrorNone ? tree.release() : nullptr;
}
