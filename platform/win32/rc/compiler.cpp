#include <algorithm>
#include <cctype>
#include <set>

#include "byte_writer.h"
#include "lexer.h"
#include "resource.h"

namespace {

constexpr uint32_t kChildVisible = 0x50000000;  // what a control has by itself
constexpr uint32_t kSetFont = 0x40;
constexpr uint32_t kCaption = 0x00C00000;
constexpr uint32_t kButtonKinds = 0xF;
constexpr uint32_t kDefaultButton = 0x1;
constexpr uint16_t kNoId = 0xFFFF;  // of texts that nobody asks for
constexpr size_t kIconEntrySize = 16;
constexpr size_t kIconHeaderSize = 6;

struct Number {
    uint32_t set;
    uint32_t cleared;  // by NOT
};

class Compiler {
public:
    Compiler(const std::string& script, const ResourceFiles& files)
        : tokens_(ReadTokens(script)), files_(files) {}

    std::vector<Resource> Run() {
        while (Now().kind != TokenKind::End)
            Statement();
        return std::move(resources_);
    }

private:
    // ---- Tokens. ----
    const Token& Now() const { return tokens_[at_]; }
    const Token& Take() {
        const Token& token = tokens_[at_];
        if (token.kind != TokenKind::End) ++at_;
        return token;
    }
    [[noreturn]] void Fail(const std::string& what) const { throw ResourceError(Now().line, what); }
    bool IsWord(const char* word) const { return Now().kind == TokenKind::Word && Now().text == word; }
    bool IsMark(char mark) const { return Now().kind == TokenKind::Mark && Now().text[0] == mark; }
    void Expect(const char* word) {
        if (!IsWord(word)) Fail(std::string(word) + " expected, not " + Now().text);
        Take();
    }
    void Comma() {
        if (!IsMark(',')) Fail("comma expected, not " + Now().text);
        Take();
    }
    std::string Text() {
        if (Now().kind != TokenKind::Text) Fail("text in quotes expected, not " + Now().text);
        return Take().text;
    }

    // Numbers joined by |; behind NOT stand those that are taken away.
    Number Flags() {
        Number flags = {0, 0};
        for (;;) {
            const bool negated = IsWord("NOT");
            if (negated) Take();
            const uint32_t value = Plain();
            (negated ? flags.cleared : flags.set) |= value;
            if (!IsMark('|')) return flags;
            Take();
        }
    }
    uint32_t Plain() {
        const bool minus = IsMark('-');
        if (minus) Take();
        if (Now().kind != TokenKind::Number) Fail("number expected, not " + Now().text);
        const auto value = static_cast<uint32_t>(Take().number);
        return minus ? 0 - value : value;
    }
    uint32_t NextPlain() {
        Comma();
        return Plain();
    }

    // ---- Statements. ----
    void Add(uint16_t type, uint16_t name, ByteWriter& bytes) {
        if (!known_.insert({type, name}).second)
            throw ResourceError(statement_line_, "a second resource of the type " + std::to_string(type) +
                                                     " and the name " + std::to_string(name));
        resources_.push_back({type, name, bytes.Take()});
    }

    void Statement() {
        statement_line_ = Now().line;
        if (Now().kind != TokenKind::Number)
            Fail("statement expected, beginning with its number, not " + Now().text);
        const auto name = static_cast<uint16_t>(Take().number);
        if (IsWord("ICON"))
            Icon(name);
        else if (IsWord("DIALOG"))
            Dialog(name);
        else if (IsWord("VERSIONINFO"))
            Version(name);
        else
            Fail("unknown statement " + Now().text);
    }

