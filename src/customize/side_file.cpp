#include "customize/side_file.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>

#include "support/file_objects.h"
#include "support/number_text.h"
#include "support/path_limit.h"
#include "support/saved_file.h"

namespace {

constexpr size_t kLongestLine = 511;  // bytes of a line with its LF, as far as a reader takes it
constexpr size_t kPieceSize = 500;

bool FitsOneLine(const CString& value) {
    const std::string_view text(value, static_cast<size_t>(value.GetLength()));
    return text.size() < kLongestLine && text.find('\n') == std::string_view::npos &&
           text.find('\0') == std::string_view::npos;
}

std::string_view EscapeOf(char ch) {
    switch (ch) {
        case '\n': return "\\n";
        case '\r': return "\\r";
        case '\0': return "\\0";
        case '\\': return "\\\\";
        default: return {};
    }
}

// Cut so that no escape is torn apart.
std::vector<std::string> CutIntoPieces(const CString& value) {
    std::vector<std::string> pieces(1);
    for (int i = 0; i < value.GetLength(); ++i) {
        const char ch = value.GetAt(i);
        const std::string_view escape = EscapeOf(ch);
        const size_t size = escape.empty() ? 1 : escape.size();
        if (pieces.back().size() + size > kPieceSize) pieces.emplace_back();
        if (escape.empty()) {
            pieces.back() += ch;
        } else {
            pieces.back() += escape;
        }
    }
    return pieces;
}

void AppendUnescaped(CString& value, std::string_view piece) {
    constexpr std::string_view kCodes = "nr0\\";
    constexpr std::string_view kBytes("\n\r\0\\", 4);
    for (size_t i = 0; i < piece.size(); ++i) {
        const size_t code =
            piece[i] == '\\' && i + 1 < piece.size() ? kCodes.find(piece[i + 1]) : kCodes.npos;
        if (code == kCodes.npos) {
            value += piece[i];
        } else {
            value += kBytes[code];
            ++i;
        }
    }
}

void AppendPieces(std::string& text, const SavedValue& saved) {
    const std::vector<std::string> pieces = CutIntoPieces(saved.value);
    for (size_t i = 0; i < pieces.size(); ++i) {
        text += '-' + std::to_string(saved.id) + ' ' + std::to_string(saved.kind) + ' ' +
                std::to_string(i + 1) + '/' + std::to_string(pieces.size()) + '\n' + pieces[i] + '\n';
    }
}

// Hands out lines as a reader with a buffer of 512 bytes gets them: a longer one comes in several.
class LineReader {
public:
    LineReader(const char* text, size_t size) : rest_(text, size) {}

    // With its LF, if it has one; nothing only at the end of the file.
    std::optional<std::string_view> Next() {
        if (rest_.empty()) return std::nullopt;
        const std::string_view window = rest_.substr(0, kLongestLine);
        const size_t lf = window.find('\n');
        const std::string_view line = window.substr(0, lf == std::string_view::npos ? window.size() : lf + 1);
        rest_.remove_prefix(line.size());
        return line;
    }

private:
    std::string_view rest_;
};

std::string_view WithoutLineEnd(std::string_view line) {
    return line.substr(0, line.find('\n'));
}

int NumberOf(std::string_view text) {
    return ParseInt(text.data(), text.size());
}

// Puts the pieces of long values together again; a set with a gap is dropped.
class PieceCollector {
public:
    // `head` is the line in front of a piece, as in "-12 18 1/2".
    std::optional<SavedValue> Add(std::string_view head, std::string_view piece) {
        const size_t kind = head.find(' ');
        const size_t part = kind == head.npos ? head.npos : head.find(' ', kind + 1);
        const size_t count = part == head.npos ? head.npos : head.find('/', part + 1);
        const int id = head.front() == '-' ? NumberOf(head.substr(1)) : 0;
        if (id < 1 || count == head.npos) return std::nullopt;
        const int number = NumberOf(head.substr(part + 1));
        if (number == 1) {
            collected_ = {id, NumberOf(head.substr(kind + 1)), CString()};
            expected_ = 1;
        }
        if (number != expected_ || id != collected_.id) {
            expected_ = 0;
            return std::nullopt;
        }
        ++expected_;
        AppendUnescaped(collected_.value, piece);
        if (number != NumberOf(head.substr(count + 1))) return std::nullopt;
        expected_ = 0;
        return collected_;
    }

private:
    SavedValue collected_{};
    int expected_ = 0;  // number of the next piece, 0 outside a set
};

}  // namespace

