#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "host/host_project.h"
#include "shell/host_interface.h"

// A stand-in for the editor: answers all that the library asks, over plain folders and a project file.
// README.md tells the format of that file and what the answers are.
//
// All operations may be called on any thread. The library keeps a pointer to App() once it was given it.
class FolderHost final : public TarnInterface {
public:
    // Name of the project file in a folder that is opened.
    static constexpr const char* kProjectFileName = "project.tarn";

    // Opens a project file, or the one in a folder. Null with the reason in `error`: "FILE:LINE: what is
    // wrong".
    static std::unique_ptr<FolderHost> Open(const std::string& path, std::string& error);

    // A project without a file of its own.
    explicit FolderHost(HostProject project);

    AppInterface* App() { return &app_; }
    HostProject Project() const;
    // The full path of the project file; empty without one.
    const std::string& ProjectFile() const { return projectFile_; }

    // Writes main script, actions, flags and skills into the project file as far as they have changed; its
    // other lines stay. True without a change and without a file; false leaves the old file.
    bool Save();

    // What the user chooses when BrowseFile asks next; empty, as from the start, stands for Cancel.
    void ChooseFile(const std::string& path);

    // Keeps the calls of TarnInterface from now on, as "GetEntity 2" or "CopyToProject Z:\a.brl".
    void RecordCalls();
    // Hands out what was recorded, and forgets it.
    std::vector<std::string> TakeCalls();

    HostWord GetClassId() override;
    void CreateMainScript() override;
    void NotCalled1() override;
    void NotCalled2() override;
    HostWord GetMainScript(char* buffer, HostWord size) override;
    void ScriptsChanged() override;
    HostWord BeginEntities() override;
    HostWord GetEntity(HostWord index, char* buffer, HostWord size) override;
    void EndEntities() override;
    HostWord BeginPathsA() override;
    HostWord GetPathA(HostWord index, char* buffer, HostWord size) override;
    void EndPathsA() override;
    HostWord BeginPathsB() override;
    HostWord GetPathB(HostWord index, char* buffer, HostWord size) override;
    void EndPathsB() override;
    HostWord BrowseFile(char* buffer, HostWord size, HostWord kind, const char* folder) override;
    void GetProjectFolder(char* buffer, HostWord size) override;
    HostWord CopyToProject(const char* source, char* buffer, HostWord size) override;
    HostWord CopyWithSubstitution(const char* source, const char* destination,
                                  const char* const* table) override;
    void NotCalled3() override;
    void NotCalled4() override;
    void NotCalled5() override;
    HostWord Message(HostWord context, HostWord code, void* block, HostWord size) override;

private:
    using Lock = std::lock_guard<std::mutex>;

    void Record(const std::string& call);
    bool Copy(const char* source, const char* destination, const char* const* table);
    std::string ActionFile(const HostAction& action) const;
    const HostAction* FindActionNamed(const char* name) const;
    HostEntity* EntityOf(HostWord handle);

    HostWord TellFolder(HostFolderBlock& block);
    HostWord TellActionFile(HostActionFileBlock& block);
    HostWord TellActionName(HostActionNameBlock& block);
    HostWord TellEntityAction(HostEntityActionBlock& block);
    HostWord RemoveAction(HostEntityBlock& block);
    HostWord TellFlags(HostFlagsBlock& block);
    HostWord TakeFlags(HostFlagsBlock& block);
    HostWord TellSkills(HostSkillsBlock& block);
    HostWord TakeSkills(HostSkillsBlock& block);

    mutable std::mutex mutex_;
    AppInterface app_{};
    HostProject project_;
    std::string projectFile_;  // set once, by Open
    std::string chosenFile_;
    bool recording_ = false;
    std::vector<std::string> calls_;
};
