// Patterns against names: the first line of the input is the pattern, the rest the name.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "support/file_names.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void CheckName(const std::string& text) {
    CFName name(text.c_str());
    const std::string full = name.GetFullName();
    Require(full.find("\\\\") == std::string::npos);
    Require(full.ends_with(name.GetShortName()));
    Require(std::strchr(name.GetShortName(), '\\') == nullptr);
    Require(!name.GetExt() || full.ends_with("." + std::string(name.GetExt())));
    Require(std::string(name.GetShortName()).starts_with(name.GetNameNoExt()));
    Require(name.CmpName(full.c_str()) == 0);
    dname_t dir;
    dir.SetPathFromName(text.c_str());
    Require(full.starts_with(dir.GetPath()) && (!name.GetDir() || std::strcmp(dir, name.GetDir()) == 0));
    name.SetExt(nullptr);
    Require(name.GetExt() == nullptr);
}

void CheckPattern(const std::string& pattern, const std::string& name) {
    CFileFinder finder;
    const int opened = finder.OpenFinder(pattern.c_str());
    const bool matches = finder.TestName(name.c_str()) != 0;
    Require(opened || !matches);
    // Case does not count, neither in the pattern nor in the name.
    std::string upperName = name;
    for (char& ch : upperName)
        ch = ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 32) : ch;
    Require((finder.TestName(upperName.c_str()) != 0) == matches);
    // A name without wildcards is a pattern that finds itself, unless it has a directory.
    if (!opened || pattern.find_first_of("*?\\/:") != std::string::npos) return;
    Require(finder.TestName(pattern.c_str()) != 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string input(reinterpret_cast<const char*>(data), size);
    const size_t end = input.find('\n');
    const std::string pattern = input.substr(0, end).c_str();
    const std::string name = end == std::string::npos ? "" : input.substr(end + 1).c_str();
    CheckName(pattern);
    CheckName(name);
    CheckPattern(pattern, name);
    return 0;
}
