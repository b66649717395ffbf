#include <algorithm>
#include <optional>

#include "catalogue/project_record_file.h"
#include "catalogue/script_location.h"
#include "host/action_text.h"
#include "host/folder_host.h"
#include "host/host_answer.h"
#include "host/host_path.h"
#include "support/file_objects.h"

namespace {

std::string MessageText(HostWord code, const char* detail) {
    return "Message " + std::to_string(code) + " " + detail;
}

std::string MessageText(HostWord code, HostWord detail) {
    return MessageText(code, std::to_string(detail).c_str());
}

// The block of a message, or null when its size is another one.
template <typename Block>
Block* BlockOf(void* block, HostWord size) {
    return block && size == static_cast<HostWord>(sizeof(Block)) ? static_cast<Block*>(block) : nullptr;
}

// How many names there are: up to the last one that is told.
template <typename Names>
HostWord CountNames(const Names& names) {
    const auto last =
        std::find_if(names.rbegin(), names.rend(), [](const auto& name) { return !name.empty(); });
    return names.rend() - last;
}

template <typename Names>
HostWord TellName(const Names& names, HostActionNameBlock& block) {
    const HostWord count = CountNames(names);
    if (block.index < 0 || block.index >= count) return 0;
    const std::string& name = names[static_cast<size_t>(block.index)];
    if (name.empty()) {
        block.size = 0;
        return count;
    }
    return AnswerSizeOrText(name, block.buffer, block.size) ? count : 0;
}

}  // namespace

HostWord FolderHost::Message(HostWord, HostWord code, void* block, HostWord size) {
    const Lock lock(mutex_);
    switch (code) {
        case MessageGetFolder:
            if (auto* const folder = BlockOf<HostFolderBlock>(block, size)) return TellFolder(*folder);
            break;
        case MessageGetAction:
            if (auto* const file = BlockOf<HostActionFileBlock>(block, size)) return TellActionFile(*file);
            if (auto* const name = BlockOf<HostActionNameBlock>(block, size)) return TellActionName(*name);
            break;
        case MessageGetEntityAction:
            if (auto* const action = BlockOf<HostEntityActionBlock>(block, size))
                return TellEntityAction(*action);
            break;
        case MessageRemoveAction:
            if (auto* const entity = BlockOf<HostEntityBlock>(block, size)) return RemoveAction(*entity);
            break;
        case MessageGetFlags:
            if (auto* const flags = BlockOf<HostFlagsBlock>(block, size)) return TellFlags(*flags);
            break;
        case MessageSetFlags:
            if (auto* const flags = BlockOf<HostFlagsBlock>(block, size)) return TakeFlags(*flags);
            break;
        case MessageGetSkills:
            if (auto* const skills = BlockOf<HostSkillsBlock>(block, size)) return TellSkills(*skills);
            break;
        case MessageSetSkills:
            if (auto* const skills = BlockOf<HostSkillsBlock>(block, size)) return TakeSkills(*skills);
            break;
        default: break;
    }
    Record(MessageText(code, "refused"));
    return 0;
}

HostWord FolderHost::TellFolder(HostFolderBlock& block) {
    Record(MessageText(MessageGetFolder, block.query));
    std::string folder;
    if (block.query == QueryBaseFolder) {
        folder = project_.baseFolder;
    } else if (block.query == QueryTemplateFolder) {
        folder = project_.templateFolder;
    } else if (block.query == QuerySearchFolder && block.index >= 0 &&
               static_cast<size_t>(block.index) < project_.searchFolders.size()) {
        folder = project_.searchFolders[static_cast<size_t>(block.index)];
    }
    const HostWord told = folder.empty() ? 0 : Answer(folder, block.buffer, block.length);
    block.length = told ? static_cast<HostWord>(folder.size()) : 0;
    return told;
}

const HostAction* FolderHost::FindActionNamed(const char* name) const {
    const auto found = std::find_if(
        project_.actions.begin(), project_.actions.end(),
        [name](const auto& action) { return CString(action.name.c_str()).CompareNoCase(name) == 0; });
    return found == project_.actions.end() ? nullptr : &*found;
}

