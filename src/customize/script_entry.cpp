#include "customize/script_entry.h"

void ResetEntry(CScriptEntry& entry) {
    entry = CScriptEntry();
}
