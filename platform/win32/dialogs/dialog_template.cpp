#include "dialog_template.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr WORD kExtendedMark = 0xFFFF;

// Words of a template, in order. Behind its end there are zeros.
class WordReader {
public:
    explicit WordReader(std::span<const unsigned char> bytes) : bytes_(bytes) {}

    template <typename Record>
    Record Read() {
        Record record = {};
        if (bytes_.size() - at_ < sizeof record) {
            broken_ = true;
            at_ = bytes_.size();
            return record;
        }
        std::memcpy(&record, bytes_.data() + at_, sizeof record);
        at_ += sizeof record;
        return record;
    }

    WORD Word() { return Read<WORD>(); }

    // A text of 16-bit characters, or the number that stands behind 0xFFFF.
    std::string TextOrNumber(WORD& number) {
        number = 0;
        std::string text;
        WORD character = Word();
        if (character == kExtendedMark) {
            number = Word();
            return text;
        }
        for (; character != 0; character = Word())
            text += static_cast<char>(character < 0x100 ? character : '?');
        return text;
    }

    std::string Text() {
        WORD number = 0;
        return TextOrNumber(number);
    }

    void Align4() { Skip((4 - at_ % 4) % 4); }
    void Skip(size_t bytes) {
        broken_ |= bytes > bytes_.size() - at_;
        at_ += std::min(bytes, bytes_.size() - at_);
    }
    bool Broken() const { return broken_; }

private:
    std::span<const unsigned char> bytes_;
    size_t at_ = 0;
    bool broken_ = false;
};

DialogItem ReadItem(WordReader& reader) {
    DialogItem item;
    reader.Align4();
    item.place = reader.Read<DLGITEMTEMPLATE>();
    WORD number = 0;
    item.class_name = reader.TextOrNumber(number);
    item.class_atom = number;
    item.text = reader.TextOrNumber(number);
    reader.Skip(reader.Word());  // creation data
    return item;
}

}  // namespace

std::optional<DialogDescription> ReadDialogTemplate(std::span<const unsigned char> bytes) {
    WordReader reader(bytes);
    DialogDescription dialog;
    dialog.head = reader.Read<DLGTEMPLATE>();
    if (HIWORD(dialog.head.style) == kExtendedMark) return std::nullopt;
    WORD number = 0;
    reader.TextOrNumber(number);  // the menu
    dialog.class_name = reader.TextOrNumber(number);
    dialog.caption = reader.Text();
    if (dialog.head.style & DS_SETFONT) {
        dialog.font_size = reader.Word();
        dialog.font_name = reader.Text();
    }
    for (WORD i = 0; i < dialog.head.cdit && !reader.Broken(); ++i)
        dialog.items.push_back(ReadItem(reader));
    if (reader.Broken()) return std::nullopt;
    return dialog;
}
