#include "catalogue/joined_lines.h"
#include "catalogue/template_catalogue.h"

namespace {

constexpr char kCatalogueFile[] = "template_6.xml";

// False when the file can't be read, or is too long.
bool ReadLines(const char* path, JoinedLines& lines) {
    CStdioFile file;
    if (!file.Open(path, CFile::modeRead | CFile::typeText)) return false;
    try {
        CString line;
        while (file.ReadString(line)) {
            lines.Add({line.GetString(), static_cast<size_t>(line.GetLength())});
            if (lines.Text().size() > CXmlReader::kLongestText) return false;
        }
        file.Close();
    } catch (CFileException* failure) {
        failure->Delete();
        return false;
    }
    return true;
}

// From the reader's place in the joined text, which is a single line, to the place in the file. The reader
// stands behind what it has read, which ends in the line of its last byte, not where the next line begins. An
// unmatched quote has not been read.
void SetPlaceInFile(XmlResult& result, const JoinedLines& lines) {
    const size_t index = static_cast<size_t>(result.column) - 1;
    const size_t behind = result.error == XmlErrorQuote || index == 0 ? 0 : 1;
    const JoinedLines::Place place = lines.PlaceOf(index - behind);
    result.line = static_cast<int32_t>(place.line);
    result.column = static_cast<int32_t>(place.column + behind);
}

}  // namespace

bool CTemplateManager::Load() {
    return LoadFile(kCatalogueFile, nullptr);
}

bool CTemplateManager::LoadFile(const char* path, XmlResult* result) {
    JoinedLines lines;
    XmlResult outcome;
    const bool loaded = ReadLines(path, lines) && LoadText(lines.Text().c_str(), &outcome);
    if (outcome.error != XmlErrorNone) SetPlaceInFile(outcome, lines);
    if (result) *result = outcome;
    return loaded;
}
