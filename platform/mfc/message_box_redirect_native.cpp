#include <message_box_answers.h>

#include "message_box_redirect.h"

void RedirectMessageBoxes(MessageBoxFunction target) {
    SetMessageBoxAnswer(target);
}
