#include "cli/console_messages.h"

#include <afxwin.h>

#include <utility>

#include "message_box_responder.h"

namespace {

// The buttons for yes and no, both 0 for a box that asks nothing.
std::pair<int, int> Buttons(UINT type) {
    switch (type & MB_TYPEMASK) {
        case MB_OKCANCEL: return {IDOK, IDCANCEL};
        case MB_YESNO: return {IDYES, IDNO};
        case MB_YESNOCANCEL: return {IDYES, IDCANCEL};
        default: return {0, 0};
    }
}

// What was asked under the program's name has no title of its own.
std::string Titled(const ShownMessageBox& box) {
    return box.caption == AfxGetAppName() ? box.text : box.caption + ": " + box.text;
}

}  // namespace

ConsoleMessages::ConsoleMessages(std::istream* terminal, bool yes, std::ostream& err)
    : terminal_(terminal), yes_(yes), err_(err) {
    SetMessageBoxResponder([this](const ShownMessageBox& box) {
        const auto [agreed, refused] = Buttons(box.type);
        if (agreed != 0) return Agrees(Titled(box)) ? agreed : refused;
        err_ << "brlv: " << Titled(box) << '\n';
        return IDOK;
    });
}

ConsoleMessages::~ConsoleMessages() {
    SetMessageBoxResponder({});
}

bool ConsoleMessages::Agrees(const std::string& question) {
    err_ << "brlv: " << question;
    if (yes_) {
        err_ << " yes\n";
        return true;
    }
    std::string answer;
    if (terminal_) {
        err_ << " [y/N] " << std::flush;
        if (!std::getline(*terminal_, answer)) err_ << '\n';
    } else {
        err_ << " no: there is no terminal to ask on (--yes answers yes)\n";
    }
    const bool agrees = !answer.empty() && (answer[0] == 'y' || answer[0] == 'Y');
    declined_ = declined_ || !agrees;
    return agrees;
}
