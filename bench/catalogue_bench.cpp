// Reading the catalogue beside two well-known readers of XML on the same text, and asking it.
//
// Ours and "PugiXml" leave the text as it is, and so pay for copies of what they keep; "PugiXmlInPlace"
// writes into a text that it may destroy, whose copying is not counted. TinyXml2 copies too.

#include <afx.h>
#include <benchmark/benchmark.h>
#include <tinyxml2.h>

#include <cstdio>
#include <cstdlib>
#include <pugixml.hpp>
#include <string>
#include <unordered_map>
#include <vector>

#include "catalogue/template_catalogue.h"
#include "catalogue_generator.h"

namespace {

// The last text that was asked for: one of them alone takes 50 MB.
const std::string& Catalogue(int64_t scripts) {
    static int64_t madeFor = -1;
    static std::string text;
    if (madeFor != scripts) text = GenerateCatalogue(static_cast<int>(scripts));
    madeFor = scripts;
    return text;
}

void Require(bool holds) {
    if (!holds) std::abort();
}

// `each` is the time for one script or item: it must not grow with their number beyond what the memory costs.
void ReportEach(benchmark::State& state) {
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Report(benchmark::State& state, const std::string& text) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
    ReportEach(state);
}

void XmlReader(benchmark::State& state) {
    const std::string& text = Catalogue(state.range(0));
    for (auto _ : state)
        Require(XmlTreePtr(CXmlReader::Parse(text.c_str(), nullptr)) != nullptr);
    Report(state, text);
}

void PugiXml(benchmark::State& state) {
    const std::string& text = Catalogue(state.range(0));
    for (auto _ : state)
        Require(pugi::xml_document().load_buffer(text.data(), text.size()));
    Report(state, text);
}

void PugiXmlInPlace(benchmark::State& state) {
    const std::string& text = Catalogue(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        std::string copy(text);
        state.ResumeTiming();
        Require(pugi::xml_document().load_buffer_inplace(copy.data(), copy.size()));
    }
    Report(state, text);
}

void TinyXml2(benchmark::State& state) {
    const std::string& text = Catalogue(state.range(0));
    for (auto _ : state) {
        Require(tinyxml2::XMLDocument().Parse(text.data(), text.size()) == tinyxml2::XML_SUCCESS);
    }
    Report(state, text);
}

// One element with so many attributes and so many children.
void LongItemList(benchmark::State& state) {
    std::string text = "<a";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += " x=1";
    text += '>';
    for (int64_t i = 0; i < state.range(0); ++i)
        text += "<b/>";
    for (auto _ : state)
        Require(XmlTreePtr(CXmlReader::Parse(text.c_str(), nullptr)) != nullptr);
    Report(state, text);
}

void DeepNesting(benchmark::State& state) {
    std::string text;
    for (int64_t i = 0; i < state.range(0); ++i)
        text += i % 2 ? "<a>" : "<b>";
    for (auto _ : state)
        Require(XmlTreePtr(CXmlReader::Parse(text.c_str(), nullptr)) != nullptr);
    Report(state, text);
}

void LoadText(benchmark::State& state) {
    const std::string& text = Catalogue(state.range(0));
    for (auto _ : state) {
        CTemplateManager catalogue;
        Require(catalogue.LoadText(text.c_str(), nullptr));
    }
    Report(state, text);
}

void LoadFile(benchmark::State& state) {
    const std::string& text = Catalogue(state.range(0));
    const char* name = "catalogue_bench.xml";
    FILE* file = std::fopen(name, "wb");
    Require(file && std::fwrite(text.data(), 1, text.size(), file) == text.size() && std::fclose(file) == 0);
    for (auto _ : state) {
        CTemplateManager catalogue;
        Require(catalogue.LoadFile(name, nullptr));
    }
    std::remove(name);
    Report(state, text);
}

BENCHMARK(XmlReader)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(PugiXml)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(PugiXmlInPlace)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(TinyXml2)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(LongItemList)->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(DeepNesting)->RangeMultiplier(10)->Range(1000, 1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadText)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadFile)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

constexpr int kLookups = 10000;

// What 10,000 lookups all over the catalogue ask for, among so many scripts.
std::vector<std::string> Questions(int64_t scripts, std::string (*question)(int)) {
    std::vector<std::string> questions;
    for (int64_t i = 0; i < kLookups; ++i)
        questions.push_back(question(static_cast<int>(i * 7919 % scripts)));
    return questions;
}

void LookUpByName(benchmark::State& state) {
    CTemplateManager catalogue;
    catalogue.LoadText(Catalogue(state.range(0)).c_str(), nullptr);
    CString vers;
    const auto names = Questions(state.range(0), GeneratedName);
    for (auto _ : state) {
        for (const std::string& name : names)
            Require(catalogue.GetVers(vers, name.c_str()));
    }
    state.SetItemsProcessed(state.iterations() * kLookups);
}

void LookUpByFile(benchmark::State& state) {
    CTemplateManager catalogue;
    catalogue.LoadText(Catalogue(state.range(0)).c_str(), nullptr);
    CString name;
    const auto files = Questions(state.range(0), GeneratedFile);
    for (auto _ : state) {
        for (const std::string& file : files)
            Require(catalogue.GetNameOfFile(name, file.c_str()));
    }
    state.SetItemsProcessed(state.iterations() * kLookups);
}

// The yardstick: the standard library's own table of the same names.
void LookUpInHashTable(benchmark::State& state) {
    std::unordered_map<std::string, int> table;
    for (int i = 0; i < state.range(0); ++i)
        table.emplace(GeneratedName(i), i);
    const auto names = Questions(state.range(0), GeneratedName);
    for (auto _ : state) {
        for (const std::string& name : names)
            Require(table.find(name) != table.end());
    }
    state.SetItemsProcessed(state.iterations() * kLookups);
}

void GetClasses(benchmark::State& state) {
    CTemplateManager catalogue;
    catalogue.LoadText(Catalogue(state.range(0)).c_str(), nullptr);
    CStringArray classes;
    for (auto _ : state)
        catalogue.GetClasses(classes, "USER");
    ReportEach(state);
}

BENCHMARK(LookUpByName)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LookUpByFile)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LookUpInHashTable)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GetClasses)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMicrosecond);

}  // namespace
