#include <message_box_answers.h>

#include <atomic>

namespace {

int Refuse(UINT type) {
    switch (type & MB_TYPEMASK) {
        case MB_OK: return IDOK;
        case MB_YESNO: return IDNO;
        case MB_ABORTRETRYIGNORE: return IDABORT;
        default: return IDCANCEL;
    }
}

std::atomic<MessageBoxAnswer> message_box_answer;

}  // namespace

void SetMessageBoxAnswer(MessageBoxAnswer answer) {
    message_box_answer = answer;
}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    if (!text) text = "";
    if (!caption) caption = "Error";
    const MessageBoxAnswer answer = message_box_answer;
    return answer ? answer(owner, text, caption, type) : Refuse(type);
}
