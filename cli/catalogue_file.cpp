#include "cli/catalogue_file.h"

#include <algorithm>

#include "cli/commands.h"
#include "host/host_path.h"

std::string ShownPath(const std::string& path) {
    const std::string current = FullPath(".") + '\\';
    std::string shown = path.starts_with(current) ? path.substr(current.size()) : path;
    std::replace(shown.begin(), shown.end(), '\\', '/');
    return shown;
}

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.rfind('\\'));
}

int LoadCatalogue(CTemplateManager& catalogue, const std::string& path, const std::string& shownName,
                  std::ostream& err) {
    XmlResult result;
    if (catalogue.LoadFile(path.c_str(), &result)) return ExitOk;
    if (result.error == XmlErrorNone) {
        err << "brlv: " << shownName << ": can't be read\n";
    } else {
        err << shownName << ':' << result.line << ':' << result.column
            << ": error: " << XmlErrorText(result.error) << '\n';
    }
    return ExitFiles;
}
