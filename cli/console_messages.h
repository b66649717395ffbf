#pragma once

#include <istream>
#include <string>

#include "cli/commands.h"

// Answers the message boxes that the library shows as long as the object lives: messages are written to
// `err`, questions are put to the user. One object at a time.
class ConsoleMessages {
public:
    // `terminal` is where answers come from, or null when nobody is there: then every question is answered
    // with no, or with yes when `yes` is set.
    ConsoleMessages(std::istream* terminal, bool yes, std::ostream& err);
    ~ConsoleMessages();
    ConsoleMessages(const ConsoleMessages&) = delete;
    ConsoleMessages& operator=(const ConsoleMessages&) = delete;

    // True once a question was answered with no.
    bool Declined() const { return declined_; }

private:
    bool Agrees(const std::string& question);

    std::istream* terminal_;
    bool yes_;
    bool declined_ = false;
    std::ostream& err_;
};
