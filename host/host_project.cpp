#include "host/host_project.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <string_view>

#include "host/host_path.h"
#include "support/path_limit.h"

namespace {

constexpr size_t kLongestName = 63;  // names travel in buffers of 64 bytes

// Thrown and caught in this file alone.
struct Fault {
    std::string text;
};

[[noreturn]] void Refuse(std::string text) {
    throw Fault{std::move(text)};
}

std::string Quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

// The index that is told in "flag 3" or "skill 20".
size_t ReadIndex(std::string_view key, std::string_view word, size_t count) {
    size_t number = 0;
    if (!ReadNumber(Trimmed(key.substr(word.size())), number) || number < 1 || number > count)
        Refuse(Quoted(key) + " has no number from 1 to " + std::to_string(count));
    return number - 1;
}

float ReadSkill(std::string_view value) {
    float number = 0;
    if (!ReadNumber(value, number)) Refuse(Quoted(value) + " is no number");
    return number;
}

uint32_t ReadFlags(std::string_view value) {
    uint32_t flags = 0;
    while (!value.empty()) {
        const size_t blank = value.find_first_of(" \t");
        const std::string_view word = value.substr(0, blank);
        flags |= 1u << ReadIndex(word, "", kHostFlags);
        value = blank == std::string_view::npos ? std::string_view() : Trimmed(value.substr(blank));
    }
    return flags;
}

std::string CheckedName(std::string_view name) {
    if (name.empty()) Refuse("a name is missing");
    if (name.size() > kLongestName) Refuse("the name " + Quoted(name) + " has more than 63 bytes");
    return std::string(name);
}

class Reader {
public:
    explicit Reader(const std::string& folder) : folder_(folder) {}

    void Take(const IniText::Line& line) {
        if (line.kind == IniText::Line::Section) BeginSection(line.value);
        if (line.kind == IniText::Line::Value) TakeValue(line);
    }

    HostProject Finish() {
        if (project_.folder.empty()) Refuse("[project] tells no folder");
        if (project_.baseFolder.empty()) Refuse("[project] tells no base folder");
        if (project_.templateFolder.empty()) Refuse("[project] tells no template folder");
        return std::move(project_);
    }

private:
    enum Section { None, Project, PathsA, PathsB, Action, Entity };

    void BeginSection(const std::string& title) {
        if (!sections_.insert(title).second) Refuse("a second [" + title + "]");
        keys_.clear();
        const std::string_view words = title;
        if (title == "project") {
            section_ = Project;
        } else if (title == "paths a") {
            section_ = PathsA;
        } else if (title == "paths b") {
            section_ = PathsB;
        } else if (words.starts_with("action ")) {
            section_ = Action;
            project_.actions.emplace_back().name = CheckedName(Trimmed(words.substr(7)));
        } else if (words.starts_with("entity ")) {
            section_ = Entity;
            project_.entities.emplace_back().name = CheckedName(Trimmed(words.substr(7)));
        } else {
            Refuse("an unknown section [" + title + "]");
        }
    }

    void TakeValue(const IniText::Line& line) {
        if (section_ == None) Refuse("a line in front of the first section");
        if (section_ == PathsA || section_ == PathsB) {
            if (!line.key.empty()) Refuse("a name without \"=\" is meant to stand here");
            (section_ == PathsA ? project_.pathsA : project_.pathsB).push_back(CheckedName(line.value));
            return;
        }
        if (line.key.empty()) Refuse("a key with \"=\" and its value is meant to stand here");
        if (line.value.empty()) Refuse(Quoted(line.key) + " has no value");
        if (line.key != "search" && !keys_.insert(line.key).second) Refuse("a second " + Quoted(line.key));
        if (section_ == Project) TakeProjectValue(line.key, line.value);
        if (section_ == Action) TakeActionValue(project_.actions.back(), line.key, line.value);
        if (section_ == Entity) TakeEntityValue(project_.entities.back(), line.key, line.value);
    }

