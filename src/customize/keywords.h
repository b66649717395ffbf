#pragma once

// The words that open a tag in a script's comments. A keyword's number is also the kind of the records it
// makes.
enum EntryKind : int {
    KindNone = -1,
    KindTitle = 0,
    KindImage,
    KindText,
    KindSection,
    KindHelp,
    KindEntryHelp,
    KindId,
    KindCntl,
    KindEnable,
    KindAction,
    KindEntry,
    KindNumEdit,     // an entry with an integer value
    KindNumEditF,    // an entry with a decimal value
    KindChooseFile,  // an entry with a value in angle brackets
    KindStrEdit,     // an entry with a value in double quotes
    KindEntity,
    KindPath,
    KindDrop,
    KindEntryText,
    KindVer,
    KindDate,
    KindDesc,
    KindFlag,
    KindFlag1,
    KindFlag8 = KindFlag1 + 7,
    KindSkill,
    KindSkill1,
    KindSkill20 = KindSkill1 + 19,
    KeywordCount
};

// Bytes of the longest keyword.
inline constexpr int kLongestKeyword = 16;

// The keyword of exactly this length that equals the text without regard to case, or -1.
int FindKeyword(const char* text, int length);

// The keyword as written in scripts; an empty text for a number that is none.
const char* KeywordName(int kind);
