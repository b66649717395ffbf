#include <winuser.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "../errors.h"
#include "fonts.h"
#include "text.h"
#include "wrapping.h"

// DrawText: text in a rectangle, in lines, with marked letters and tabs.

namespace {

constexpr size_t kNone = std::string_view::npos;
constexpr int kTabCharacters = 8;

// A paragraph without its marks.
struct Paragraph {
    std::string text;
    size_t marked = kNone;  // the character to be underlined
};

struct Line {
    std::string_view text;
    size_t marked = kNone;
    int width = 0;
};

// One `&` marks the next character, two are one that is drawn.
Paragraph WithoutMarks(std::string_view text) {
    Paragraph paragraph;
    paragraph.text.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && i + 1 < text.size()) {
            ++i;
            if (text[i] != '&') paragraph.marked = paragraph.text.size();
        }
        paragraph.text += text[i];
    }
    return paragraph;
}

std::vector<Paragraph> Split(std::string_view text, UINT format) {
    std::vector<Paragraph> paragraphs;
    const auto add = [&](std::string_view part) {
        paragraphs.push_back(format & DT_NOPREFIX ? Paragraph{std::string(part), kNone} : WithoutMarks(part));
    };
    size_t start = 0;
    while (start < text.size()) {
        const size_t end = format & DT_SINGLELINE ? kNone : text.find_first_of("\r\n", start);
        add(text.substr(start, end == kNone ? kNone : end - start));
        if (end == kNone) break;
        // Both characters, in either order, are one break.
        const bool pair = end + 1 < text.size() && text[end] != text[end + 1] &&
                          (text[end + 1] == '\r' || text[end + 1] == '\n');
        start = end + (pair ? 2 : 1);
    }
    return paragraphs;
}

class TextBlock {
public:
    TextBlock(const DeviceContext& dc, std::string_view text, UINT format, int64_t room)
        : dc_(dc), face_(dc.font->face), format_(format), paragraphs_(Split(text, format)) {
        const bool wraps = (format & DT_WORDBREAK) && !(format & DT_SINGLELINE) && room >= 0;
        for (const Paragraph& paragraph : paragraphs_)
            AddLines(paragraph, wraps ? room : INT32_MAX);
    }

    int LineHeight() const { return face_.Metrics().tmHeight; }
    int Height() const { return LineHeight() * static_cast<int>(lines_.size()); }
    int Width() const {
        int width = 0;
        for (const Line& line : lines_)
            width = std::max(width, line.width);
        return width;
    }

    // `frame` and `clip` are in the target's coordinates; `clip` may be null.
    void Draw(const RECT& frame, int y, const RECT* clip) const {
        for (const Line& line : lines_) {
            int x = frame.left;
            if (format_ & DT_CENTER)
                x += (frame.right - frame.left - line.width) / 2;
            else if (format_ & DT_RIGHT)
                x = frame.right - line.width;
            DrawLine(line, x, y, clip);
            y += LineHeight();
        }
    }

private:
    // Where the pen stands after a character, counted from the line's start.
    int Advance(int x, char character) const {
        if (character == '\t' && (format_ & DT_EXPANDTABS)) {
            const int stop = std::max<int>(1, face_.Metrics().tmAveCharWidth * kTabCharacters);
            return (x / stop + 1) * stop;
        }
        return x + face_.Advance(static_cast<unsigned char>(character));
    }

    void AddLines(const Paragraph& paragraph, int64_t room) {
        const std::string_view text = paragraph.text;
        size_t start = 0;
        do {
            size_t next = 0;
            const size_t end = EndOfLine(text, start, room, next);
            Line line{text.substr(start, end - start), kNone, 0};
            if (paragraph.marked >= start && paragraph.marked < end) line.marked = paragraph.marked - start;
            for (const char c : line.text)
                line.width = Advance(line.width, c);
            lines_.push_back(line);
            start = next;
        } while (start < text.size());
    }

    // Breaks where a word begins. A space that would stand outside is left out; a word too long is not
    // divided.
    size_t EndOfLine(std::string_view text, size_t start, int64_t room, size_t& next) const {
        int width = 0;
        size_t word = start;
        for (size_t i = start; i < text.size(); ++i) {
            if (i > start && text[i] != ' ' && text[i - 1] == ' ') word = i;
            width = Advance(width, text[i]);
            if (width <= room) continue;
            if (word > start) return next = word;
            if (text[i] == ' ' && i > start) {
                next = i + 1;
                return i;
            }
        }
        return next = text.size();
    }

    void DrawLine(const Line& line, int x, int y, const RECT* clip) const {
        int offset = 0;
        size_t start = 0;
        while (start <= line.text.size()) {
            const bool tabs = (format_ & DT_EXPANDTABS) != 0;
            const size_t end = std::min(tabs ? line.text.find('\t', start) : kNone, line.text.size());
            const std::string_view run = line.text.substr(start, end - start);
            if (!run.empty()) DrawString(dc_, {x + offset, y}, run, clip, nullptr);
            if (line.marked >= start && line.marked < end) {
                Underline(x + offset + face_.Width(run.substr(0, line.marked - start)),
                          face_.Advance(static_cast<unsigned char>(line.text[line.marked])), y, clip);
            }
            offset += face_.Width(run);
            if (end < line.text.size()) offset = Advance(offset, '\t');
            start = end + 1;
        }
    }

    void Underline(int x, int width, int y, const RECT* clip) const {
        const int row = y + face_.Metrics().tmAscent + 1;
        const RECT rect{x, row, x + width, row + 1};
        FillClipped(dc_, clip ? Intersection(rect, *clip) : rect, dc_.attributes.text);
    }

    const DeviceContext& dc_;
    FontFace& face_;
    const UINT format_;
    const std::vector<Paragraph> paragraphs_;
    std::vector<Line> lines_;
};

}  // namespace

int WINAPI DrawTextA(HDC handle, LPCSTR text, int length, LPRECT rect, UINT format) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return 0;
    if (!rect || length < -1 || (!text && length > 0)) return Fail(ERROR_INVALID_PARAMETER);
    if (length == 0) return 0;
    const size_t size = length > 0 ? static_cast<size_t>(length) : text ? std::strlen(text) : 0;
    if (size == 0) {
        if (format & DT_CALCRECT) *rect = {rect->left, rect->top, rect->left, rect->top};
        return dc->font->face.Metrics().tmHeight;
    }

    const TextBlock block(*dc, {text, size}, format, int64_t{rect->right} - rect->left);
    const bool centred = (format & DT_SINGLELINE) && (format & DT_VCENTER);
    const RECT frame = dc->ToTarget(*rect);
    const int offset = centred ? (frame.bottom - frame.top) / 2 - block.LineHeight() / 2 : 0;
    const int height = offset + block.Height();
    if (format & DT_CALCRECT) {
        rect->right = Sum(rect->left, block.Width());
        rect->bottom = Sum(rect->top, height);
    } else {
        block.Draw(frame, frame.top + offset, format & DT_NOCLIP ? nullptr : &frame);
    }
    return height;
}
