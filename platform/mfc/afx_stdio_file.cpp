#include "afx_stdio_file.h"

#include <share.h>

#include <algorithm>
#include <string_view>

#include "afx_exceptions.h"

namespace {

// Line ends are this class's own affair, so that both worlds read the same lines.
const char* StreamMode(UINT flags) {
    const bool write = flags & CFile::modeWrite;
    const bool create = flags & CFile::modeCreate;
    if (create) return write ? "wb" : nullptr;
    return write ? "r+b" : "rb";
}

bool Put(std::string_view bytes, FILE* stream) {
    return std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size();
}

// From the line, not from the buffer: the CR may have come with the fill before the LF.
void DropCarriageReturn(CString& line) {
    const int last = line.GetLength() - 1;
    if (last < 0 || line.GetAt(last) != '\r') return;
    line.GetBuffer();
    line.ReleaseBuffer(last);
}

}  // namespace

CStdioFile::~CStdioFile() {
    if (stream_) std::fclose(stream_);
}

BOOL CStdioFile::Open(const char* name, UINT flags) {
    if (stream_) std::fclose(stream_);
    stream_ = nullptr;
    next_ = end_ = 0;
    const char* mode = StreamMode(flags);
    if (!name || !mode) return FALSE;
    stream_ = _fsopen(name, mode, _SH_DENYNO);
    if (!stream_) return FALSE;
    text_ = !(flags & typeBinary);
    buffer_.reset(flags & modeWrite ? nullptr : new char[kBufferSize]);
    return TRUE;
}

void CStdioFile::Close() {
    if (!stream_) return;
    // A write that failed before was told then, and some runtimes tell it again here.
    std::clearerr(stream_);
    const bool closed = std::fclose(stream_) == 0;
    stream_ = nullptr;
    next_ = end_ = 0;
    if (!closed) AfxThrowFileException(CFileException::diskFull);
}

bool CStdioFile::FillBuffer() {
    if (!stream_ || !buffer_) AfxThrowFileException(CFileException::genericException);
    next_ = 0;
    end_ = std::fread(buffer_.get(), 1, kBufferSize, stream_);
    if (end_ == 0 && std::ferror(stream_)) AfxThrowFileException(CFileException::genericException);
    return end_ > 0;
}

BOOL CStdioFile::ReadString(CString& line) {
    line.Empty();
    bool found = false;
    while (next_ < end_ || FillBuffer()) {
        found = true;
        const char* from = buffer_.get() + next_;
        const size_t left = end_ - next_;
        const auto* lineEnd = static_cast<const char*>(std::memchr(from, '\n', left));
        const size_t length = lineEnd ? static_cast<size_t>(lineEnd - from) : left;
        line.Append(from, static_cast<int>(length));
        next_ += length;
        if (!lineEnd) continue;
        ++next_;
        if (text_) DropCarriageReturn(line);
        break;
    }
    return found;
}

void CStdioFile::WriteString(const char* text) {
    std::string_view rest = text ? text : "";
    bool written = stream_ != nullptr;
    while (written && !rest.empty()) {
        const size_t lineEnd = text_ ? std::min(rest.find('\n'), rest.size()) : rest.size();
        written = Put(rest.substr(0, lineEnd), stream_) && (lineEnd == rest.size() || Put("\r\n", stream_));
        rest.remove_prefix(std::min(lineEnd + 1, rest.size()));
    }
    if (!written) AfxThrowFileException(CFileException::diskFull);
}
