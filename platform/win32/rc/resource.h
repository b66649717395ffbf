#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

// A resource script and what becomes of it: the same bytes that windres makes.
//
// Taken are: ICON with a file, DIALOG with STYLE, EXSTYLE, CAPTION, FONT and CONTROL items, VERSIONINFO with
// blocks, comments of both kinds, numbers in decimal and hexadecimal with | and NOT. Anything else is an
// error.

using Bytes = std::vector<uint8_t>;

struct Resource {
    uint16_t type;
    uint16_t name;
    Bytes data;
};

inline constexpr uint16_t kIconType = 3;
inline constexpr uint16_t kDialogType = 5;
inline constexpr uint16_t kIconGroupType = 14;
inline constexpr uint16_t kVersionType = 16;

// What is wrong, with the line it is on.
class ResourceError : public std::runtime_error {
public:
    ResourceError(int line, const std::string& what) : std::runtime_error(what), line_(line) {}
    int Line() const { return line_; }

private:
    int line_;
};

// Reads files that a script names; throws std::runtime_error when it can't.
class ResourceFiles {
public:
    virtual ~ResourceFiles() = default;
    virtual Bytes Read(const std::string& name) const = 0;
};

// The resources of a script, in its order; an icon's pictures stand before its group. Throws ResourceError.
std::vector<Resource> CompileResources(const std::string& script, const ResourceFiles& files);
