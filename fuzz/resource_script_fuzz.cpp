#include <resource.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

// The script itself is the icon that it names.
class ScriptAsFile : public ResourceFiles {
public:
    explicit ScriptAsFile(const Bytes& bytes) : bytes_(bytes) {}
    Bytes Read(const std::string&) const override { return bytes_; }

private:
    const Bytes& bytes_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const Bytes bytes(data, data + size);
    try {
        CompileResources(std::string(bytes.begin(), bytes.end()), ScriptAsFile(bytes));
    } catch (const ResourceError& error) {
        if (error.Line() < 1) std::abort();
    }
    return 0;
}
