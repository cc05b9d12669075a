#include "fuzzer.h"

#include "base/source_text.h"
#include "mutator.h"
#include "worker.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

namespace {

/// Few enough that a leak is soon found out, and enough that the look for it doesn't count.
constexpr std::size_t INPUTS_PER_WORKER = 1000;

constexpr unsigned SECONDS_PER_INPUT = 20;

std::vector<std::string> readCorpus(const std::vector<std::string>& folders) {
    std::vector<std::filesystem::path> files;
    for (const std::string& folder : folders) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(std::filesystem::u8path(folder))) {
            if (entry.path().extension() == ".பொழில்") {
                files.push_back(entry.path());
            }
        }
    }
    std::sort(files.begin(), files.end());
    std::vector<std::string> corpus;
    corpus.reserve(files.size());
    for (const auto& file : files) {
        corpus.push_back(pozhil::readSourceText(file.u8string()).value_or(""));
    }
    return corpus;
}

/// The source after \p passed others.
std::string sourceAfter(Mutator& mutator, std::size_t passed) {
    for (; passed > 0; --passed) {
        mutator.next();
    }
    return mutator.next();
}

/// Works on as many sources of the mutator as told and keeps those that fail. A worker has its own copy of the mutator;
/// this one follows to where the worker ended, so that the next worker goes on from there.
/// \returns how many failed
int fuzz(Mutator& mutator, std::size_t inputs, unsigned seed, void (*work)(std::string text)) {
    int failures = 0;
    for (std::size_t next = 0; next < inputs;) {
        const std::size_t end = std::min(inputs, next + INPUTS_PER_WORKER);
        const auto failure = runInWorker(
            next, end, [&] { work(mutator.next()); }, SECONDS_PER_INPUT);
        const std::size_t last = failure ? failure->input : end - 1;
        const std::string text = sourceAfter(mutator, last - next);
        if (failure) {
            const std::string name = "failure-" + std::to_string(++failures) + ".பொழில்";
            std::ofstream(name, std::ios::binary) << text;
            std::cout << "input " << last << " of seed " << seed << " failed (" << failure->reason << "): " << name
                      << std::endl;
        }
        next = last + 1;
    }
    return failures;
}

} // namespace

int runFuzzer(int argc, char** argv, void (*work)(std::string text)) {
    if (argc < 4) {
        std::cerr << argv[0] << " <inputs> <seed> <corpus folder>...\n";
        return 2;
    }
    const std::size_t inputs = std::stoul(argv[1]);
    const auto seed = static_cast<unsigned>(std::stoul(argv[2]));
    const std::vector<std::string> corpus = readCorpus({argv + 3, argv + argc});
    if (corpus.empty()) {
        std::cerr << "no sources in the corpus folders\n";
        return 2;
    }
    Mutator mutator(corpus, seed);
    const int failures = fuzz(mutator, inputs, seed, work);
    std::cout << inputs << " inputs from " << corpus.size() << " sources, " << failures << " failures" << std::endl;
    return failures == 0 ? 0 : 1;
}
