// What the operations of the engine cost that programs of the second edition spend their time in:
//
//   build/release/benchmarks/engine_benchmark

#include "engine/list.h"
#include "engine/program.h"
#include "engine/text.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace pozhil::engine;

constexpr Place HERE = "1:0-1";

std::string repeated(const char* piece, long times) {
    std::string text;
    for (; times > 0; --times) {
        text += piece;
    }
    return text;
}

void copyText(benchmark::State& state) {
    const Value original = text("வணக்கம்");
    for (auto _ : state) {
        Value copy = original;
        benchmark::DoNotOptimize(copy);
    }
}

void addWholeNumbers(benchmark::State& state) {
    Value sum = 0;
    for (auto _ : state) {
        sum = add(sum, Value(1), HERE);
        benchmark::DoNotOptimize(sum);
    }
}

void addDecimals(benchmark::State& state) {
    Value sum = 0.5;
    for (auto _ : state) {
        sum = add(sum, Value(1), HERE);
        benchmark::DoNotOptimize(sum);
    }
}

void printDecimal(benchmark::State& state) {
    double number = 0.1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(textForm(number));
        number += 0.1;
    }
}

void readNumber(benchmark::State& state) {
    const Value written = text("12.75");
    for (auto _ : state) {
        benchmark::DoNotOptimize(number(written, HERE));
    }
}

void joinInALoop(benchmark::State& state) {
    const Value piece = text("தமிழ்");
    for (auto _ : state) {
        Value grown = text("");
        for (long round = 0; round < state.range(0); ++round) {
            joinTo(grown, piece, HERE);
        }
        benchmark::DoNotOptimize(grown);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void countWhileGrowing(benchmark::State& state) {
    const Value piece = text("தமிழ்");
    for (auto _ : state) {
        Value grown = text("");
        for (long round = 0; round < state.range(0); ++round) {
            joinTo(grown, piece, HERE);
            benchmark::DoNotOptimize(length(grown, HERE));
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void normalizeTamil(benchmark::State& state) {
    const std::string bytes = repeated("தமிழ் மொழி ", state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(makeText(bytes));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<long>(bytes.size()));
}

void goOverLetters(benchmark::State& state) {
    const Value letters = makeText(repeated("தமிழ் மொழி ", state.range(0)));
    for (auto _ : state) {
        Each each(letters, HERE);
        for (Value letter; each.next(letter);) {
            benchmark::DoNotOptimize(letter);
        }
    }
    state.SetItemsProcessed(state.iterations() * length(letters, HERE));
}

void goOverLettersByIndex(benchmark::State& state) {
    const Value letters = makeText(repeated("தமிழ் மொழி ", state.range(0)));
    const Whole count = length(letters, HERE);
    for (auto _ : state) {
        for (Whole index = 0; index < count; ++index) {
            benchmark::DoNotOptimize(get(letters, index, HERE));
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void compareWords(benchmark::State& state) {
    const Value left = text("வணக்கம்");
    const Value right = text("வணங்கு");
    for (auto _ : state) {
        benchmark::DoNotOptimize(less(left, right, HERE));
    }
}

void equalLists(benchmark::State& state) {
    const auto made = [&] {
        Value numbers = makeList();
        for (Whole number = 0; number < state.range(0); ++number) {
            appendTo(listBlock(numbers), number);
        }
        return numbers;
    };
    const Value left = made();
    const Value right = made();
    for (auto _ : state) {
        benchmark::DoNotOptimize(equal(left, right));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void splitWords(benchmark::State& state) {
    const Value words = makeText(repeated("தமிழ் ", state.range(0)));
    const Value blank = text(" ");
    for (auto _ : state) {
        benchmark::DoNotOptimize(split(words, blank, HERE));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(copyText);
BENCHMARK(addWholeNumbers);
BENCHMARK(addDecimals);
BENCHMARK(printDecimal);
BENCHMARK(readNumber);
BENCHMARK(joinInALoop)->Arg(1'000)->Arg(100'000);
BENCHMARK(countWhileGrowing)->Arg(1'000)->Arg(100'000);
BENCHMARK(normalizeTamil)->Arg(1'000);
BENCHMARK(goOverLetters)->Arg(1'000)->Arg(100'000);
BENCHMARK(goOverLettersByIndex)->Arg(1'000)->Arg(100'000);
BENCHMARK(compareWords);
BENCHMARK(equalLists)->Arg(1'000);
BENCHMARK(splitWords)->Arg(1'000)->Arg(100'000);

} // namespace
