#include "tools/test/test_programs.h"

#include "driver/native/second_build.h"
#include "driver/output_stage.h"
#include "front_end/second_edition.h"
#include "platform/fresh_path.h"
#include "platform/paths.h"
#include "tools/test/in_parallel.h"

#include <memory>
#include <string>
#include <system_error>
#include <utility>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

void translate(TestProgram& test, const FrontEndOptions& options, const std::string& namePart) {
    const SourcePtr source = loadSource(test.path, options);
    if (source == nullptr) {
        test.isUnreadable = true;
        test.refusal = "இந்தக் கோப்பைப் படிக்க முடியவில்லை!";
        return;
    }
    const Edition edition = editionOf(source, test.translation.faults);
    if (!test.translation.faults.empty()) {
        return;
    }
    if (edition == Edition::First) {
        test.refusal = "சோதனைகள் இரண்டாம் பதிப்பில் மட்டுமே: முதல் வரியாக 'ஃ பொழில் 2' சேர்க்கவும்!";
        return;
    }
    test.translation = translateSecondEdition(source, options);
    if (test.translation.application) {
        test.refusal =
            "வலைச் செயலியைச் சோதனையில் ஓட்ட முடியாது: சோதிக்க வேண்டிய செயல்களை வேறு கோப்பில் வைத்து, அதை மட்டும் இறக்கவும்!";
        return;
    }
    for (const std::string& name : test.translation.tests) {
        if (name.find(namePart) != std::string::npos) {
            test.tests.push_back(name);
        }
    }
}

/// A program that is being built.
class Building {
public:
    Building(TestProgram& test, ProgramFolder& folder) : test_(test), folder_(folder) {}

    void start() {
        const auto directory = directoryOfSource(prepareTemporaryDirectory(), test_.path);
        const auto output = outputPath(directory);
        if (replaceOutput(output, test_.translation.output.text)) {
            build_ = std::make_unique<SecondBuild>(platform::executableDirectory(), output, directory);
            build_->start(test_.translation);
        }
    }

    void finish() {
        if (build_ != nullptr) {
            const auto program = build_->finishProgram(test_.translation);
            test_.program = program ? folder_.keep(*program) : fs::path();
        }
        if (test_.program.empty()) {
            test_.refusal = "சோதனைகளைத் தொகுக்க முடியவில்லை!";
        }
    }

private:
    TestProgram& test_;
    ProgramFolder& folder_;
    std::unique_ptr<SecondBuild> build_;
};

} // namespace

ProgramFolder::~ProgramFolder() {
    if (!path_.empty()) {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
}

fs::path ProgramFolder::keep(const fs::path& program) {
    std::error_code error;
    if (path_.empty()) {
        path_ = platform::freshBeside(prepareTemporaryDirectory() / "சோதி");
        removal_.emplace(path_);
        fs::create_directory(path_, error);
    }
    const fs::path own = path_ / std::to_string(count_++);
    fs::create_hard_link(program, own, error);
    if (error) {
        fs::copy_file(program, own, error);
    }
    return error ? fs::path() : own;
}

std::vector<TestProgram> makeTestPrograms(const std::vector<std::string>& paths, const FrontEndOptions& options,
                                          const std::string& namePart, ProgramFolder& folder) {
    std::vector<TestProgram> programs;
    programs.reserve(paths.size());
    std::vector<Building> buildings;
    for (const std::string& path : paths) {
        programs.push_back({path});
        translate(programs.back(), options, namePart);
        if (!programs.back().tests.empty()) {
            buildings.emplace_back(programs.back(), folder);
        }
    }
    inParallel(
        buildings.size(), [&](std::size_t index) { buildings[index].start(); },
        [&](std::size_t index) { buildings[index].finish(); });
    return programs;
}

} // namespace pozhil::tools
