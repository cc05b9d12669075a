#pragma once

#include "driver/second_translation.h"
#include "front_end/front_end.h"
#include "platform/interrupt.h"

#include <cstddef>
#include <filesystem>
#include <optional>
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

/// Where the programs of one run stand, since whoever builds a file meanwhile puts another program in the place of that which
/// was built of it. It goes with the object, and with a signal that ends this process.
class ProgramFolder {
public:
    ProgramFolder() = default;
    ~ProgramFolder();
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    /// \return the same program under a name in the folder; empty if the disk has no room for it
    std::filesystem::path keep(const std::filesystem::path& program);

private:
    /// Empty until there is a program.
    std::filesystem::path path_;
    std::optional<platform::EndingRemoval> removal_;
    std::size_t count_ = 0;
};

/// Reads and translates test files, and builds those that have tests to run, several at a time.
/// \param namePart which tests to run: those whose names hold it
/// \param folder for what is built, needed as long as the tests run
/// \return one for each path
std::vector<TestProgram> makeTestPrograms(const std::vector<std::string>& paths, const FrontEndOptions& options,
                                          const std::string& namePart, ProgramFolder& folder);

} // namespace pozhil::tools