    void Icon(uint16_t name) {
        Take();
        const int line = Now().line;
        const std::string file = Text();
        Bytes bytes;
        try {
            bytes = files_.Read(file);
        } catch (const std::exception& error) {
            throw ResourceError(line, error.what());
        }
        const auto word = [&bytes](size_t at) {
            return static_cast<size_t>(bytes[at]) | static_cast<size_t>(bytes[at + 1]) << 8;
        };
        const auto number = [&word](size_t at) { return word(at) | word(at + 2) << 16; };
        if (bytes.size() < kIconHeaderSize || word(2) != 1) throw ResourceError(line, file + " is no icon");
        const size_t count = word(4);
        if (bytes.size() < kIconHeaderSize + count * kIconEntrySize)
            throw ResourceError(line, file + " ends too soon");
        ByteWriter group;
        group.Append(bytes, 0, kIconHeaderSize);
        for (size_t i = 0; i < count; ++i) {
            const size_t entry = kIconHeaderSize + i * kIconEntrySize;
            const size_t size = number(entry + 8);
            const size_t offset = number(entry + 12);
            if (offset > bytes.size() || size > bytes.size() - offset)
                throw ResourceError(line, file + " ends too soon");
            ByteWriter picture;
            picture.Append(bytes, offset, size);
            Add(kIconType, ++icons_, picture);
            group.Append(bytes, entry, 4);
            // An icon of one picture plane may leave the number out.
            group.Word(static_cast<uint32_t>(std::max<size_t>(word(entry + 4), 1)));
            group.Word(static_cast<uint32_t>(word(entry + 6)));
            group.Double(static_cast<uint32_t>(size));
            group.Word(icons_);
        }
        Add(kIconGroupType, name, group);
    }

    // ---- Dialogs. ----
    struct DialogHead {
        uint32_t style = 0x80880000;  // WS_POPUP, WS_BORDER, WS_SYSMENU
        uint32_t extended = 0;
        std::string caption;
        bool has_font = false;
        uint32_t font_size = 0;
        std::string font;
    };

    DialogHead Head() {
        DialogHead head;
        uint32_t implied = 0;
        for (;;) {
            if (IsWord("STYLE")) {
                Take();
                head.style = Flags().set;
            } else if (IsWord("EXSTYLE")) {
                Take();
                head.extended = Flags().set;
            } else if (IsWord("CAPTION")) {
                Take();
                head.caption = Text();
                implied |= kCaption;
            } else if (IsWord("FONT")) {
                Take();
                head.font_size = Plain();
                Comma();
                head.font = Text();
                head.has_font = true;
                implied |= kSetFont;
            } else {
                break;
            }
        }
        head.style |= implied;
        return head;
    }

    void Dialog(uint16_t name) {
        Take();
        uint32_t place[4] = {Plain(), NextPlain(), NextPlain(), NextPlain()};
        const DialogHead head = Head();
        Expect("BEGIN");
        ByteWriter items;
        DialogItems known;
        uint32_t count = 0;
        for (; !IsWord("END"); ++count)
            Control(items, known);
        Take();
        ByteWriter dialog;
        dialog.Double(head.style);
        dialog.Double(head.extended);
        dialog.Word(count);
        for (const uint32_t measure : place)
            dialog.Word(measure);
        dialog.Word(0);  // no menu
        dialog.Word(0);  // the standard class
        dialog.Text(head.caption);
        if (head.has_font) {
            dialog.Word(head.font_size);
            dialog.Text(head.font);
        }
        // Each item begins on a multiple of four; nothing follows the last.
        if (count > 0) dialog.Align4();
        const Bytes written = items.Take();
        dialog.Append(written, 0, written.size());
        Add(kDialogType, name, dialog);
    }

    // What no two controls of a dialog may have.
    struct DialogItems {
        std::set<uint16_t> ids;
        bool has_default = false;
    };

    void Distinguish(uint32_t id, bool is_default, DialogItems& known) {
        const auto number = static_cast<uint16_t>(id);
        if (number != kNoId && !known.ids.insert(number).second)
            Fail("a second control with the id " + std::to_string(number));
        if (is_default && known.has_default) Fail("a second default button");
        known.has_default |= is_default;
    }

