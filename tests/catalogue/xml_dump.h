#pragma once

#include <string>

#include "catalogue/xml_reader.h"

// The content of an element in one line, in the order of its items: "@a=v" and "@a" for attributes,
// "name{...}" and for a declaration "?name{...}" for elements, "'text'" for text and "[open|value|close]" for
// raw blocks.
inline std::string Dump(const CXmlElement& element) {
    std::string dump;
    int32_t cursor = 0;
    while (const XmlItem* item = element.GetNextItem(cursor)) {
        if (!dump.empty()) dump += ' ';
        switch (item->kind) {
            case XmlItemAttribute:
                dump.append("@").append(item->Attribute().name);
                if (item->Attribute().value) dump.append("=").append(item->Attribute().value);
                break;
            case XmlItemElement:
                dump.append(item->Element().isDeclaration ? "?" : "").append(item->Element().name);
                dump.append("{").append(Dump(item->Element())).append("}");
                break;
            case XmlItemText: dump.append("'").append(item->Text().value).append("'"); break;
            case XmlItemClear:
                dump.append("[").append(item->Clear().openTag).append("|").append(item->Clear().value);
                dump.append("|").append(item->Clear().closeTag).append("]");
                break;
            default: dump.append("kind ").append(std::to_string(item->kind));
        }
    }
    return dump;
}
