#pragma once

#include <gtest/gtest.h>

#include <string>

#include "customize/script_text.h"
#include "customize/tag_parser.h"

// A script from a literal, parsed, with its records told in one line each.
struct ParsedScript {
    explicit ParsedScript(const std::string& bytes, TagObserver* observer = nullptr)
        : text(ScriptText::Copy(bytes.data(), static_cast<long>(bytes.size()))) {
        CLex lex(text.Data(), text.Size());
        ParseScriptTags(header, list, lex, observer);
    }

    long Offset(size_t entry) const {
        const char* place = list.entries[entry].textPos;
        return place == nullptr ? -1 : static_cast<long>(place - text.Data());
    }

    // kind:label=value@offset+length, with #id and the limits where they are set.
    std::string Tell(size_t index) const {
        const CScriptEntry& entry = list.entries[index];
        std::string told = std::to_string(entry.kind) + ":" + entry.label.GetString();
        told += "=" + std::string(entry.value, static_cast<size_t>(entry.value.GetLength()));
        if (entry.textPos != nullptr) {
            const bool trimmed = entry.kind == KindChooseFile || entry.kind == KindEnable;
            EXPECT_TRUE(trimmed || entry.value == CString(entry.textPos, entry.textLen)) << told;
            told += "@" + std::to_string(Offset(index)) + "+" + std::to_string(entry.textLen);
        }
        if (entry.id != -1) told += " #" + std::to_string(entry.id);
        if (entry.limitsMode == LimitsSpin) {
            CString limits;
            limits.Format(" spin %g %g %g", entry.minValue, entry.maxValue, entry.stepValue);
            told += limits;
        }
        for (const CString& item : entry.items)
            told += std::string(" [") + item.GetString() + "]";
        if (entry.width != 0 || entry.height != 0) {
            told += " " + std::to_string(entry.width) + "x" + std::to_string(entry.height);
        }
        if (!entry.help.IsEmpty()) told += std::string(" ?") + entry.help.GetString();
        return told;
    }

    std::string TellAll() const {
        std::string told;
        for (size_t i = 0; i < list.entries.size(); ++i)
            told += Tell(i) + "\n";
        return told;
    }

    ScriptText text;
    ScriptHeader header;
    CEntryList list;
};
