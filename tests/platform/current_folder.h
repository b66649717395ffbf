#pragma once

#include <direct.h>
#include <gtest/gtest.h>

#include <string>

// Makes a folder the current one until the object goes.
class CurrentFolder {
public:
    explicit CurrentFolder(const std::string& folder) : before_(Name()) {
        EXPECT_EQ(_chdir(folder.c_str()), 0) << folder;
    }
    ~CurrentFolder() { EXPECT_EQ(_chdir(before_.c_str()), 0) << before_; }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

    static std::string Name() {
        char buffer[260];
        return _getcwd(buffer, sizeof buffer) ? buffer : "";
    }

private:
    std::string before_;
};