    void TakeProjectValue(std::string_view key, std::string_view value) {
        if (key == "folder") {
            project_.folder = FullPath(value);
        } else if (key == "main") {
            project_.mainScript = FullPath(value);
        } else if (key == "base") {
            project_.baseFolder = FullPath(value);
        } else if (key == "templates") {
            project_.templateFolder = value;
        } else if (key == "search") {
            project_.searchFolders.push_back(FullPath(value));
        } else {
            Refuse("an unknown key " + Quoted(key));
        }
    }

    void TakeActionValue(HostAction& action, std::string_view key, std::string_view value) {
        if (key == "file") {
            const bool bare = value.find_first_of("\\/:") == std::string_view::npos;
            action.file = bare ? std::string(value) : FullPath(value);
        } else if (key.starts_with("flag ")) {
            action.flagNames[ReadIndex(key, "flag ", kHostFlags)] = value;
        } else if (key.starts_with("skill ")) {
            action.skillNames[ReadIndex(key, "skill ", kHostSkills)] = value;
        } else {
            Refuse("an unknown key " + Quoted(key));
        }
    }

    void TakeEntityValue(HostEntity& entity, std::string_view key, std::string_view value) {
        if (key == "action") {
            entity.action = CheckedName(value);
        } else if (key == "flags") {
            entity.flags = ReadFlags(value);
        } else if (key.starts_with("skill ")) {
            entity.skills[ReadIndex(key, "skill ", kHostSkills)] = ReadSkill(value);
        } else {
            Refuse("an unknown key " + Quoted(key));
        }
    }

    std::string FullPath(std::string_view value) const {
        std::string path = PathFrom(folder_, value);
        if (path.size() >= kPathSize) Refuse("the path " + Quoted(path) + " has more than 259 bytes");
        return path;
    }

    std::string folder_;
    HostProject project_;
    Section section_ = None;
    std::set<std::string> sections_;
    std::set<std::string> keys_;
};

// The shortest text that reads back as the same number.
std::string SkillText(float skill) {
    char text[64];
    return {text, std::to_chars(text, text + sizeof text, skill).ptr};
}

std::string FlagsText(uint32_t flags) {
    std::string text;
    for (int flag = 0; flag < kHostFlags; ++flag) {
        if (flags >> flag & 1) text += (text.empty() ? "" : " ") + std::to_string(flag + 1);
    }
    return text;
}

void WriteEntity(const HostEntity& before, const HostEntity& after, IniText& ini) {
    const std::string section = "entity " + after.name;
    if (after.action != before.action) ini.Set(section, "action", after.action);
    if (after.flags != before.flags) ini.Set(section, "flags", FlagsText(after.flags));
    for (size_t i = 0; i < after.skills.size(); ++i) {
        if (after.skills[i] == before.skills[i]) continue;
        ini.Set(section, "skill " + std::to_string(i + 1), SkillText(after.skills[i]));
    }
}

}  // namespace

std::optional<HostProject> ReadProject(const IniText& ini, const std::string& folder, ProjectError& error) {
    Reader reader(folder);
    int number = 0;
    try {
        for (const IniText::Line& line : ini.Lines()) {
            ++number;
            reader.Take(line);
        }
        number = 0;
        return reader.Finish();
    } catch (Fault& fault) {
        error = {number, std::move(fault.text)};
        return std::nullopt;
    }
}

void WriteChanges(const HostProject& before, const HostProject& after, IniText& ini) {
    if (after.mainScript != before.mainScript) ini.Set("project", "main", after.mainScript);
    for (const HostEntity& entity : after.entities) {
        const auto old =
            std::find_if(before.entities.begin(), before.entities.end(),
                         [&entity](const HostEntity& other) { return other.name == entity.name; });
        if (old != before.entities.end()) WriteEntity(*old, entity, ini);
    }
}
