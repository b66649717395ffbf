#include <algorithm>
#include <array>
#include <iomanip>
#include <map>

#include "catalogue/script_operations.h"
#include "cli/project_actions.h"
#include "cli/text_encoding.h"
#include "manager/update_list.h"

namespace {

struct Row {
    std::string mark;
    std::string file;
    std::string version;
    std::string date;
    std::string name;
};

std::string Shown(const CString& text) {
    return ToUtf8(text.GetString());
}

std::string VersionOrNone(const CString& text) {
    return text == "-1" ? "-" : Shown(text);
}

void WriteRow(const Row& row, const std::array<size_t, 3>& widths, std::ostream& out) {
    out << "  " << row.mark << ' ' << std::left << std::setw(static_cast<int>(widths[0])) << row.file << "  "
        << std::setw(static_cast<int>(widths[1])) << row.version << "  "
        << std::setw(static_cast<int>(widths[2])) << row.date << "  " << row.name << '\n';
}

void WriteTable(const std::vector<Row>& rows, std::ostream& out) {
    std::array<size_t, 3> widths{};
    for (const Row& row : rows) {
        widths[0] = std::max(widths[0], row.file.size());
        widths[1] = std::max(widths[1], row.version.size());
        widths[2] = std::max(widths[2], row.date.size());
    }
    for (const Row& row : rows)
        WriteRow(row, widths, out);
}

std::string Remark(const UpdateEntry& entry) {
    return "  (the template has version " + VersionOrNone(entry.original.ver) + ", date " +
           VersionOrNone(entry.original.date) + ")";
}

Row RowOf(const ProjectScript& script, const std::map<CString, UpdateEntry>& updates) {
    ScriptInfo info;
    GetScriptInfo(script.include, info.ver, info.date, false);
    Row row{std::string(1, LocationMark(LocateScript(script.include))), Shown(script.include),
            VersionOrNone(info.ver), VersionOrNone(info.date),
            script.inCatalogue ? Shown(script.catalogueName) : "-"};
    const auto update = updates.find(script.include);
    if (update != updates.end()) row.name += Remark(update->second);
    return row;
}

}  // namespace

void ShowProject(const ProjectSession& session, const std::string& shownFolder, std::ostream& out) {
    const CTemplateManager& catalogue = session.Catalogue();
    const std::vector<ProjectScript> scripts = session.Scripts();
    out << shownFolder << ": " << session.MainScriptName() << " includes " << scripts.size()
        << (scripts.size() == 1 ? " script" : " scripts") << "; templates: " << Shown(catalogue.name) << ' '
        << Shown(catalogue.version) << '\n';
    if (scripts.empty()) return;
    std::map<CString, UpdateEntry> updates;
    for (const UpdateEntry& entry : ListUpdates(catalogue, false))
        updates.emplace(entry.include, entry);
    std::vector<Row> rows{{" ", "FILE", "VERSION", "DATE", "NAME"}};
    for (const ProjectScript& script : scripts)
        rows.push_back(RowOf(script, updates));
    WriteTable(rows, out);
    out << "* has a copy in the project   ? is not there\n";
}
