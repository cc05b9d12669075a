/// Feeds mutated programs to scanner, parser and generator. Each runs in a process of its own, since a diagnostic ends
/// the process; a run may end well or with a diagnostic, but never by a signal, by a sanitizer, or not at all.
///
///   front_end_fuzzer <inputs> <seed> <corpus folder>...
///
/// A failing input is kept beside the current directory as failure-<number>.பொழில்.

#include "base/source_text.h"
#include "driver/translation.h"
#include "mutator.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sys/wait.h>
#include <unistd.h>

/// A finding of the sanitizers must not look like a diagnostic, which ends with status 1. A diagnostic frees nothing, so
/// leaks aren't looked for.
extern "C" const char* __asan_default_options() {
    return "exitcode=99:detect_leaks=0";
}

namespace {

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
    for (const auto& file : files) {
        corpus.push_back(pozhil::readSourceText(file.u8string()).value_or(""));
    }
    return corpus;
}

[[noreturn]] void compileQuietly(const std::string& text) {
    alarm(SECONDS_PER_INPUT);
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    try {
        pozhil::generateText(pozhil::parseSource(pozhil::makeSource("சோதனை.பொழில்", text), {}));
    } catch (const pozhil::StageFailure&) {
        std::exit(1);
    }
    std::exit(0);
}

/// Whether the compiler ended as it may.
bool survives(const std::string& text) {
    const pid_t child = fork();
    if (child == 0) {
        compileQuietly(text);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) <= 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "front_end_fuzzer <inputs> <seed> <corpus folder>...\n";
        return 2;
    }
    const int inputs = std::stoi(argv[1]);
    const auto seed = static_cast<unsigned>(std::stoul(argv[2]));
    const std::vector<std::string> corpus = readCorpus({argv + 3, argv + argc});
    if (corpus.empty()) {
        std::cerr << "no sources in the corpus folders\n";
        return 2;
    }
    Mutator mutator(corpus, seed);
    int failures = 0;
    for (int input = 0; input < inputs; ++input) {
        const std::string text = mutator.next();
        if (!survives(text)) {
            const std::string name = "failure-" + std::to_string(++failures) + ".பொழில்";
            std::ofstream(name, std::ios::binary) << text;
            std::cout << "input " << input << " of seed " << seed << " failed: " << name << std::endl;
        }
    }
    std::cout << inputs << " inputs from " << corpus.size() << " sources, " << failures << " failures" << std::endl;
    return failures == 0 ? 0 : 1;
}
