#include "driver/front_end.h"
#include "generator/generator.h"
#include "scanner/lexer.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace pozhil;

/// So many lines of prints, a comment behind every second one.
std::string printsAndComments(std::int64_t lines) {
    std::string source;
    for (std::int64_t line = 0; line < lines; ++line) {
        source += line % 3 == 2 ? "ஃ குறிப்பு " + std::to_string(line) + "\n"
                                : "அச்சிடு(\"வரி எண் " + std::to_string(line) + "\")\n";
    }
    return source;
}

/// So many lines of assignments with nested arithmetic over many names.
std::string assignments(std::int64_t lines) {
    constexpr std::int64_t NAMES = 5000;
    std::string source;
    for (std::int64_t line = 0; line < lines; ++line) {
        source += "பெயர்" + std::to_string(line % NAMES) + " = பெயர்" + std::to_string((line + 1) % NAMES) + " கூட்டு " +
                  std::to_string(line) + " பெருக்கு (3 கழி 1)\n";
    }
    return source;
}

using MakeSource = std::string (*)(std::int64_t);

void scan(benchmark::State& state, MakeSource makeSource) {
    const std::string text = makeSource(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Lexer(text, "அளவு.பொழில்").tokenize());
    }
    state.SetComplexityN(state.range(0));
}

void wholeFrontEnd(benchmark::State& state, MakeSource makeSource) {
    const std::string text = makeSource(state.range(0));
    for (auto _ : state) {
        SourceFile source;
        source.path = "அளவு.பொழில்";
        source.text = text;
        parseSource(source, {});
        benchmark::DoNotOptimize(generateText(source));
    }
    state.SetComplexityN(state.range(0));
}

constexpr std::int64_t FEWEST_LINES = 6250;
constexpr std::int64_t MOST_LINES = 50000;

} // namespace

BENCHMARK_CAPTURE(scan, prints, printsAndComments)
    ->RangeMultiplier(2)
    ->Range(FEWEST_LINES, MOST_LINES)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeFrontEnd, prints, printsAndComments)
    ->RangeMultiplier(2)
    ->Range(FEWEST_LINES, MOST_LINES)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeFrontEnd, assignments, assignments)
    ->RangeMultiplier(2)
    ->Range(FEWEST_LINES, MOST_LINES)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
