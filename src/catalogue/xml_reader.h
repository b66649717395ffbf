#pragma once

#include <cstddef>
#include <cstdint>

#include "catalogue/xml_tree.h"

// Reads one text into a tree, without validating. The grammar is looser than XML: end tags may be missing, an
// attribute needs no value and a value no quotes, and the end of the text closes what is open. It is stricter
// too: a bare ">" in element text is an error, and a child can't begin with its parent's name. Bytes stand
// for themselves; there are no entities. Names are compared without regard to the case of ASCII letters.

enum XmlErrorCode : int32_t {
    XmlErrorNone = 0,
    XmlErrorNoData = 1,
    XmlErrorStartTagName = 3,
    XmlErrorEndTagName = 4,
    XmlErrorQuote = 5,
    XmlErrorEndTag = 6,
    XmlErrorToken = 7,
};

// Codes and their words, some of which this reader never raises. The last row has a null text.
struct XmlErrorRow {
    int32_t code;
    const char* text;
};
extern const XmlErrorRow XmlErrorTable[];

// The words of a code; null for a code that is not in the table.
const char* XmlErrorText(int32_t code);

// How a parse went. `line` and `column` are set with an error only, and are counted from 1, in bytes: where
// the reader stood, which is right behind the token that it could not take, or at a quote without a mate.
struct XmlResult {
    int32_t error = XmlErrorNone;
    int32_t line = 0;
    int32_t column = 0;
};

class CXmlReader {
public:
    static constexpr size_t kLongestText = 0x7FFFFFFE;

    // Reads `text` up to its 0; what the tree holds is copied, so that the text may go as soon as this
    // returns. The root is the caller's, who gives it to CXmlElement::Free. Null on an error. `result` may be
    // null. A text longer than kLongestText is refused with code 1 at its beginning. Depth of nesting costs
    // memory, not call stack.
    static CXmlElement* Parse(const char* text, XmlResult* result);
};
