// Turns a resource script into C++ code that holds the resources and registers them when its program or
// library is loaded.
//
//   rc SCRIPT.rc OUTPUT.cpp

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>

#include "resource.h"

namespace {

Bytes ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error(path + " can't be read");
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Files lie beside the script.
class FilesBeside : public ResourceFiles {
public:
    explicit FilesBeside(const std::string& script)
        : folder_(script.substr(0, script.find_last_of('/') + 1)) {}
    Bytes Read(const std::string& name) const override { return ReadFile(folder_ + name); }

private:
    std::string folder_;
};

void WriteBytes(std::ostream& out, const Bytes& bytes) {
    constexpr size_t kPerLine = 20;
    for (size_t i = 0; i < bytes.size(); ++i)
        out << static_cast<unsigned>(bytes[i]) << (i % kPerLine == kPerLine - 1 ? ",\n" : ",");
}

void WriteCode(std::ostream& out, const std::vector<Resource>& resources) {
    out << "#include <resource_table.h>\n\nnamespace {\n";
    for (size_t i = 0; i < resources.size(); ++i) {
        out << "\nalignas(4) const unsigned char data" << i << "[] = {";
        WriteBytes(out, resources[i].data);
        out << "};\n";
    }
    out << "\nconst ResourceEntry entries[] = {\n";
    for (size_t i = 0; i < resources.size(); ++i)
        out << "    {" << resources[i].type << ", " << resources[i].name << ", data" << i << ", sizeof data"
            << i << "},\n";
    out << "};\n\nconst ResourceTable table(entries, sizeof entries / sizeof *entries);\n\n}  // namespace\n";
}

int Run(const std::string& script, const std::string& output) {
    const Bytes bytes = ReadFile(script);
    try {
        const auto resources = CompileResources(std::string(bytes.begin(), bytes.end()), FilesBeside(script));
        std::ofstream out(output, std::ios::binary);
        WriteCode(out, resources);
        out.flush();
        if (!out) throw std::runtime_error(output + " can't be written");
        return 0;
    } catch (const ResourceError& error) {
        std::cerr << script << ':' << error.Line() << ": error: " << error.what() << '\n';
        return 1;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: rc SCRIPT.rc OUTPUT.cpp\n";
        return 2;
    }
    try {
        return Run(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::cerr << "rc: " << error.what() << '\n';
        return 2;
    }
}