std::string FolderHost::ActionFile(const HostAction& action) const {
    if (!IsBareName(action.file.c_str())) return action.file;
    std::string copy = PathFrom(project_.folder, action.file);
    if (file_t::FileExist(copy.c_str(), nullptr)) return copy;
    return PathFrom(PathFrom(project_.baseFolder, project_.templateFolder), action.file);
}

HostWord FolderHost::TellActionFile(HostActionFileBlock& block) {
    Record(MessageText(MessageGetAction, block.action) + " file");
    const HostAction* const action = FindActionNamed(block.action);
    if (block.query != QueryActionFile || !action || action->file.empty()) {
        block.size = 0;
        return 0;
    }
    const std::string path = ActionFile(*action);
    ScriptFile script;
    std::optional<ActionText> text;
    if (block.buffer && script.Load(path.c_str())) text = FindAction(script.Text(), action->name);
    block.offset = text ? static_cast<HostWord>(text->offset) : 0;
    block.length = text ? static_cast<HostWord>(text->length) : 0;
    return AnswerSizeOrText(path, block.buffer, block.size);
}

HostWord FolderHost::TellActionName(HostActionNameBlock& block) {
    const bool flag = block.query == QueryFlagName;
    Record(MessageText(MessageGetAction, block.action) + (flag ? " flag " : " skill ") +
           std::to_string(block.index));
    const HostAction* const action = FindActionNamed(block.action);
    if (!action || (!flag && block.query != QuerySkillName)) {
        block.size = 0;
        return 0;
    }
    return flag ? TellName(action->flagNames, block) : TellName(action->skillNames, block);
}

// Handles count the entities from 1.
HostEntity* FolderHost::EntityOf(HostWord handle) {
    if (handle < 1 || static_cast<size_t>(handle) > project_.entities.size()) return nullptr;
    return &project_.entities[static_cast<size_t>(handle) - 1];
}

HostWord FolderHost::TellEntityAction(HostEntityActionBlock& block) {
    Record(MessageText(MessageGetEntityAction, block.entity));
    const HostEntity* const entity = EntityOf(block.entity);
    if (entity && !entity->action.empty()) return AnswerSizeOrText(entity->action, block.buffer, block.size);
    block.size = 0;
    return 0;
}

HostWord FolderHost::RemoveAction(HostEntityBlock& block) {
    Record(MessageText(MessageRemoveAction, block.entity));
    HostEntity* const entity = EntityOf(block.entity);
    if (!entity) return 0;
    entity->action.clear();
    return 1;
}

HostWord FolderHost::TellFlags(HostFlagsBlock& block) {
    Record(MessageText(MessageGetFlags, block.entity));
    const HostEntity* const entity = EntityOf(block.entity);
    if (!entity) return 0;
    block.flags = static_cast<HostWord>(entity->flags);
    return 1;
}

HostWord FolderHost::TakeFlags(HostFlagsBlock& block) {
    Record(MessageText(MessageSetFlags, block.entity) + " " + std::to_string(block.flags));
    HostEntity* const entity = EntityOf(block.entity);
    if (!entity) return 0;
    entity->flags = static_cast<uint32_t>(block.flags);
    return 1;
}

HostWord FolderHost::TellSkills(HostSkillsBlock& block) {
    Record(MessageText(MessageGetSkills, block.entity));
    const HostEntity* const entity = EntityOf(block.entity);
    if (!entity) return 0;
    std::copy(entity->skills.begin(), entity->skills.end(), block.skills);
    return 1;
}

HostWord FolderHost::TakeSkills(HostSkillsBlock& block) {
    Record(MessageText(MessageSetSkills, block.entity));
    HostEntity* const entity = EntityOf(block.entity);
    if (!entity) return 0;
    std::copy(std::begin(block.skills), std::end(block.skills), entity->skills.begin());
    return 1;
}
