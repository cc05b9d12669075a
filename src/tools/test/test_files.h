#pragma once

#include <string>
#include <vector>

namespace pozhil::tools {

/// The folder of a project that holds its tests.
constexpr const char* TEST_FOLDER = "சோதனைகள்";

/// Whether a source stands in such a folder.
bool isTestFile(const std::string& path);

/// The test files that were asked for, and what keeps others from being found.
struct TestFiles {
    /// In the order of their bytes for each folder, each once.
    std::vector<std::string> paths;
    /// Sentences: a folder without tests, and what isn't there
    std::vector<std::string> missing;
    /// Sentences: what can't be read
    std::vector<std::string> unreadable;
};

/// Looks for tests: a file that is given is one whatever its folder; of a folder, what ends in ".பொழில்" in its folder
/// சோதனைகள், or in itself if that is its name. Deeper folders hold what tests import.
TestFiles findTestFiles(const std::vector<std::string>& given);

} // namespace pozhil::tools
