#include "cli/commands.h"
#include "cli/script_report.h"

namespace {

// Tags that the panel of an entity reads inside an action.
bool BelongsToAction(int keyword) {
    switch (keyword) {
        case KindTitle:
        case KindImage:
        case KindText:
        case KindSection:
        case KindHelp:
        case KindEntryHelp:
        case KindCntl:
        case KindDesc:
        case KindAction: return true;
        default: return keyword >= KindFlag1 && keyword <= KindSkill20 && keyword != KindSkill;
    }
}

// Says what a script's author would want to know, one line each, in the form that editors take for a place.
class NoteWriter : public TagObserver {
public:
    NoteWriter(const std::string& file, const ScriptText& text, std::ostream& out)
        : file_(file), text_(text), out_(out) {}

    void Passed(TagNote note, int keyword, int line, const char* place) override {
        if (keyword == KindNone) return;
        if (note == TagNote::InsideAction && BelongsToAction(keyword)) return;
        ++count_;
        out_ << file_ << ':' << line + 1 << ':' << Column(place) << ": note: " << KeywordName(keyword) << ": "
             << TagNoteText(note) << '\n';
    }

    int Count() const { return count_; }

private:
    long Column(const char* place) const {
        const char* start = place;
        while (start > text_.Data() && start[-1] != '\n')
            --start;
        return static_cast<long>(place - start) + 1;
    }

    const std::string& file_;
    const ScriptText& text_;
    std::ostream& out_;
    int count_ = 0;
};

int CheckFile(const std::string& file, Streams streams) {
    ScriptDocument script;
    NoteWriter notes(file, script.Text(), streams.out);
    switch (script.Load(file.c_str(), &notes)) {
        case LoadResult::Loaded: return notes.Count() > 0 ? ExitUser : ExitOk;
        case LoadResult::LineTooLong:
            streams.out
                << file << ':' << script.LongLine() + 1
                << ":1: note: a line of 1024 bytes or more keeps all tags of the script from being read\n";
            return ExitUser;
        case LoadResult::CannotOpen: break;
    }
    streams.err << "brlv: " << file << ": can't be read\n";
    return ExitFiles;
}

}  // namespace

int RunCheck(const std::vector<std::string>& files, Streams streams) {
    int status = ExitOk;
    for (const std::string& file : files)
        status = std::max(status, CheckFile(file, streams));
    return status;
}
