// The XML reader over any bytes: the tree must be sound, or the error have a place in the text.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "catalogue/xml_reader.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

bool IsBlank(char ch) {
    return ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n';
}

void CheckText(std::string_view document, std::string_view value) {
    Require(!value.empty() && !IsBlank(value.front()) && !IsBlank(value.back()));
    Require(document.find(value) != std::string_view::npos);
}

void CheckElement(std::string_view document, const CXmlElement& element) {
    Require(element.itemCount <= element.itemCapacity);
    int32_t cursor = 0;
    while (const XmlItem* item = element.GetNextItem(cursor)) {
        switch (item->kind) {
            case XmlItemAttribute: Require(item->Attribute().name[0] != '\0'); break;
            case XmlItemElement:
                Require(item->Element().parent == &element && item->Element().name[0] != '\0');
                CheckElement(document, item->Element());
                break;
            case XmlItemText: CheckText(document, item->Text().value); break;
            case XmlItemClear: Require(!std::strstr(item->Clear().value, item->Clear().closeTag)); break;
            default: std::abort();
        }
    }
    Require(cursor == element.itemCount);
}

void CheckPlace(std::string_view document, const XmlResult& result) {
    Require(XmlErrorText(result.error) != nullptr && result.line > 0 && result.column > 0);
    for (int32_t line = 1; line < result.line; ++line) {
        const size_t end = document.find('\n');
        Require(end != std::string_view::npos);
        document.remove_prefix(end + 1);
    }
    Require(static_cast<size_t>(result.column) <= document.size() + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string document(std::string(reinterpret_cast<const char*>(data), size).c_str());
    XmlResult result;
    const XmlTreePtr tree(CXmlReader::Parse(document.c_str(), &result));
    Require((tree == nullptr) == (result.error != XmlErrorNone));
    if (tree) {
        CheckElement(document, *tree);
    } else {
        CheckPlace(document, result);
    }
    return 0;
}
