#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/commands.h"
#include "cli/script_report.h"
#include "cli/text_encoding.h"

namespace {

using Json = nlohmann::ordered_json;

bool HasValue(const CScriptEntry& entry) {
    return MakeEntryValue(entry.kind) != nullptr;
}

Json Utf8(const CString& text) {
    return ToUtf8({text.GetString(), static_cast<size_t>(text.GetLength())});
}

Json LimitsJson(const CScriptEntry& entry) {
    switch (entry.limitsMode) {
        case LimitsSpin:
            return {{"mode", "spin"},
                    {"min", entry.minValue},
                    {"max", entry.maxValue},
                    {"step", entry.stepValue}};
        case LimitsDrop: return {{"mode", "drop"}};
        case LimitsDropPair: return {{"mode", "drop_pair"}};
        default: return nullptr;
    }
}

Json PlaceJson(const ScriptText& text, const LineIndex& lines, const CScriptEntry& entry) {
    if (entry.textPos == nullptr) return nullptr;
    const long offset = static_cast<long>(entry.textPos - text.Data());
    const TextPlace place = lines.PlaceOf(offset);
    return {{"line", place.line}, {"column", place.column}, {"offset", offset}, {"length", entry.textLen}};
}

Json RecordJson(const ScriptDocument& script, const LineIndex& lines, size_t index) {
    const CScriptEntry& entry = script.Entry(index);
    Json record = {{"place", index + 1}, {"kind", KeywordName(entry.kind)}, {"label", Utf8(entry.label)}};
    record["id"] = entry.id == -1 ? Json(nullptr) : Json(entry.id);
    record["value"] = HasValue(entry) ? Utf8(entry.value) : Json(nullptr);
    record["limits"] = LimitsJson(entry);
    record["items"] = Json::array();
    for (const CString& item : entry.items)
        record["items"].push_back(Utf8(item));
    if (entry.kind == KindEntryText) record["size"] = {{"columns", entry.width}, {"rows", entry.height}};
    record["help"] = Utf8(entry.help);
    record["at"] = PlaceJson(script.Text(), lines, entry);
    return record;
}

void WriteJson(const ScriptDocument& script, const std::string& file, std::ostream& out) {
    const LineIndex lines(script.Text().Data(), script.Text().Size());
    Json document = {{"file", ToUtf8(file)},
                     {"version", script.Header().scriptVersion},
                     {"date", script.Header().scriptDate},
                     {"records", Json::array()}};
    for (size_t i = 0; i < script.List().entries.size(); ++i) {
        document["records"].push_back(RecordJson(script, lines, i));
    }
    out << document.dump(2) << '\n';
}

CString LimitsText(const CScriptEntry& entry) {
    CString text;
    if (entry.limitsMode == LimitsSpin) {
        text.Format("  [%g to %g, step %g]", entry.minValue, entry.maxValue, entry.stepValue);
    } else if (!entry.items.empty()) {
        for (const CString& item : entry.items)
            text += (text.IsEmpty() ? "  [" : ", ") + item;
        text += "]";
    }
    return text;
}

void WriteRecord(const ScriptDocument& script, const LineIndex& lines, size_t index, std::ostream& out) {
    const CScriptEntry& entry = script.Entry(index);
    const std::string id = entry.id == -1 ? "" : "#" + std::to_string(entry.id);
    out << std::left << std::setw(5) << "@" + std::to_string(index + 1) << std::setw(6) << id << std::setw(17)
        << KeywordName(entry.kind) << OneLine(entry.label);
    if (HasValue(entry)) out << " = " << OneLine(entry.value);
    out << LimitsText(entry);
    if (entry.textPos != nullptr) {
        const TextPlace place = lines.PlaceOf(static_cast<long>(entry.textPos - script.Text().Data()));
        out << "  (" << place.line << ':' << place.column << ')';
    }
    out << '\n';
    std::istringstream help(entry.help.GetString());
    for (std::string line; std::getline(help, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        out << std::setw(28) << ""
            << "? " << line << '\n';
    }
}

std::string NumberText(int number) {
    return number == -1 ? "none" : std::to_string(number);
}

void WriteText(const ScriptDocument& script, const std::string& file, std::ostream& out) {
    const LineIndex lines(script.Text().Data(), script.Text().Size());
    const size_t count = script.List().entries.size();
    out << file << ": version " << NumberText(script.Header().scriptVersion) << ", date "
        << NumberText(script.Header().scriptDate) << ", " << count
        << (count == 1 ? " record\n" : " records\n");
    for (size_t i = 0; i < count; ++i)
        WriteRecord(script, lines, i, out);
}

}  // namespace

int RunTags(const std::string& file, bool json, Streams streams) {
    ScriptDocument script;
    if (const int failed = LoadScript(script, file, streams.err)) return failed;
    if (json) {
        WriteJson(script, file, streams.out);
    } else {
        WriteText(script, file, streams.out);
    }
    return ExitOk;
}
