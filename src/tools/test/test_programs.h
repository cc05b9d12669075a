#pragma once

#include "driver/second_translation.h"
#include "front_end/front_end.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pozhil::tools {

/// A file of tests, and what became of it.
struct TestProgram {
    std::string path;
    SecondTranslation translation{};
    /// The tests to run, in the order of the text.
    std::vector<std::string> tests{};
    /// What was built, for this run alone; empty if nothing was.
    std::filesystem::path program{};
    /// Why no test of it runs, as a sentence; empty for faults of the source, and where they run.
    std::string refusal{};
    bool isUnreadable = false;
};

/// Reads and translates test files, and builds those that have tests to run, several at a time.
/// \param namePart which tests to run: those whose names hold it
/// \return one for each path
std::vector<TestProgram> makeTestPrograms(const std::vector<std::string>& paths, const FrontEndOptions& options,
                                          const std::string& namePart);

/// Removes what was built.
void removeTestPrograms(const std::vector<TestProgram>& programs);

} // namespace pozhil::tools
