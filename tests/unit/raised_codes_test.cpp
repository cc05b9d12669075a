// The codes that the stages and the emitted runtime name, found in their sources: a code that the catalogue doesn't hold
// would end a run with an exception in place of its report.

#include "error_codes.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view PREFIX = "பொழி-";
constexpr std::size_t DIGITS = 3;

void collectCodes(const std::string& text, std::set<std::string>& codes) {
    for (std::size_t at = text.find(PREFIX); at != std::string::npos; at = text.find(PREFIX, at + 1)) {
        codes.insert(text.substr(at, PREFIX.size() + DIGITS));
    }
}

std::set<std::string> codesNamedInSources() {
    std::set<std::string> codes;
    for (const char* stage : {"scanner", "parser", "analysis", "generator"}) {
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(POZHIL_SOURCE_DIRECTORY) / "src" / stage)) {
            if (entry.is_regular_file()) {
                std::ifstream file(entry.path());
                collectCodes({std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()}, codes);
            }
        }
    }
    return codes;
}

TEST(RaisedCodes, StandInTheCatalogue) {
    for (const std::string& code : codesNamedInSources()) {
        EXPECT_EQ(பிழை_அகராதி.count(code), 1U) << code;
    }
}

TEST(RaisedCodes, AreAllButThoseThatStandReady) {
    const std::set<std::string> named = codesNamedInSources();
    std::set<std::string> ready;
    for (const auto& [code, entry] : பிழை_அகராதி) {
        if (named.count(code) == 0) {
            ready.insert(code.substr(PREFIX.size()));
        }
    }
    EXPECT_THAT(ready, testing::ElementsAre("107", "251", "253", "261", "263", "282", "351", "352", "353", "354", "361",
                                            "363", "371", "372", "381"));
}

} // namespace
