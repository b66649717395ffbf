#pragma once

#include <memory>

#include "afx_base.h"
#include "afx_string.h"

// How a file is opened.
class CFile {
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeCreate = 0x1000,  // a new file, or an old one cut to nothing
        typeText = 0x4000,    // the type when none is given
        typeBinary = 0x8000,
    };
};

// A file read or written by lines, which the object owns. In a text file a line ends with LF or CR LF when it
// is read, and LF is written as CR LF. In a binary file a line ends with LF, and nothing is translated. No
// other byte means anything, 0 and Ctrl-Z included.
class CStdioFile : public CFile {
public:
    CStdioFile() = default;
    CStdioFile(const CStdioFile&) = delete;
    CStdioFile& operator=(const CStdioFile&) = delete;
    // Closes without a word; call Close to hear of a failure.
    ~CStdioFile();

    // Opens for reading or for writing from the start. FALSE when the file can't be opened, and for
    // modeCreate without modeWrite. A file that was open before is closed first, as by the destructor.
    BOOL Open(const char* name, UINT flags);
    // Raises CFileException when what was written did not reach the file; the object is closed all the same.
    void Close();

    // The next line without its end. A last line without a line end counts. FALSE behind the last one, with
    // `line` empty. Raises CFileException when the file can't be read, or is not open for reading.
    BOOL ReadString(CString& line);
    // The text as it is, no line end added. Raises CFileException when it can't be written.
    void WriteString(const char* text);

private:
    bool FillBuffer();

    static constexpr size_t kBufferSize = 16384;

    FILE* stream_ = nullptr;
    bool text_ = false;
    std::unique_ptr<char[]> buffer_;  // while reading
    size_t next_ = 0;                 // what is left of it: [next_, end_)
    size_t end_ = 0;
};
