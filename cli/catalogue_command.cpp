#include <algorithm>
#include <iomanip>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/catalogue_file.h"
#include "cli/commands.h"
#include "cli/text_encoding.h"
#include "support/file_objects.h"

namespace {

using Json = nlohmann::ordered_json;
using Records = std::vector<const CScriptRecord*>;

constexpr size_t kLineWidth = 96;
constexpr size_t kIndent = 6;

std::string Shown(const CString& text) {
    return ToUtf8({text.GetString(), static_cast<size_t>(text.GetLength())});
}

std::string VersionOrNone(const CString& text) {
    return text == "-1" ? "-" : Shown(text);
}

std::string Joined(const CStringArray& names) {
    std::string text;
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        text += (i > 0 ? ", " : "") + Shown(names[i]);
    return text;
}

// The words of a text in lines of a readable width. Runs of blanks, which stand where the file had its line
// ends, count as one.
void WriteWrapped(const std::string& text, std::ostream& out) {
    std::istringstream words(text);
    const std::string margin(kIndent, ' ');
    size_t width = 0;
    for (std::string word; words >> word;) {
        const bool fits = width > 0 && width + 1 + word.size() <= kLineWidth;
        out << (fits ? " " : (width > 0 ? "\n" : "") + margin) << word;
        width = (fits ? width + 1 : kIndent) + word.size();
    }
    if (width > 0) out << '\n';
}

CString ActionName(const CScriptAction& action) {
    return action.name.IsEmpty() ? action.filename : action.name;
}

void WriteScript(const CScriptRecord& script, size_t nameWidth, std::ostream& out) {
    out << "  " << std::left << std::setw(static_cast<int>(nameWidth)) << Shown(script.name) << "  version "
        << std::setw(4) << VersionOrNone(script.vers) << "  date " << std::setw(8)
        << VersionOrNone(script.date) << "  " << Shown(script.filename) << '\n';
    WriteWrapped(Shown(script.desc), out);
    std::string actions;
    for (const CScriptAction& action : script.actions)
        actions += (actions.empty() ? "" : ", ") + Shown(ActionName(action));
    if (!actions.empty()) WriteWrapped("actions: " + actions, out);
    if (!script.needs.IsEmpty()) WriteWrapped("needs: " + Joined(script.needs), out);
}

// Scripts under one heading, in the order of the file.
struct Group {
    std::string heading;
    Records scripts;
};

// Users are offered the scripts of one type only; the others come last.
std::vector<Group> GroupsOf(const Records& scripts) {
    std::vector<Group> groups;
    std::map<std::string, size_t> places;
    for (const bool offered : {true, false}) {
        for (const CScriptRecord* script : scripts) {
            if ((script->type == "USER") != offered) continue;
            const std::string heading =
                Shown(script->scriptClass) + (offered ? "" : " (" + Shown(script->type) + ", not offered)");
            const auto [place, isNew] = places.try_emplace(heading, groups.size());
            if (isNew) groups.push_back({heading, {}});
            groups[place->second].scripts.push_back(script);
        }
    }
    return groups;
}

void WriteText(const CTemplateManager& catalogue, const std::string& file, const Records& scripts,
               std::ostream& out) {
    const std::vector<Group> groups = GroupsOf(scripts);
    out << file << ": " << Shown(catalogue.name) << ", version " << Shown(catalogue.version) << ", type "
        << Shown(catalogue.type) << ", date " << Shown(catalogue.date) << ", engine "
        << Shown(catalogue.engineReq) << '\n';
    out << scripts.size() << (scripts.size() == 1 ? " script" : " scripts") << " in " << groups.size()
        << (groups.size() == 1 ? " class\n" : " classes\n");
    size_t nameWidth = 0;
    for (const CScriptRecord* script : scripts)
        nameWidth = std::max(nameWidth, Shown(script->name).size());
    for (const Group& group : groups) {
        out << '\n' << group.heading << '\n';
        for (const CScriptRecord* script : group.scripts)
            WriteScript(*script, nameWidth, out);
    }
}

Json ScriptJson(const CTemplateManager& catalogue, const CScriptRecord& script) {
    Json json = {{"id", Shown(script.id)},
                 {"name", Shown(script.name)},
                 {"class", Shown(script.scriptClass)},
                 {"type", Shown(script.type)},
                 {"file", Shown(script.filename)},
                 {"template", nullptr},
                 {"version", Shown(script.vers)},
                 {"date", Shown(script.date)},
                 {"description", Shown(script.desc)},
                 {"actions", Json::array()},
                 {"needs", Json::array()}};
    CString path;
    if (catalogue.GetFile(path, script.name, true)) json["template"] = Shown(path);
    for (const CScriptAction& action : script.actions) {
        json["actions"].push_back({{"name", Shown(action.name)},
                                   {"file", Shown(action.filename)},
                                   {"description", Shown(action.text)}});
    }
    for (INT_PTR i = 0; i < script.needs.GetSize(); ++i)
        json["needs"].push_back(Shown(script.needs[i]));
    return json;
}

void WriteJson(const CTemplateManager& catalogue, const std::string& file, const Records& scripts,
               std::ostream& out) {
    Json document = {{"file", ToUtf8(file)},          {"name", Shown(catalogue.name)},
                     {"type", Shown(catalogue.type)}, {"version", Shown(catalogue.version)},
                     {"date", Shown(catalogue.date)}, {"engine", Shown(catalogue.engineReq)},
                     {"base", Shown(catalogue.base)}, {"directories", Json::array()},
                     {"classes", Json::array()},      {"scripts", Json::array()}};
    for (const CTemplateDir& directory : catalogue.directories)
        document["directories"].push_back({{"type", Shown(directory.type)}, {"path", Shown(directory.path)}});
    CStringArray classes;
    catalogue.GetClasses(classes, "USER");
    for (INT_PTR i = 1; i < classes.GetSize(); ++i)
        document["classes"].push_back(Shown(classes[i]));
    for (const CScriptRecord* script : scripts)
        document["scripts"].push_back(ScriptJson(catalogue, *script));
    out << document.dump(2) << '\n';
}

Records ScriptsOfClass(const CTemplateManager& catalogue, const std::string& scriptClass) {
    Records scripts;
    for (const CScriptRecord& script : catalogue.records) {
        if (scriptClass.empty() || script.scriptClass.CompareNoCase(scriptClass.c_str()) == 0)
            scripts.push_back(&script);
    }
    return scripts;
}

int SayNoSuchClass(const CTemplateManager& catalogue, const std::string& scriptClass, std::ostream& err) {
    CStringArray classes;
    catalogue.GetClasses(classes, "USER");
    classes.RemoveAt(0);
    err << "brlv: " << scriptClass << ": no script has this class; there are: " << Joined(classes) << '\n';
    return ExitUser;
}

}  // namespace

int RunCatalogue(const std::string& file, const std::string& scriptClass, bool json, Streams streams) {
    std::string path = file.empty() ? kCatalogueName : file;
    if (file_t::DirExist(path.c_str())) path += std::string("/") + kCatalogueName;
    CTemplateManager catalogue;
    if (const int failed = LoadCatalogue(catalogue, path, path, streams.err)) return failed;
    const Records scripts = ScriptsOfClass(catalogue, scriptClass);
    if (scripts.empty() && !scriptClass.empty()) return SayNoSuchClass(catalogue, scriptClass, streams.err);
    if (json) {
        WriteJson(catalogue, path, scripts, streams.out);
    } else {
        WriteText(catalogue, path, scripts, streams.out);
    }
    return ExitOk;
}
