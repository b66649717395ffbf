#include "drives.h"

#include <drive_map.h>
#include <limits.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <mutex>

namespace {

constexpr size_t kDrives = 26;

class DriveTable {
public:
    DriveTable() { folders_['Z' - 'A'] = ""; }

    static std::optional<size_t> Slot(char letter) {
        if (letter >= 'a' && letter <= 'z') return static_cast<size_t>(letter - 'a');
        if (letter >= 'A' && letter <= 'Z') return static_cast<size_t>(letter - 'A');
        return {};
    }
    void Set(size_t slot, std::optional<std::string> folder) {
        const std::lock_guard lock(mutex_);
        folders_[slot] = std::move(folder);
    }
    std::optional<std::string> Get(size_t slot) {
        const std::lock_guard lock(mutex_);
        return folders_[slot];
    }
    // The drive whose folder holds `path` and leads closest to it.
    std::optional<CurrentPlace> Find(const std::string& path) {
        const std::lock_guard lock(mutex_);
        std::optional<CurrentPlace> place;
        for (size_t slot = 0; slot < kDrives; ++slot) {
            const auto& folder = folders_[slot];
            if (!folder || !Holds(*folder, path) || (place && folder->size() <= place->folder.size()))
                continue;
            std::string rest = path.substr(folder->size());
            place = CurrentPlace{static_cast<char>('A' + slot), *folder, rest == "/" ? "" : std::move(rest)};
        }
        return place;
    }

private:
    static bool Holds(const std::string& folder, const std::string& path) {
        return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
    }

    std::mutex mutex_;
    std::array<std::optional<std::string>, kDrives> folders_;
};

DriveTable& Drives() {
    static DriveTable table;
    return table;
}

}  // namespace

std::optional<std::string> DriveFolder(char letter) {
    const auto slot = DriveTable::Slot(letter);
    return slot ? Drives().Get(*slot) : std::nullopt;
}

std::optional<CurrentPlace> FindCurrentPlace() {
    char path[PATH_MAX];
    if (!getcwd(path, sizeof path) || path[0] != '/') return {};
    return Drives().Find(path);
}

bool MapDrive(char letter, const char* folder) {
    const auto slot = DriveTable::Slot(letter);
    if (!slot) return false;
    if (!folder) {
        Drives().Set(*slot, std::nullopt);
        return true;
    }
    // Links resolved, as in the current directory's path.
    char path[PATH_MAX];
    struct stat status;
    if (!realpath(folder, path) || stat(path, &status) != 0 || !S_ISDIR(status.st_mode)) return false;
    std::string absolute = path;
    if (absolute == "/") absolute.clear();
    Drives().Set(*slot, std::move(absolute));
    return true;
}
