/// Breaks lines of sources without a fault, and checks that no fault of meaning is told then: all of them could only come of
/// what can't be read any more.
///
///     partial_meaning_properties TRIES SEED DIRECTORY…
///
/// TRIES is the number of broken lines of each source, SEED the beginning of chance.

#include "analysis/second/analysis.h"
#include "front_end/second_edition.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>
#include <vector>

using namespace pozhil;

namespace {

namespace fs = std::filesystem;

constexpr const char* MODULES = "தொகுப்புகள்";
constexpr const char* TESTS = "சோதனைகள்";

/// Makes one line of a text what hardly anybody would write on purpose, but everybody while typing.
class Breaker {
public:
    explicit Breaker(unsigned seed) : chance_(seed) {}

    std::string broken(const std::string& text) {
        std::vector<std::string> lines = splitLines(text);
        // The first line asks for the edition.
        std::string& line = lines[1 + below(lines.size() - 1)];
        switch (below(4)) {
        case 0: removeOne(line, "()[]{}:,\""); break;
        case 1: cut(line); break;
        case 2: doubleWord(line); break;
        default: line.insert(std::max(placeIn(line), std::min(line.find_first_not_of(' '), line.size())), "("); break;
        }
        std::string whole;
        for (const std::string& one : lines) {
            whole += one + "\n";
        }
        return whole;
    }

private:
    static std::vector<std::string> splitLines(const std::string& text) {
        std::vector<std::string> lines;
        for (std::size_t begin = 0; begin < text.size();) {
            const std::size_t end = std::min(text.find('\n', begin), text.size());
            lines.push_back(text.substr(begin, end - begin));
            begin = end + 1;
        }
        return lines;
    }

    std::size_t below(std::size_t count) { return count == 0 ? 0 : chance_() % count; }

    /// Between two characters.
    std::size_t placeIn(const std::string& line) {
        std::size_t place = below(line.size() + 1);
        while (place < line.size() && (static_cast<unsigned char>(line[place]) & 0xC0U) == 0x80U) {
            --place;
        }
        return place;
    }

    void removeOne(std::string& line, const char* signs) {
        std::vector<std::size_t> places;
        for (std::size_t at = line.find_first_of(signs); at != std::string::npos;
             at = line.find_first_of(signs, at + 1)) {
            places.push_back(at);
        }
        if (!places.empty()) {
            line.erase(places[below(places.size())], 1);
        }
    }

    void cut(std::string& line) { line.resize(placeIn(line)); }

    void doubleWord(std::string& line) {
        std::vector<std::string> words;
        for (std::size_t begin = line.find_first_not_of(' '); begin < line.size();
             begin = line.find_first_not_of(' ', begin)) {
            const std::size_t end = std::min(line.find(' ', begin), line.size());
            words.push_back(line.substr(begin, end - begin));
            begin = end;
        }
        if (!words.empty()) {
            const std::string& word = words[below(words.size())];
            line.insert(line.find(word), word + " ");
        }
    }

    std::mt19937 chance_;
};

/// Counts, so that a check that never looks at anything shows.
struct Counts {
    int sources = 0;
    int broken = 0;
    int failures = 0;
};

/// The source with one of its lines broken, as if it were the file itself.
class BrokenSource {
public:
    BrokenSource(std::string path, FrontEndOptions options) : path_(std::move(path)), options_(std::move(options)) {}

    /// \return whether there is a fault of the grammar and all could be read
    bool check(const std::string& text, Counts& counts) const {
        const SecondProgram program = parseSecondEdition(makeSource(path_, text), options_);
        if (program.faults.empty() || !isReadThrough(program)) {
            return false;
        }
        const SecondMeaning meaning = analyseSecondEdition(program);
        for (const SecondFault& fault : meaning.faults) {
            const report::FaultText told = faultText(fault);
            const report::FaultText cause = faultText(program.faults.front());
            std::cerr << path_ << ":" << told.excerpt.line << ": " << fault.number << " " << told.message << "\n  "
                      << told.excerpt.lineText << "\n  after " << cause.excerpt.line << ": " << cause.message << "\n  "
                      << cause.excerpt.lineText << "\n";
        }
        counts.failures += meaning.faults.empty() ? 0 : 1;
        return true;
    }

private:
    std::string path_;
    FrontEndOptions options_;
};

bool isWithoutFault(const SourcePtr& source, const FrontEndOptions& options) {
    SecondFaults faults;
    if (editionOf(source, faults) != Edition::Second) {
        return false;
    }
    const SecondProgram program = parseSecondEdition(source, options);
    return program.faults.empty() && analyseSecondEdition(program).faults.empty();
}

void checkFile(const fs::path& path, int tries, unsigned seed, Counts& counts) {
    FrontEndOptions options;
    options.moduleDirectories = {(fs::path(POZHIL_SOURCE_DIRECTORY) / fs::u8path(MODULES)).u8string()};
    options.isTest = path.parent_path().filename() == fs::u8path(TESTS);
    const SourcePtr source = loadSource(path.u8string(), options);
    if (source == nullptr || !isWithoutFault(source, options)) {
        return;
    }
    ++counts.sources;
    Breaker breaker(seed + static_cast<unsigned>(counts.sources));
    const BrokenSource broken(path.u8string(), options);
    for (int made = 0; made < tries; ++made) {
        counts.broken += broken.check(breaker.broken(source->text), counts) ? 1 : 0;
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::cerr << "partial_meaning_properties TRIES SEED DIRECTORY…\n";
        return EXIT_FAILURE;
    }
    Counts counts;
    for (int argument = 3; argument < argc; ++argument) {
        std::vector<fs::path> paths;
        for (const auto& entry : fs::recursive_directory_iterator(fs::u8path(argv[argument]))) {
            if (entry.path().extension() == fs::u8path(".பொழில்")) {
                paths.push_back(entry.path());
            }
        }
        std::sort(paths.begin(), paths.end());
        for (const fs::path& path : paths) {
            checkFile(path, std::atoi(argv[1]), static_cast<unsigned>(std::atoi(argv[2])), counts);
        }
    }
    std::cout << counts.sources << " sources, " << counts.broken << " times broken, " << counts.failures
              << " times faults of meaning that come of it\n";
    return counts.broken > 0 && counts.failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
