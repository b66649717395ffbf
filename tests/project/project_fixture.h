#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/script_location.h"
#include "host/folder_host.h"
#include "message_box_responder.h"
#include "temp_folder.h"

// A project on the disk: the folders "project" and "base\templates", a main script in the first, and an
// editor that the library was given. Message boxes are kept and answered by `answer`.
class ProjectTest : public testing::Test {
protected:
    ProjectTest() {
        std::filesystem::create_directories(folder.Path("project"));
        std::filesystem::create_directories(folder.Path("base/templates"));
        HostProject project;
        project.folder = folder.Name("project");
        project.mainScript = folder.Name("project\\main.brl");
        project.baseFolder = folder.Name("base");
        project.templateFolder = "templates";
        Begin(project);
        SetMessageBoxResponder([this](const ShownMessageBox& box) {
            boxes.push_back(box.text + "|" + box.caption + "|" + std::to_string(box.type));
            return answer;
        });
    }
    ~ProjectTest() override {
        SetMessageBoxResponder({});
        g_appInterface = nullptr;
    }

    void Begin(const HostProject& project) {
        host = std::make_unique<FolderHost>(project);
        host->RecordCalls();
        g_appInterface = host->App();
    }

    std::string Template(const std::string& name) const { return folder.Name("base\\templates\\" + name); }
    std::string Copy(const std::string& name) const { return folder.Name("project\\" + name); }
    void WriteTemplate(const std::string& name, const std::string& text) {
        folder.Write("base/templates/" + name, text);
    }
    void WriteMain(const std::string& text) { folder.Write("project/main.brl", text); }
    std::string Main() const { return folder.Read("project/main.brl"); }
    bool HasCopy(const std::string& name) const { return folder.Has("project/" + name); }

    // How often the host was called by that operation since the last time.
    int CountCalls(const std::string& operation) {
        int count = 0;
        for (const std::string& call : host->TakeCalls())
            count += call.starts_with(operation);
        return count;
    }

    // The boxes shown since the last time.
    std::vector<std::string> TakeBoxes() { return std::exchange(boxes, {}); }

    // A text with the application's name, which differs from program to program.
    std::string Titled(const std::string& text, unsigned type) const {
        return text + "|" + AfxGetAppName() + "|" + std::to_string(type);
    }

    TempFolder folder;
    std::unique_ptr<FolderHost> host;
    int answer = IDOK;
    std::vector<std::string> boxes;
};

// A file that can't be written to as long as the object lives.
class ReadOnly {
public:
    explicit ReadOnly(const std::filesystem::path& path) : path_(path) {
        std::filesystem::permissions(path_, std::filesystem::perms::owner_read);
    }
    ~ReadOnly() { std::filesystem::permissions(path_, std::filesystem::perms::owner_all); }
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;

private:
    std::filesystem::path path_;
};
