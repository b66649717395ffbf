#include "script_generator.h"

namespace {

void AppendTags(std::string& script, int number) {
    const std::string n = std::to_string(number);
    script += "// section: Values of part " + n +
              "\r\n"
              "// entry: Walk speed " +
              n +
              "\r\n"
              "// help: Quants per tick, measured on level ground.\r\n"
              "// help: Whole numbers only.\r\n"
              "// id: " +
              std::to_string(number * 4 + 1) +
              "\r\n"
              "// cntl: spin 0 200 5\r\n"
              "var walk_speed_" +
              n + " = " + std::to_string(number % 200) +
              ";\r\n"
              "\r\n"
              "// entry: Greeting\r\n"
              "// id: " +
              std::to_string(number * 4 + 2) +
              "\r\n"
              "string greeting_" +
              n + " = \"Welcome to part " + n +
              "\";\r\n"
              "\r\n"
              "// enable: Shadows\r\n"
              "// id: " +
              std::to_string(number * 4 + 3) +
              "\r\n"
              "use_shadows(part_" +
              n +
              ");\r\n"
              "\r\n"
              "// entry_drop: Mode\r\n"
              "// cntl: drop fast slow careful\r\n"
              "string mode_" +
              n +
              " = \"careful\";\r\n"
              "\r\n";
}

void AppendFunction(std::string& script, int number) {
    const std::string n = std::to_string(number);
    script +=
        "//////////////////////////////////////////////////////////////\r\n"
        "// moves the figure along its path, called once per tick\r\n"
        "function move_part_" +
        n +
        "(who, speed)\r\n"
        "{\r\n"
        "\tvar way = 0;\r\n"
        "\tvar rest = speed * time_step; // quants\r\n"
        "\twhile (rest > 0)\r\n"
        "\t{\r\n"
        "\t\tway = trace_way(who, rest);\r\n"
        "\t\tif (way < rest)\r\n"
        "\t\t{\r\n"
        "\t\t\t// something stands in the way\r\n"
        "\t\t\tturn_aside(who, way);\r\n"
        "\t\t}\r\n"
        "\t\trest = rest - max(way, 1);\r\n"
        "\t\twait(1);\r\n"
        "\t}\r\n"
        "\tplay_sound(who, step_sound, 50);\r\n"
        "}\r\n"
        "\r\n";
}

}  // namespace

std::string GenerateScript(size_t size) {
    constexpr int kFunctionsPerTags = 6;
    std::string script = "// ver: 104\r\n// date: 20260101\r\n// title: Generated script\r\n\r\n";
    script.reserve(size + 4096);
    for (int part = 0; script.size() < size; ++part) {
        AppendTags(script, part);
        for (int i = 0; i < kFunctionsPerTags; ++i)
            AppendFunction(script, part * kFunctionsPerTags + i);
    }
    script += "\r\n";
    script += '\0';
    return script;
}
