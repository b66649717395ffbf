// A project of many scripts: adding one more to its main script, beside a plain write of the same bytes, and
// the comparison of the Update page, with the number of files that it opens for each script.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "catalogue/project_record.h"
#include "catalogue_generator.h"
#include "host/folder_host.h"
#include "host/host_path.h"
#include "manager/update_list.h"
#include "opened_files.h"

namespace {

namespace fs = std::filesystem;

std::string MainScript(int64_t includes) {
    std::string text = "// The main script of a large project.\r\n\r\n";
    for (int64_t i = 0; i < includes; ++i)
        text += "include <" + GeneratedFile(static_cast<int>(i)) + ">;\r\n";
    return text + "\r\nfunction main()\r\n{\r\n}\r\n";
}

// A folder that goes with the object.
class BenchFolder {
public:
    BenchFolder() : path_(fs::temp_directory_path() / "brlv-bench-project") {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~BenchFolder() { fs::remove_all(path_); }

    std::string Name(const std::string& file) const { return FullPath((path_ / file).string()); }
    void Write(const std::string& file, const std::string& bytes) const {
        fs::create_directories((path_ / file).parent_path());
        std::ofstream(path_ / file, std::ios::binary) << bytes;
    }

private:
    fs::path path_;
};

void Require(benchmark::State& state, bool holds) {
    if (!holds) state.SkipWithError("failed");
}

void ReportEach(benchmark::State& state) {
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void AddOneInclude(benchmark::State& state) {
    const BenchFolder folder;
    const std::string text = MainScript(state.range(0));
    folder.Write("new.brl", "// needs: door_0.brl\r\n");
    for (auto _ : state) {
        state.PauseTiming();
        folder.Write("main.brl", text);
        state.ResumeTiming();
        CLex lex(text.data(), static_cast<long>(text.size()));
        Require(state, ChangeByAdding(lex, folder.Name("main.brl").c_str(), folder.Name("new.brl").c_str()) ==
                           RecordChange::Written);
    }
    ReportEach(state);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}

void PlainWrite(benchmark::State& state) {
    const BenchFolder folder;
    const std::string text = MainScript(state.range(0));
    for (auto _ : state)
        folder.Write("main.brl", text);
    ReportEach(state);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}

std::string Script(int version) {
    std::string text = "// ver: " + std::to_string(version) + "\r\n// date: 20240118\r\n";
    for (int line = 0; line < 100; ++line)
        text += "\tvar rest = speed * time_step; // quants\r\n";
    return text;
}

void CompareProjectCopies(benchmark::State& state) {
    const BenchFolder folder;
    const int count = static_cast<int>(state.range(0));
    for (int i = 0; i < count; ++i) {
        folder.Write("project/" + GeneratedFile(i), Script(i % 2));
        folder.Write("base/templates/" + GeneratedFile(i), Script(1));
    }
    folder.Write("project/main.brl", MainScript(count));
    HostProject project;
    project.folder = folder.Name("project");
    project.mainScript = folder.Name("project\\main.brl");
    project.baseFolder = folder.Name("base");
    project.templateFolder = "templates";
    FolderHost host(project);
    g_appInterface = host.App();
    CTemplateManager catalogue;
    catalogue.LoadText(GenerateCatalogue(count).c_str(), nullptr);

    const unsigned long before = OpenedFiles();
    for (auto _ : state) {
        const std::vector<UpdateEntry> listed = ListUpdates(catalogue, false);
        Require(state, listed.size() == static_cast<size_t>(count) / 2);
    }
    g_appInterface = nullptr;
    // The main script is one more, and shows as a part of each.
    state.counters["reads_each"] = static_cast<double>(OpenedFiles() - before) /
                                   static_cast<double>(state.iterations()) / static_cast<double>(count);
    ReportEach(state);
}

BENCHMARK(AddOneInclude)
    ->RangeMultiplier(10)
    ->Range(100, 100000)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime();
BENCHMARK(PlainWrite)->RangeMultiplier(10)->Range(100, 100000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(CompareProjectCopies)->RangeMultiplier(10)->Range(10, 1000)->Unit(benchmark::kMillisecond);

}  // namespace
