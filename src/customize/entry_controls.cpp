#include "customize/entry_controls.h"

#include <memory>

#include "controls/entry_check.h"
#include "controls/entry_choose_file.h"
#include "controls/entry_drop.h"
#include "controls/entry_image.h"
#include "controls/entry_lines.h"
#include "controls/entry_num_edit.h"
#include "controls/entry_text_edits.h"

namespace {

constexpr int kLeft = 4;
constexpr int kRight = 400;  // until the control has found its width
constexpr int kHeight = 24;  // until it has measured itself
constexpr int kGap = 8;
constexpr int kNameSize = 64;

std::unique_ptr<CEntryWnd> NewTextEdit(const CScriptEntry& entry) {
    auto control = std::make_unique<CEntryTextEdit>();
    control->SetSize(entry.width, entry.height);
    return control;
}

std::unique_ptr<CEntryWnd> NewControl(const CScriptEntry& entry) {
    switch (entry.kind) {
        case KindTitle: return std::make_unique<CEntryTitle>();
        case KindImage: return std::make_unique<CEntryImage>();
        case KindText:
        case KindDesc: return std::make_unique<CEntryText>();
        case KindSection: return std::make_unique<CEntrySection>();
        case KindEnable:
        case KindFlag: return std::make_unique<CEntryCheck>();
        case KindNumEdit: return std::make_unique<CEntryNumEdit>();
        case KindNumEditF:
        case KindSkill: return std::make_unique<CEntryNumEditF>();
        case KindChooseFile: return std::make_unique<CEntryChooseFile>();
        case KindStrEdit: return std::make_unique<CEntryStrEdit>();
        case KindEntity:
        case KindPath:
        case KindDrop: return std::make_unique<CEntryDrop>();
        case KindEntryText: return NewTextEdit(entry);
        default: return nullptr;
    }
}

using BeginList = HostWord (TarnInterface::*)();
using GetFromList = HostWord (TarnInterface::*)(HostWord, char*, HostWord);
using EndList = void (TarnInterface::*)();

void AddHostNames(CEntryDrop& drop, TarnInterface& host, BeginList begin, GetFromList get, EndList end) {
    const HostWord count = (host.*begin)();
    for (HostWord index = 0; index < count; ++index) {
        char name[kNameSize] = {};
        if ((host.*get)(index, name, sizeof name) > 0) drop.AddItem(name, FALSE);
    }
    (host.*end)();
}

// The present value goes first, so that it is what the list shows.
void FillDrop(CEntryDrop& drop, CScriptEntry& entry, TarnInterface* host) {
    drop.AddItem(entry.value, FALSE);
    if (entry.kind == KindEntity && host)
        AddHostNames(drop, *host, &TarnInterface::BeginEntities, &TarnInterface::GetEntity,
                     &TarnInterface::EndEntities);
    if (entry.kind == KindPath && host) {
        AddHostNames(drop, *host, &TarnInterface::BeginPathsA, &TarnInterface::GetPathA,
                     &TarnInterface::EndPathsA);
        AddHostNames(drop, *host, &TarnInterface::BeginPathsB, &TarnInterface::GetPathB,
                     &TarnInterface::EndPathsB);
    }
    if (entry.kind != KindDrop) return;
    for (const CString& item : entry.items)
        drop.AddItem(item, TRUE);
    entry.items.clear();
}

// A decimal of a script has no limits; a skill has.
bool HasLimits(const CScriptEntry& entry) {
    return entry.limitsMode != LimitsNone && (entry.kind == KindNumEdit || entry.kind == KindSkill);
}

void ShowValue(CEntryWnd& control, CScriptEntry& entry, TarnInterface* host) {
    control.SetValue(entry.value);
    if (HasLimits(entry)) {
        const double limits[] = {entry.minValue, entry.maxValue, entry.stepValue};
        control.SetLimits(entry.limitsMode, limits, CStringArray());
    }
    if (auto* const drop = dynamic_cast<CEntryDrop*>(&control)) FillDrop(*drop, entry, host);
}

}  // namespace

void CreateEntryControl(CEntryList& list, size_t index, TarnInterface* host) {
    CScriptEntry& entry = list.entries[index];
    std::unique_ptr<CEntryWnd> made = NewControl(entry);
    if (!made) return;
    entry.control = made.release();
    entry.x = kLeft;
    entry.y = list.y;
    const RECT place = {kLeft, list.y, kRight, list.y + kHeight};
    if (entry.control->Create(list.parent, static_cast<unsigned>(index), &place, entry.label, entry.help))
        ShowValue(*entry.control, entry, host);
    list.y += entry.control->GetHeight() + (entry.kind == KindText ? 0 : kGap);
}

void DestroyEntryControls(CEntryList& list) {
    for (CScriptEntry& entry : list.entries) {
        if (!entry.control) continue;
        entry.control->DestroyWindow();
        delete entry.control;
        entry.control = nullptr;
    }
    list.entries.clear();
}
