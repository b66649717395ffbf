// The script core over a generated script, each step beside an opponent in the same run.
//
// The opponent of the line index and of the tag parse is the least that any line reader must do: memchr from
// line to line, storing each start in a vector. The opponent of saving is one plain write of the same bytes.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "customize/script_document.h"
#include "customize/tag_parser.h"
#include "script_generator.h"

namespace {

constexpr size_t kMegabyte = size_t{1} << 20;

// One script per size for the whole run.
const std::string& Script(benchmark::State& state) {
    static std::map<size_t, std::string> scripts;
    const size_t size = static_cast<size_t>(state.range(0)) * kMegabyte;
    std::string& script = scripts[size];
    if (script.empty()) script = GenerateScript(size);
    return script;
}

void CountBytes(benchmark::State& state, size_t bytes) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(bytes));
}

void MemchrLines(benchmark::State& state) {
    const std::string& script = Script(state);
    for (auto _ : state) {
        std::vector<const char*> starts;
        const char* const end = script.data() + script.size();
        const char* at = script.data();
        while (at != nullptr) {
            starts.push_back(at);
            at = static_cast<const char*>(std::memchr(at, '\n', static_cast<size_t>(end - at)));
            if (at != nullptr) ++at;
        }
        benchmark::DoNotOptimize(starts.data());
    }
    CountBytes(state, script.size());
}

void IndexLines(benchmark::State& state) {
    const std::string& script = Script(state);
    for (auto _ : state) {
        CLex lex(script.data(), static_cast<long>(script.size()));
        benchmark::DoNotOptimize(lex.getLinesNumber());
    }
    CountBytes(state, script.size());
}

void ParseTags(benchmark::State& state) {
    const std::string& script = Script(state);
    size_t records = 0;
    for (auto _ : state) {
        CLex lex(script.data(), static_cast<long>(script.size()));
        ScriptHeader header;
        CEntryList list;
        ParseScriptTags(header, list, lex);
        records = list.entries.size();
        benchmark::DoNotOptimize(list.entries.data());
    }
    state.counters["records"] = static_cast<double>(records);
    CountBytes(state, script.size());
}

std::filesystem::path TempFile(const char* name) {
    return std::filesystem::temp_directory_path() / name;
}

void PlainWrite(benchmark::State& state) {
    const std::string& script = Script(state);
    const std::string path = TempFile("brlv-bench-plain.brl").string();
    for (auto _ : state) {
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        const size_t written = std::fwrite(script.data(), 1, script.size(), file);
        if (std::fclose(file) != 0 || written != script.size()) state.SkipWithError("write failed");
    }
    std::filesystem::remove(path);
    CountBytes(state, script.size());
}

// Splices 1,000 values of changing length into the text and writes script and side file.
void SaveChangedValues(benchmark::State& state) {
    constexpr size_t kChanges = 1000;
    const std::string& script = Script(state);
    const std::filesystem::path path = TempFile("brlv-bench-save.brl");
    std::FILE* const file = std::fopen(path.string().c_str(), "wb");
    std::fwrite(script.data(), 1, script.size(), file);
    std::fclose(file);
    ScriptDocument document;
    if (document.Load(path.string().c_str()) != LoadResult::Loaded) state.SkipWithError("load failed");

    std::vector<size_t> numbers;
    for (size_t i = 0; i < document.List().entries.size(); ++i) {
        if (document.Entry(i).kind == KindNumEdit && numbers.size() < kChanges) numbers.push_back(i);
    }
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ++round;
        for (const size_t entry : numbers) {
            document.Edit(entry)->DisplayValue(round % 2 == 0 ? "7" : "123");
        }
        const std::vector<NewValue> changes = document.ChangedValues();
        state.ResumeTiming();
        if (document.Save(changes) != SaveResult::Saved) state.SkipWithError("save failed");
    }
    state.counters["changes"] = static_cast<double>(numbers.size());
    std::filesystem::remove(path);
    std::filesystem::remove(path.string() + ".brlv");
    CountBytes(state, script.size());
}

constexpr int64_t kSizes[] = {1, 4, 16, 64};

void AllSizes(benchmark::internal::Benchmark* bench) {
    for (const int64_t megabytes : kSizes)
        bench->Arg(megabytes);
    bench->ArgName("MB")->Unit(benchmark::kMillisecond);
}

BENCHMARK(MemchrLines)->Apply(AllSizes);
BENCHMARK(IndexLines)->Apply(AllSizes);
BENCHMARK(ParseTags)->Apply(AllSizes);
BENCHMARK(PlainWrite)->Apply(AllSizes)->UseRealTime();
BENCHMARK(SaveChangedValues)->Apply(AllSizes)->UseRealTime();

}  // namespace
