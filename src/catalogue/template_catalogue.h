#pragma once

#include <afx.h>

#include <vector>

#include "catalogue/name_index.h"
#include "catalogue/xml_reader.h"

// The catalogue: which script templates can be added to a project. It comes from an XML file that is read
// once and never written. All names are compared exactly, case included, unless a query says otherwise.

// A folder of templates: what the records call it, and where it lies.
struct CTemplateDir {
    CString type;  // "base" names the folder that the paths of the others begin in
    CString path;
};

// An action that a script brings along.
struct CScriptAction {
    CString name;
    CString filename;
    CString text;
};

// One script. Copies are deep.
struct CScriptRecord {
    CScriptRecord() = default;
    CScriptRecord(const CScriptRecord& other);
    CScriptRecord& operator=(const CScriptRecord& other);

    CString id;
    CString directory;  // the type of its CTemplateDir
    CString filename;   // without a path, as include lines name it
    CString name;       // for the user, and the key of all lookups by name
    CString desc;
    CString scriptClass;
    CString type;  // users are offered those of type "USER"
    CString vers;
    CString date;
    std::vector<CScriptAction> actions;
    CStringArray needs;  // the file names of the scripts that this one needs
};

// The catalogue in memory, empty at first. It has one thread. What stands in it is changed by loading only:
// the queries by name go through an index that loading keeps.
//
// Out strings stay as they were when a query is false. Out lists are emptied first. Null arguments count as
// the empty string.
class CTemplateManager {
public:
    CTemplateManager() = default;
    CTemplateManager(const CTemplateManager&) = delete;
    CTemplateManager& operator=(const CTemplateManager&) = delete;

    // Reads "template_6.xml" from the current directory. See LoadFile.
    bool Load();

    // Reads a file, whose lines are put together without their ends. Adds to what is there; nothing is added
    // when the result is false. `result` may be null. It tells why a file was not read: an error of the XML
    // reader, with its place in the file, or no error for a file that can't be read. That place is behind the
    // byte that the reader had come to, or at a quote without a mate.
    bool LoadFile(const char* path, XmlResult* result);

    // Adds the catalogue in `text`, taken as it stands. False and nothing added when it does not parse.
    // `result` may be null.
    bool LoadText(const char* text, XmlResult* result);

    // "<ALL>", then the classes of the records of this type in record order. A class that differs from one in
    // the list in the case of ASCII letters only is left out. Always true.
    bool GetClasses(CStringArray& classes, const char* scriptType) const;
    // The names of the records of this type, in record order. Always true.
    bool GetScripts(CStringArray& names, const char* scriptType) const;
    // Those of this class alone; all for the class "<ALL>" in any case of letters. Always true.
    bool GetScriptsOfClass(CStringArray& names, const char* scriptType, const char* scriptClass) const;

    // These ask for the first record of the name, and are false when there is none.
    bool GetActions(CStringArray& actions,
                    const char* scriptName) const;  // by name, or by file name without one
    bool GetDesc(CString& desc, const char* scriptName) const;
    bool GetDate(CString& scriptDate, const char* scriptName) const;
    bool GetVers(CString& vers, const char* scriptName) const;
    bool GetRecord(CScriptRecord& record, const char* scriptName) const;
    // The file name, or with `fullPath` the template's path, which begins with `base`. That one is false for
    // a record without a CTemplateDir too.
    bool GetFile(CString& file, const char* scriptName, bool fullPath) const;

    // The name of the first record of this file name. False when there is none.
    bool GetNameOfFile(CString& scriptName, const char* filename) const;

    // About the template set, for the user.
    CString name;
    CString type;
    CString version;
    CString engineReq;
    CString date;

    CString base;                           // the path of the last directory of type "base"
    std::vector<CTemplateDir> directories;  // in file order, as are the records
    std::vector<CScriptRecord> records;

private:
    const CScriptRecord* FindRecord(const char* scriptName) const;

    NameIndex directoriesByType_;
    NameIndex recordsByName_;
    NameIndex recordsByFile_;
};

// The library's one catalogue, and whether it has been loaded. It is loaded once and stays for the life of
// the process, whatever happens to the file.
extern CTemplateManager g_templateManager;
extern bool g_templatesLoaded;

// To be called before g_templateManager is used: loads it, if that has not been done. While the result is
// false there is no catalogue, and the next call tries again.
bool EnsureTemplatesLoaded();
