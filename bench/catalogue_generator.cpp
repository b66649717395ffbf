#include "catalogue_generator.h"

#include <cstddef>

namespace {

constexpr int kScriptsPerClass = 10;

void AppendScript(std::string& text, int script) {
    const std::string number = std::to_string(script);
    const std::string file = GeneratedFile(script);
    text += "\t<Script id=\"" + number + "\" directory=\"scripts\" filename=\"" + file + "\" name=\"" +
            GeneratedName(script) + "\" type=\"USER\" vers=\"" + std::to_string(script % 120) +
            "\" date=\"20240118\">\r\n";
    text += "\t\t<class>Class " + std::to_string(script / kScriptsPerClass) + "</class>\r\n";
    text += "\t\t<desc>A door with a lock and a key, number " + number +
            ". Each time it is added the project gets a further, numbered door;\r\n"
            "\t\t\tthe key can be any entity, and it needn't be the same one for all.</desc>\r\n"
            "\t\t<need>tools.brl</need>\r\n"
            "\t\t<need>sound.brl</need>\r\n";
    text += "\t\t<action name=\"act_" + number + "\" filename=\"" + file +
            "\">Opens when the hero touches it.</action>\r\n"
            "\t</Script>\r\n";
}

}  // namespace

std::string GeneratedName(int script) {
    return "Door " + std::to_string(script);
}
std::string GeneratedFile(int script) {
    return "door_" + std::to_string(script) + ".brl";
}

std::string GenerateCatalogue(int scripts) {
    constexpr size_t kScriptSize = 520;
    std::string text =
        "<?xml version=\"1.0\"?>\r\n"
        "<Catalogue name=\"Generated\" type=\"Test\" version=\"6.04\" engineReq=\"6.2\" "
        "date=\"20240415\">\r\n"
        "\t<Directory type=\"base\" path=\"templates\"/>\r\n"
        "\t<Directory type=\"scripts\" path=\".\\template_6\"/>\r\n";
    text.reserve(text.size() + kScriptSize * static_cast<size_t>(scripts));
    for (int script = 0; script < scripts; ++script)
        AppendScript(text, script);
    return text + "</Catalogue>\r\n";
}
