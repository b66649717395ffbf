// Decoding of pictures of 4096 by 4096 pixels from memory, beside stb_image where it knows the format, and
// beside a plain copy of the decoded bytes into a fresh block.

#include <benchmark/benchmark.h>
#include <stb/stb_image.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <tuple>

#include "controls/images/bitmap_layout.h"
#include "controls/images/image_readers.h"
#include "image_generator.h"

namespace {

constexpr int kSide = 4096;

void Require(bool holds) {
    if (!holds) std::abort();
}

const unsigned char* Bytes(const std::string& file) {
    return reinterpret_cast<const unsigned char*>(file.data());
}

void Report(benchmark::State& state, size_t size) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(size));
}

// The last file that was asked for, so that not all of them are in memory.
const std::string& File(std::string (*generate)(int64_t, int64_t), const benchmark::State& state) {
    static std::string file;
    static std::tuple<decltype(generate), int64_t, int64_t> madeFor;
    const std::tuple wanted(generate, state.range(0), state.range(1));
    if (madeFor != wanted) file = generate(state.range(0), state.range(1));
    madeFor = wanted;
    return file;
}

std::string Bmp(int64_t bits, int64_t) {
    return GenerateBmp(kSide, static_cast<int>(bits));
}

std::string Tga(int64_t bits, int64_t coded) {
    return GenerateTga(kSide, static_cast<int>(bits), coded != 0);
}

std::string Pcx(int64_t bits, int64_t coded) {
    return GeneratePcx(kSide, static_cast<int>(bits) / 8, coded != 0);
}

void Decode(benchmark::State& state, bool (*reader)(ByteCursor, DecodedImage&), const std::string& file) {
    size_t size = 0;
    for (auto _ : state) {
        DecodedImage image;
        Require(reader(ByteCursor(Bytes(file), file.size()), image));
        benchmark::DoNotOptimize(image.pixels.get());
        size = static_cast<size_t>(image.size);
    }
    Report(state, size);
}

void DecodeByStb(benchmark::State& state, const std::string& file) {
    int width, height, channels;
    for (auto _ : state) {
        stbi_uc* const pixels =
            stbi_load_from_memory(Bytes(file), static_cast<int>(file.size()), &width, &height, &channels, 0);
        Require(pixels);
        stbi_image_free(pixels);
    }
    Report(state, static_cast<size_t>(kSide) * kSide * static_cast<size_t>(channels));
}

void BmpReader(benchmark::State& state) {
    Decode(state, ReadBmp, File(Bmp, state));
}

void StbBmp(benchmark::State& state) {
    DecodeByStb(state, File(Bmp, state));
}

void TgaReader(benchmark::State& state) {
    Decode(state, ReadTga, File(Tga, state));
}

void StbTga(benchmark::State& state) {
    DecodeByStb(state, File(Tga, state));
}

void PcxReader(benchmark::State& state) {
    Decode(state, ReadPcx, File(Pcx, state));
}

// As many bytes as the picture has.
void PlainCopy(benchmark::State& state) {
    const std::string source(static_cast<size_t>(kSide) * kSide * static_cast<size_t>(state.range(0)) / 8,
                             'x');
    for (auto _ : state) {
        const HeapBlock copy(static_cast<unsigned char*>(std::malloc(source.size())));
        std::memcpy(copy.get(), source.data(), source.size());
        benchmark::DoNotOptimize(copy.get());
    }
    Report(state, source.size());
}

// The step from a picture to the pixels of a bitmap, whose block is there already.
void BitmapRows(benchmark::State& state) {
    const auto bytesPerPixel = static_cast<int>(state.range(0)) / 8;
    const DecodedImage image = AllocateImage(kSide, kSide, bytesPerPixel);
    BitmapLayout layout;
    Require(image.pixels && LayOutBitmap(kSide, kSide, bytesPerPixel, layout));
    std::memset(image.pixels.get(), 1, static_cast<size_t>(image.size));
    std::string bits(layout.Size(), 'x');
    for (auto _ : state) {
        StoreBitmapRows(layout, image.pixels.get(), reinterpret_cast<unsigned char*>(bits.data()));
        benchmark::ClobberMemory();
    }
    Report(state, layout.Size());
}

// Bits per pixel, and 1 for run-length coded.
void Variants(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgNames({"bits", "coded"})->Unit(benchmark::kMillisecond);
}

BENCHMARK(PlainCopy)->ArgName("bits")->Arg(8)->Arg(24)->Arg(32)->Unit(benchmark::kMillisecond);
BENCHMARK(BmpReader)->Apply(Variants)->Args({8, 0})->Args({24, 0});
BENCHMARK(StbBmp)->Apply(Variants)->Args({8, 0})->Args({24, 0});
BENCHMARK(TgaReader)->Apply(Variants)->Args({24, 0})->Args({32, 0})->Args({24, 1})->Args({32, 1});
BENCHMARK(StbTga)->Apply(Variants)->Args({24, 0})->Args({32, 0})->Args({24, 1})->Args({32, 1});
BENCHMARK(PcxReader)->Apply(Variants)->Args({8, 0})->Args({8, 1})->Args({24, 1});
BENCHMARK(BitmapRows)->ArgName("bits")->Arg(8)->Arg(24)->Unit(benchmark::kMillisecond);

}  // namespace