    void Control(ByteWriter& out, DialogItems& known) {
        Expect("CONTROL");
        const std::string text = Text();
        const uint32_t id = NextPlain();
        Comma();
        std::string cls = Text();
        std::transform(cls.begin(), cls.end(), cls.begin(),
                       [](unsigned char ch) { return static_cast<char>(std::toupper(ch)); });
        Comma();
        const Number style = Flags();
        const uint32_t place[4] = {NextPlain(), NextPlain(), NextPlain(), NextPlain()};
        uint32_t extended = 0;
        if (IsMark(',')) {
            Take();
            extended = Flags().set;
        }
        Distinguish(id, cls == "BUTTON" && (style.set & kButtonKinds) == kDefaultButton, known);
        out.Align4();
        out.Double((kChildVisible & ~style.cleared) | style.set);
        out.Double(extended);
        for (const uint32_t measure : place)
            out.Word(measure);
        out.Word(id);
        out.Text(cls);
        out.Text(text);
        out.Word(0);  // no creation data
    }

    // ---- Version. ----
    void Version(uint16_t name) {
        Take();
        uint32_t file[2] = {0, 0};
        uint32_t product[2] = {0, 0};
        uint32_t mask = 0, flags = 0, system = 0, type = 0, subtype = 0;
        while (!IsWord("BEGIN")) {
            if (Now().kind != TokenKind::Word) Fail("BEGIN expected, not " + Now().text);
            const std::string word = Now().text;
            Take();
            if (word == "FILEVERSION")
                FourPart(file);
            else if (word == "PRODUCTVERSION")
                FourPart(product);
            else if (word == "FILEFLAGSMASK")
                mask = Plain();
            else if (word == "FILEFLAGS")
                flags = Plain();
            else if (word == "FILEOS")
                system = Plain();
            else if (word == "FILETYPE")
                type = Plain();
            else if (word == "FILESUBTYPE")
                subtype = Plain();
            else
                Fail("unknown statement " + word);
        }
        ByteWriter out;
        const size_t start = BeginNode(out, 52, 0, "VS_VERSION_INFO");
        for (const uint32_t value : {0xFEEF04BDu, 0x00010000u, file[0], file[1], product[0], product[1], mask,
                                     flags, system, type, subtype, 0u, 0u})
            out.Double(value);
        Blocks(out);
        out.PatchWord(start, static_cast<uint32_t>(out.Size() - start));
        Add(kVersionType, name, out);
    }

    void FourPart(uint32_t (&version)[2]) {
        const uint32_t parts[4] = {Plain(), NextPlain(), NextPlain(), NextPlain()};
        version[0] = parts[0] << 16 | parts[1];
        version[1] = parts[2] << 16 | parts[3];
    }

    static size_t BeginNode(ByteWriter& out, uint32_t value_length, uint32_t type, const std::string& key) {
        out.Align4();
        const size_t start = out.Size();
        out.Word(0);  // its length, later
        out.Word(value_length);
        out.Word(type);
        out.Text(key);
        out.Align4();
        return start;
    }

    void Blocks(ByteWriter& out) {
        Expect("BEGIN");
        while (!IsWord("END")) {
            if (IsWord("BLOCK")) {
                Take();
                const size_t start = BeginNode(out, 0, 1, Text());
                Blocks(out);
                out.PatchWord(start, static_cast<uint32_t>(out.Size() - start));
            } else {
                Value(out);
            }
        }
        Take();
    }

    void Value(ByteWriter& out) {
        Expect("VALUE");
        const std::string key = Text();
        Comma();
        if (Now().kind == TokenKind::Text) {
            const std::string value = Text();
            const size_t start = BeginNode(out, static_cast<uint32_t>(value.size() + 1), 1, key);
            out.Text(value);
            out.PatchWord(start, static_cast<uint32_t>(out.Size() - start));
            return;
        }
        std::vector<uint32_t> words = {Plain()};
        while (IsMark(','))
            words.push_back(NextPlain());
        const size_t start = BeginNode(out, static_cast<uint32_t>(2 * words.size()), 0, key);
        for (const uint32_t word : words)
            out.Word(word);
        out.PatchWord(start, static_cast<uint32_t>(out.Size() - start));
    }

    const std::vector<Token> tokens_;
    const ResourceFiles& files_;
    size_t at_ = 0;
    int statement_line_ = 0;
    uint16_t icons_ = 0;
    std::set<std::pair<uint16_t, uint16_t>> known_;
    std::vector<Resource> resources_;
};

}  // namespace

std::vector<Resource> CompileResources(const std::string& script, const ResourceFiles& files) {
    return Compiler(script, files).Run();
}
