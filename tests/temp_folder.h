#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// A fresh folder that goes with the object. Names are handed out as the product sees them: with backslashes
// and a drive letter, in both worlds (the stand-in maps Z: onto the root of the file system, as Wine does).
class TempFolder {
public:
    TempFolder() {
        static std::atomic<unsigned> counter{0};
        const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
        folder_ = std::filesystem::temp_directory_path() /
                  ("brlv-" + std::to_string(stamp) + "-" + std::to_string(counter++));
        std::filesystem::create_directories(folder_);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    // The path as the product's own functions take it, without a backslash at its end.
    std::string Name() const { return ProductName(folder_); }
    std::string Name(const std::string& file) const { return Name() + "\\" + file; }

    // The path for the test's own reading and writing.
    std::filesystem::path Path(const std::string& file) const { return folder_ / file; }

    void Write(const std::string& file, const std::string& bytes) const {
        std::ofstream stream(Path(file), std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    std::string Read(const std::string& file) const {
        std::ifstream stream(Path(file), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }
    bool Has(const std::string& file) const { return std::filesystem::exists(Path(file)); }

private:
    static std::string ProductName(const std::filesystem::path& path) {
        std::string name = path.string();
        if (!name.empty() && name.front() == '/') name.insert(0, "Z:");
        std::replace(name.begin(), name.end(), '/', '\\');
        return name;
    }

    std::filesystem::path folder_;
};
