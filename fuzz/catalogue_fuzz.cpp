// A catalogue of any bytes: the answers by name must be those of a search from the front.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "catalogue/template_catalogue.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

const CScriptRecord& First(const CTemplateManager& catalogue, CString CScriptRecord::*key,
                           const CString& value) {
    return *std::find_if(catalogue.records.begin(), catalogue.records.end(),
                         [&](const CScriptRecord& record) { return record.*key == value; });
}

void AskForRecord(const CTemplateManager& catalogue, const CScriptRecord& record) {
    const CScriptRecord& first = First(catalogue, &CScriptRecord::name, record.name);
    CString answer;
    Require(catalogue.GetDesc(answer, record.name) && answer == first.desc);
    Require(catalogue.GetVers(answer, record.name) && answer == first.vers);
    Require(catalogue.GetFile(answer, record.name, false) && answer == first.filename);
    Require(catalogue.GetNameOfFile(answer, record.filename));
    Require(answer == First(catalogue, &CScriptRecord::filename, record.filename).name);

    const bool hasFolder =
        std::any_of(catalogue.directories.begin(), catalogue.directories.end(),
                    [&](const CTemplateDir& directory) { return directory.type == first.directory; });
    Require(catalogue.GetFile(answer, record.name, true) == hasFolder);

    CScriptRecord copy;
    CStringArray actions;
    Require(catalogue.GetRecord(copy, record.name) && copy.id == first.id);
    Require(catalogue.GetActions(actions, record.name));
    Require(actions.GetSize() == static_cast<INT_PTR>(copy.actions.size()));
}

void AskForType(const CTemplateManager& catalogue, const CString& type) {
    CStringArray classes;
    CStringArray names;
    CStringArray ofClass;
    catalogue.GetClasses(classes, type);
    for (INT_PTR i = 0; i < classes.GetSize(); ++i) {
        for (INT_PTR k = 0; k < i; ++k)
            Require(classes[i].CompareNoCase(classes[k]) != 0);
        catalogue.GetScriptsOfClass(ofClass, type, classes[i]);
        Require(!ofClass.IsEmpty());
    }
    catalogue.GetScripts(names, type);
    Require(!names.IsEmpty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const size_t half = text.find('\n');
    CTemplateManager catalogue;
    catalogue.LoadText(text.c_str(), nullptr);
    // A second load adds to the first.
    if (half != std::string::npos) catalogue.LoadText(text.c_str() + half, nullptr);
    for (const CScriptRecord& record : catalogue.records) {
        AskForRecord(catalogue, record);
        AskForType(catalogue, record.type);
    }
    return 0;
}
