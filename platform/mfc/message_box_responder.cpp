#include "message_box_responder.h"

#include <mutex>
#include <utility>

#include "message_box_redirect.h"

namespace {

struct Responders {
    std::mutex mutex;
    MessageBoxResponder current;
};

Responders& State() {
    static Responders state;
    return state;
}

int WINAPI Respond(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    MessageBoxResponder responder;
    {
        const std::lock_guard lock(State().mutex);
        responder = State().current;
    }
    // Taken away on another thread in this very moment.
    if (!responder) return MessageBoxA(owner, text, caption, type);
    return responder({owner, text ? text : "", caption ? caption : "Error", type});
}

}  // namespace

void SetMessageBoxResponder(MessageBoxResponder responder) {
    const std::lock_guard lock(State().mutex);
    State().current = std::move(responder);
    RedirectMessageBoxes(State().current ? &Respond : nullptr);
}
