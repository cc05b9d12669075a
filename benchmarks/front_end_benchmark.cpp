#include "driver/translation.h"
#include "generator/first/generator.h"
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

/// A page of so many widgets, in columns that lie 50 deep.
std::string nestedWidgets(std::int64_t widgets) {
    constexpr std::int64_t DEPTH = 50;
    std::string columns;
    std::string ends;
    for (std::int64_t widget = 0; widget < widgets; ++widget) {
        const std::string label = "\"எண் " + std::to_string(widget) + "\"";
        if (widget % (widgets / DEPTH) == 0) {
            columns += "        நெடுவரிசை(\n";
            ends += ")";
        } else if (widget % 2 == 0) {
            columns += "        உரை(" + label + "),\n";
        } else {
            columns += "        பொத்தான்(உரை: " + label + ", அழுத்தினால்: செல்க(\"அ\")),\n";
        }
    }
    return "வலைதளம் (\n    தலைமை ()\n    குமரி (\n" + columns + "        " + ends + "\n    )\n    வரையறை ()\n)\n";
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
        benchmark::DoNotOptimize(generateText(parseSource(pozhil::makeSource("அளவு.பொழில்", text), {})));
    }
    state.SetComplexityN(state.range(0));
}

constexpr std::int64_t FEWEST_LINES = 6250;
constexpr std::int64_t MOST_LINES = 50000;
constexpr std::int64_t FEWEST_WIDGETS = 1250;
constexpr std::int64_t MOST_WIDGETS = 10000;

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
BENCHMARK_CAPTURE(wholeFrontEnd, nestedWidgets, nestedWidgets)
    ->RangeMultiplier(2)
    ->Range(FEWEST_WIDGETS, MOST_WIDGETS)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