const char* SideFileMessage(SideFileCode code) {
    switch (code) {
        case SideFileCode::Ok: return "";
        case SideFileCode::CannotWrite: return "Error open file to write\n(Code 2701)";
        case SideFileCode::CannotRead: return "Error open file to read\n(Code 2801)";
        case SideFileCode::NoFormat: return "Error reading file.\n(Code 2802)";
        case SideFileCode::NoVersion: return "Error reading file.\n(Code 2803)";
        case SideFileCode::NoDate: return "Error reading file.\n(Code 2804)";
        case SideFileCode::NoKind: return "Error reading file (no type).\n(Code 2807)";
        case SideFileCode::NoValue: return "Error reading file (no type).\n(Code 2808)";
    }
    return "";
}

CString SideFileName(const char* scriptPath) {
    return CString(scriptPath) + ".brlv";
}

std::string FormatSideFile(const ScriptHeader& header, std::span<const SavedValue> values) {
    std::string text =
        "1\n" + std::to_string(header.scriptVersion) + '\n' + std::to_string(header.scriptDate) + "\n\n";
    for (const SavedValue& saved : values) {
        if (saved.id < 1) continue;
        if (!FitsOneLine(saved.value)) {
            AppendPieces(text, saved);
            continue;
        }
        text += std::to_string(saved.id) + '\n' + std::to_string(saved.kind) + '\n';
        text.append(saved.value, static_cast<size_t>(saved.value.GetLength()));
        text += "\n\n";
    }
    return text;
}

SideFile ParseSideFile(const char* text, size_t size) {
    SideFile file;
    const auto fail = [&file](SideFileCode code) {
        file.code = code;
        return file;
    };
    LineReader reader(text, size);
    if (!reader.Next()) return fail(SideFileCode::NoFormat);
    if (!reader.Next()) return fail(SideFileCode::NoVersion);
    if (!reader.Next()) return fail(SideFileCode::NoDate);
    PieceCollector pieces;
    // Each round begins with the empty line behind the header or a record.
    while (reader.Next()) {
        std::optional<std::string_view> head = reader.Next();
        while (head && NumberOf(*head) <= 0) {
            const std::optional<std::string_view> piece = reader.Next();
            if (!piece) return file;
            if (std::optional<SavedValue> whole = pieces.Add(*head, WithoutLineEnd(*piece))) {
                file.values.push_back(std::move(*whole));
            }
            head = reader.Next();
        }
        if (!head) return file;
        const std::optional<std::string_view> kind = reader.Next();
        if (!kind) return fail(SideFileCode::NoKind);
        const std::optional<std::string_view> value = reader.Next();
        if (!value) return fail(SideFileCode::NoValue);
        const std::string_view bytes = WithoutLineEnd(*value);
        file.values.push_back(
            {NumberOf(*head), NumberOf(*kind), CString(bytes.data(), static_cast<int>(bytes.size()))});
    }
    return file;
}

SideFileCode WriteSideFile(const char* path, const ScriptHeader& header, std::span<const SavedValue> values) {
    const std::string text = FormatSideFile(header, values);
    const SavedFileResult result = SaveFileContent(path, text.data(), text.size());
    return result == SavedFileResult::Saved ? SideFileCode::Ok : SideFileCode::CannotWrite;
}

SideFile ReadSideFile(const char* path) {
    SideFile file;
    file_t stream;
    if (!IsOpenablePath(path) || !stream.OpenRead(path)) {
        file.code = SideFileCode::CannotRead;
        return file;
    }
    unsigned char* bytes = nullptr;
    long length = 0;
    stream.GetText(&bytes, length);
    const std::unique_ptr<unsigned char[]> owner(bytes);
    return ParseSideFile(reinterpret_cast<const char*>(bytes), static_cast<size_t>(length));
}
