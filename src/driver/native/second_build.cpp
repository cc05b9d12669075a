#include "driver/native/second_build.h"

#include "driver/console/console_style.h"
#include "driver/second_build_failure.h"
#include "driver/settings.h"
#include "platform/fresh_path.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <limits>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

/// How far g++ optimises a text of so many lines, with so many blocks inside each other.
struct Optimisation {
    std::size_t mostLines;
    std::size_t deepestLevel;
    const char* flag;
};

constexpr std::size_t ANY = std::numeric_limits<std::size_t>::max();
/// Loops inside each other cost g++ more than the square of their number: a hundred of them half a second, a thousand
/// minutes.
constexpr std::size_t DEEP = 100;

/// -O1 is the best for building and running together, by measurement: -O2 builds longer than it saves. Whoever writes a long
/// program waits for g++ more than for the program: no build shall take above two seconds for 5,000 lines of source.
constexpr Optimisation OPTIMISATIONS[] = {{6000, DEEP, "-O1"}, {12000, DEEP, "-Og"}, {ANY, ANY, "-O0"}};

const char* optimisationFor(const SecondText& text) {
    return std::find_if(std::begin(OPTIMISATIONS), std::end(OPTIMISATIONS),
                        [&](const Optimisation& row) {
                            return text.origins.size() <= row.mostLines && text.deepestLevel <= row.deepestLevel;
                        })
        ->flag;
}

} // namespace

SecondBuild::SecondBuild(fs::path appDirectory, fs::path generatedSource, const fs::path& directory)
    : appDirectory_(std::move(appDirectory)), archive_(appDirectory_ / "திரட்டு" / "libpozhil_engine.a"),
      generatedSource_(std::move(generatedSource)), program_(directory, platform::freshBeside("pozhil_temp_app")) {}

void SecondBuild::start(const SecondTranslation& translation) {
    toolchain_ = std::async(std::launch::async, [command = command(translation, settings::cxxFlags())] {
        return platform::captureCommand(command);
    });
}

platform::Command SecondBuild::command(const SecondTranslation& translation,
                                       const std::vector<std::string>& userFlags) const {
    std::vector<std::string> arguments =
        programArguments({generatedSource_,
                          archive_,
                          program_.fresh,
                          {optimisationFor(translation.output), "-I" + (appDirectory_ / "உள்ளடக்கம்").u8string()}});
    arguments.insert(arguments.end(), userFlags.begin(), userFlags.end());
    return compilerCommand(std::move(arguments));
}

int SecondBuild::finish(const SecondTranslation& translation) {
    return isMade(translation) ? runProgram() : 1;
}

std::optional<fs::path> SecondBuild::finishProgram(const SecondTranslation& translation) {
    return isMade(translation) && program_.settle() ? std::optional(program_.program) : std::nullopt;
}

/// Waits for the toolchain, and tells why it failed.
bool SecondBuild::isMade(const SecondTranslation& translation) {
    const platform::CommandResult result = toolchain_.get();
    if (settings::toolchainWords() == settings::ToolchainWords::Shown) {
        std::cerr << result.output << result.errors << std::flush;
    }
    if (result.status == 0) {
        return true;
    }
    reportFailure(translation, result);
    std::error_code ignored;
    fs::remove(program_.fresh, ignored); // a linker that was ended may have left a part of it
    return false;
}

int SecondBuild::runProgram() const {
    const int status = program_.run({});
    if (status != platform::COULD_NOT_START) {
        return status;
    }
    std::cerr << "பிழை: உருவான நிரலைத் தொடங்க முடியவில்லை! '" << program_.program.u8string()
              << "' இருக்கும் அடைவில் நிரல்களை ஓட்ட அனுமதி இருக்கிறதா என்று பார்க்கவும்; இல்லையென்றால் வேறோர் அடைவில் ஓட்டவும்."
              << std::endl;
    return 1;
}

void SecondBuild::reportFailure(const SecondTranslation& translation, const platform::CommandResult& result) const {
    std::error_code ignored;
    if (result.status == platform::COULD_NOT_START) {
        tellMissingCompiler();
    } else if (!fs::exists(archive_, ignored)) {
        std::cerr << style::RED << "பிழை: '" << archive_.u8string() << "' கிடைக்கவில்லை! பொழிலை மீண்டும் நிறுவிக்கொள்."
                  << style::RESET << std::endl;
    } else {
        reportBuildFailure(translation, {GXX, generatedSource_.u8string(), result, plainCall(translation)});
    }
}

std::optional<platform::Command> SecondBuild::plainCall(const SecondTranslation& translation) const {
    return settings::cxxFlags().empty() ? std::nullopt : std::optional(command(translation, {}));
}

} // namespace pozhil
