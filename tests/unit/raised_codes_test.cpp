// The codes that the stages and the emitted runtime name, found in their sources: a code that the catalogue doesn't hold
// would end a run with an exception in place of its report.

#include "error_codes.h"
#include "language/diagnostic_causes.h"

#include <gtest/gtest.h>

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

TEST(RaisedCodes, AreThoseThatHaveACause) {
    const std::set<std::string> named = codesNamedInSources();
    std::set<std::string> causes;
    for (const auto& row : pozhil::language::diagnosticCauses()) {
        const std::string code(row.code);
        EXPECT_EQ(named.count(code), 1U) << code;
        EXPECT_TRUE(causes.empty() || *causes.rbegin() < code) << code;
        EXPECT_FALSE(row.cause.tamil.empty()) << code;
        EXPECT_FALSE(row.cause.english.empty()) << code;
        causes.insert(code);
    }
    for (const std::string& code : named) {
        EXPECT_EQ(causes.count(code), 1U) << code;
    }
}

} // namespace
