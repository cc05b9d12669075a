#include "tools/test/test_programs.h"

#include "driver/native/second_build.h"
#include "driver/output_stage.h"
#include "front_end/second_edition.h"
#include "platform/paths.h"
#include "tools/test/in_parallel.h"

#include <memory>
#include <random>
#include <string>
#include <system_error>
#include <utility>

namespace pozhil::tools {
namespace {

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

/// The same program under a name of its own: whoever builds the file meanwhile puts another one in its place.
/// \return empty if the disk has no room for it
std::filesystem::path ownProgram(const std::filesystem::path& program) {
    std::filesystem::path own = program;
    own += "_" + std::to_string(std::random_device()());
    std::error_code error;
    std::filesystem::create_hard_link(program, own, error);
    if (error) {
        std::filesystem::copy_file(program, own, error);
    }
    return error ? std::filesystem::path() : own;
}

/// A program that is being built.
class Building {
public:
    explicit Building(TestProgram& test) : test_(test) {}

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
            test_.program = program ? ownProgram(*program) : std::filesystem::path();
        }
        if (test_.program.empty()) {
            test_.refusal = "சோதனைகளைத் தொகுக்க முடியவில்லை!";
        }
    }

private:
    TestProgram& test_;
    std::unique_ptr<SecondBuild> build_;
};

} // namespace

std::vector<TestProgram> makeTestPrograms(const std::vector<std::string>& paths, const FrontEndOptions& options,
                                          const std::string& namePart) {
    std::vector<TestProgram> programs;
    programs.reserve(paths.size());
    std::vector<Building> buildings;
    for (const std::string& path : paths) {
        programs.push_back({path});
        translate(programs.back(), options, namePart);
        if (!programs.back().tests.empty()) {
            buildings.emplace_back(programs.back());
        }
    }
    inParallel(
        buildings.size(), [&](std::size_t index) { buildings[index].start(); },
        [&](std::size_t index) { buildings[index].finish(); });
    return programs;
}

void removeTestPrograms(const std::vector<TestProgram>& programs) {
    for (const TestProgram& test : programs) {
        std::error_code ignored;
        std::filesystem::remove(test.program, ignored);
    }
}

} // namespace pozhil::tools
