#pragma once

#include <cstdint>
#include <memory>

// The tree that CXmlReader makes of a text. All strings are terminated by a 0 and hold bytes as they stood in
// the text: no entities are resolved. The tree owns everything in it but the two strings of XmlClear that are
// not its own, and goes as a whole, by CXmlElement::Free on its root. Nobody changes it once it has been
// read.

enum XmlItemKind : int32_t {
    XmlItemNone = 0,  // no payload; not found in a tree
    XmlItemAttribute = 1,
    XmlItemElement = 2,
    XmlItemText = 3,
    XmlItemClear = 4,
};

struct XmlAttribute {
    const char* name;
    const char* value;  // with its quotes, if it had any; null for an attribute written without "="
};

// A run of element text, from its first to its last byte that is no blank.
struct XmlText {
    const char* value;
};

// A raw block, such as a comment, in which nothing was looked at.
struct XmlClear {
    const char* openTag;  // of the constant table XmlClearTags, as is closeTag
    const char* value;    // all bytes between the two
    const char* closeTag;
};

class CXmlElement;

struct XmlItem {
    XmlItemKind kind;
    void* payload;  // the record of that kind

    // Each only for an item of that kind.
    const XmlAttribute& Attribute() const { return *static_cast<const XmlAttribute*>(payload); }
    const CXmlElement& Element() const { return *static_cast<const CXmlElement*>(payload); }
    const XmlText& Text() const { return *static_cast<const XmlText*>(payload); }
    const XmlClear& Clear() const { return *static_cast<const XmlClear*>(payload); }
};

// One element. The root is one as well, without a name; it holds what stands at the top of the text.
class CXmlElement {
public:
    CXmlElement() = default;
    CXmlElement(const CXmlElement&) = delete;
    CXmlElement& operator=(const CXmlElement&) = delete;

    // Frees the whole tree of this root, the root included. Takes no other element; null is let pass.
    static void Free(CXmlElement* root);

    // The item at the cursor, which moves on by one; null behind the last item. Start with a cursor of 0. The
    // item lives as long as the tree.
    const XmlItem* GetNextItem(int32_t& cursor) const {
        return cursor < itemCount ? &items[cursor++] : nullptr;
    }

    const char* name = nullptr;  // as written, null for the root only
    int32_t itemCount = 0;
    int32_t itemCapacity = 0;
    int32_t isDeclaration = 0;      // 1 for an element opened by "<?"
    XmlItem* items = nullptr;       // attributes, children, texts and raw blocks, in the order of the text
    CXmlElement* parent = nullptr;  // null for the root
};

struct XmlTreeFree {
    void operator()(CXmlElement* root) const { CXmlElement::Free(root); }
};
using XmlTreePtr = std::unique_ptr<CXmlElement, XmlTreeFree>;
