// Many windows: how their cost grows with their number, and that nothing of them stays.

#include <afxwin.h>
#include <benchmark/benchmark.h>

#include <string>

#include "controls/entry_classes.h"
#include "customize/entry_controls.h"
#include "customize/tag_parser.h"
#include "resources/resource_ids.h"

namespace {

constexpr int kRowHeight = 20;

CWinApp bench_app;

void PaintAll(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void CountLeft(benchmark::State& state, DWORD windows, DWORD objects) {
    state.counters["windows left"] =
        GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS) - static_cast<double>(windows);
    state.counters["objects left"] =
        GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) - static_cast<double>(objects);
    state.SetComplexityN(state.range(0));
}

// Plain child windows: made, laid out, painted, scrolled and destroyed.
void ChildWindows(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    const DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    const DWORD objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for ([[maybe_unused]] auto _ : state) {
        const HWND top = CreateWindowExA(0, "#32770", "", WS_POPUP | WS_VISIBLE, 0, 0, 400, 600, nullptr,
                                         nullptr, AfxGetInstanceHandle(), nullptr);
        HWND child = nullptr;
        for (int i = 0; i < count; ++i) {
            child = CreateWindowExA(0, "Button", "row", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, top, nullptr,
                                    nullptr, nullptr);
            MoveWindow(child, 4, i * kRowHeight, 300, kRowHeight - 2, FALSE);
        }
        PaintAll(top);
        ScrollWindow(top, 0, -100, nullptr, nullptr);
        UpdateWindow(top);
        DestroyWindow(top);
        benchmark::DoNotOptimize(child);
    }
    CountLeft(state, windows, objects);
}

std::string ScriptOf(int entries) {
    std::string script;
    for (int i = 0; i < entries; ++i) {
        const std::string number = std::to_string(i);
        script += i % 2 == 0 ? "// entry: Speed " + number + "\nvar speed" + number + " = 5;\n"
                             : "// entry: Name " + number + "\nstring name" + number + " = \"Mira\";\n";
    }
    return script + "\r\n" + '\0';
}

// The column of controls of a script.
void ColumnOfControls(benchmark::State& state) {
    RegisterEntryClasses();
    const std::string script = ScriptOf(static_cast<int>(state.range(0)));
    const DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    const DWORD objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for ([[maybe_unused]] auto _ : state) {
        CDialog panel;
        panel.Create(kViewerFrameDialog);
        panel.ShowWindow(SW_SHOW);
        CLex lex(script.data(), static_cast<long>(script.size()));
        CEntryList list;
        ScriptHeader header;
        ParseScriptTags(header, list, lex);
        list.parent = &panel;
        for (size_t i = 0; i < list.entries.size(); ++i)
            CreateEntryControl(list, i, nullptr);
        PaintAll(panel.m_hWnd);
        panel.ScrollWindow(0, -100);
        panel.UpdateWindow();
        DestroyEntryControls(list);
        panel.DestroyWindow();
        AfxDeleteTemporaryObjects();
    }
    CountLeft(state, windows, objects);
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (const int count : {250, 500, 1000, 2000})
        bench->Arg(count);
    bench->Unit(benchmark::kMillisecond)->Complexity();
}

BENCHMARK(ChildWindows)->Apply(Sizes);
BENCHMARK(ColumnOfControls)->Apply(Sizes);

}  // namespace
