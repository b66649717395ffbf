#include "afx_cmd_target.h"

CObject::~CObject() = default;

CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* CCmdTarget::FindEntry(UINT message, UINT code, UINT id) const {
    for (const AFX_MSGMAP* map = GetMessageMap(); map;
         map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->call; ++entry)
            if (entry->nMessage == message && entry->nCode == code && id >= entry->nID &&
                id <= entry->nLastID)
                return entry;
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT message, UINT id, UINT code, const AFX_MESSAGE& body) {
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(message, code, id);
    return entry && entry->call(this, body);
}
