#include "catalogue/template_catalogue_walk.h"

#include <cstring>
#include <string_view>
#include <vector>

namespace {

// An attribute or a text element by name, and the field that takes its value.
template <class Record>
struct Field {
    std::string_view name;
    CString Record::*member;
};

constexpr Field<CTemplateManager> kHeaderAttributes[] = {
    {"name", &CTemplateManager::name},       {"type", &CTemplateManager::type},
    {"version", &CTemplateManager::version}, {"engineReq", &CTemplateManager::engineReq},
    {"date", &CTemplateManager::date},
};
constexpr Field<CTemplateDir> kDirectoryAttributes[] = {
    {"type", &CTemplateDir::type},
    {"path", &CTemplateDir::path},
};
constexpr Field<CScriptRecord> kScriptAttributes[] = {
    {"type", &CScriptRecord::type},
    {"name", &CScriptRecord::name},
    {"directory", &CScriptRecord::directory},
    {"filename", &CScriptRecord::filename},
    {"id", &CScriptRecord::id},
    {"vers", &CScriptRecord::vers},
    {"date", &CScriptRecord::date},
};
constexpr Field<CScriptAction> kActionAttributes[] = {
    {"name", &CScriptAction::name},
    {"filename", &CScriptAction::filename},
};

CString StringOf(std::string_view text) {
    return {text.data(), static_cast<int>(text.size())};
}

// Single quotes are part of a value; only double ones are cut off, all of them.
std::string_view TrimQuotes(const char* value) {
    std::string_view text(value ? value : "");
    while (!text.empty() && text.front() == '"')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == '"')
        text.remove_suffix(1);
    return text;
}

template <class Record, size_t count>
void TakeAttribute(const XmlAttribute& attribute, const Field<Record> (&fields)[count], Record& record) {
    const std::string_view name(attribute.name);
    for (const auto& field : fields) {
        if (field.name == name) record.*field.member = StringOf(TrimQuotes(attribute.value));
    }
}

bool IsNamed(const CXmlElement& element, const char* name) {
    return std::strcmp(element.name, name) == 0;
}

void ReadDirectory(const CXmlElement& element, CTemplateDir& directory) {
    int32_t cursor = 0;
    while (const XmlItem* item = element.GetNextItem(cursor)) {
        if (item->kind == XmlItemAttribute) TakeAttribute(item->Attribute(), kDirectoryAttributes, directory);
    }
}

void ReadAction(const CXmlElement& element, CScriptAction& action) {
    int32_t cursor = 0;
    while (const XmlItem* item = element.GetNextItem(cursor)) {
        if (item->kind == XmlItemAttribute) TakeAttribute(item->Attribute(), kActionAttributes, action);
        if (item->kind == XmlItemText) action.text = item->Text().value;
    }
}

// A child of a script that holds text alone. Of several runs the last one stays, but each need counts.
void ReadTextElement(const CXmlElement& element, CScriptRecord& record) {
    int32_t cursor = 0;
    while (const XmlItem* item = element.GetNextItem(cursor)) {
        if (item->kind != XmlItemText) continue;
        const char* text = item->Text().value;
        if (IsNamed(element, "class")) record.scriptClass = text;
        if (IsNamed(element, "desc")) record.desc = text;
        if (IsNamed(element, "need")) record.needs.Add(text);
    }
}

void ReadScript(const CXmlElement& element, CScriptRecord& record) {
    int32_t cursor = 0;
    while (const XmlItem* item = element.GetNextItem(cursor)) {
        if (item->kind == XmlItemAttribute) TakeAttribute(item->Attribute(), kScriptAttributes, record);
        if (item->kind != XmlItemElement) continue;
        if (IsNamed(item->Element(), "action")) {
            ReadAction(item->Element(), record.actions.emplace_back());
        } else {
            ReadTextElement(item->Element(), record);
        }
    }
}

struct FoundElements {
    std::vector<const CXmlElement*> directories;
    std::vector<const CXmlElement*> scripts;
};

// Takes the header on its way. Goes down by a list of its own: the depth of a foreign file must not use up
// the call stack.
FoundElements FindElements(const CXmlElement& root, CTemplateManager& catalogue) {
    struct Level {
        const CXmlElement* element;
        int32_t cursor;
    };
    FoundElements found;
    std::vector<Level> levels{{&root, 0}};
    while (!levels.empty()) {
        Level& level = levels.back();
        const XmlItem* item = level.element->GetNextItem(level.cursor);
        if (!item) {
            levels.pop_back();
        } else if (item->kind == XmlItemAttribute) {
            TakeAttribute(item->Attribute(), kHeaderAttributes, catalogue);
        } else if (item->kind == XmlItemElement) {
            const CXmlElement& child = item->Element();
            if (IsNamed(child, "Directory")) {
                found.directories.push_back(&child);
            } else if (IsNamed(child, "Script")) {
                found.scripts.push_back(&child);
            } else {
                levels.push_back({&child, 0});
            }
        }
    }
    return found;
}

}  // namespace

// The lists grow once and to their full size, as a record can't be moved without copying it.
void AppendTemplates(const CXmlElement& root, CTemplateManager& catalogue) {
    const FoundElements found = FindElements(root, catalogue);
    catalogue.directories.reserve(catalogue.directories.size() + found.directories.size());
    for (const CXmlElement* directory : found.directories) {
        ReadDirectory(*directory, catalogue.directories.emplace_back());
    }
    catalogue.records.reserve(catalogue.records.size() + found.scripts.size());
    for (const CXmlElement* script : found.scripts)
        ReadScript(*script, catalogue.records.emplace_back());
}
