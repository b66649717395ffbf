#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "catalogue/xml_arena.h"
#include "catalogue/xml_names.h"
#include "catalogue/xml_tree.h"

// A root with the memory of its tree. All other elements lie in that memory.
struct XmlTree final : CXmlElement {
    XmlArena memory;
};

// Grows a tree in the order of its text, from strings that it copies. The items of the elements that are
// still open stand on one stack, so that an element gets an array of the right size when it closes, however
// many items it has.
class XmlTreeBuilder {
public:
    explicit XmlTreeBuilder(XmlTree& tree) : memory_(tree.memory), current_(&tree) {}

    // The innermost open element, to which everything is added; at first the root.
    const CXmlElement& Current() const { return *current_; }
    // Its name, empty for the root.
    std::string_view CurrentName() const { return open_.empty() ? std::string_view() : open_.back().name; }

    // Adds a child and opens it.
    void AddElement(std::string_view name, bool isDeclaration) {
        auto* element = memory_.New<CXmlElement>();
        const char* copy = names_.CopyOf(name, memory_);
        element->name = copy;
        element->isDeclaration = isDeclaration ? 1 : 0;
        element->parent = current_;
        AddItem(XmlItemElement, element);
        current_ = element;
        open_.push_back({openItems_.size(), {copy, name.size()}});
    }
    // Without a value the attribute's is null.
    void AddAttribute(std::string_view name) {
        AddItem(XmlItemAttribute, memory_.New<XmlAttribute>(names_.CopyOf(name, memory_), nullptr));
    }
    void AddAttribute(std::string_view name, std::string_view value) {
        AddItem(XmlItemAttribute,
                memory_.New<XmlAttribute>(names_.CopyOf(name, memory_), memory_.CopyOf(value)));
    }
    void AddText(std::string_view value) {
        AddItem(XmlItemText, memory_.New<XmlText>(memory_.CopyOf(value)));
    }
    // `openTag` and `closeTag` are not copied.
    void AddClear(const char* openTag, std::string_view value, const char* closeTag) {
        AddItem(XmlItemClear, memory_.New<XmlClear>(openTag, memory_.CopyOf(value), closeTag));
    }

    // Goes back to the parent. Not for the root.
    void CloseElement() {
        StoreItems(open_.back().firstItem);
        open_.pop_back();
        current_ = current_->parent;
    }
    // Closes all that is open, the root too. Nothing may follow.
    void Finish() {
        while (!open_.empty())
            CloseElement();
        StoreItems(0);
    }

private:
    struct OpenElement {
        size_t firstItem;  // where its items begin among the open ones
        std::string_view name;
    };

    void AddItem(XmlItemKind kind, void* payload) { openItems_.push_back({kind, payload}); }
    void StoreItems(size_t firstItem) {
        const size_t count = openItems_.size() - firstItem;
        current_->items = memory_.CopyOf(openItems_.data() + firstItem, count);
        current_->itemCount = current_->itemCapacity = static_cast<int32_t>(count);
        openItems_.erase(openItems_.end() - static_cast<std::ptrdiff_t>(count), openItems_.end());
    }

    XmlArena& memory_;
    CXmlElement* current_;
    std::vector<XmlItem> openItems_;
    std::vector<OpenElement> open_;  // all but the root
    XmlNames names_;
};
