#include "base/text.h"
#include "platform/paths.h"
#include "platform/process.h"
#include "tools/word.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* COMPILER = "பொழி";
constexpr const char* SOURCE_ENDING = ".பொழில்";

constexpr const char* HELP =
    R"(பொழில் ஓட்டு <கோப்பு.பொழில்> [--வலை] [--கண்காணி]

ஒரு நிரலைத் தொகுத்து ஓட்டும்: 'பொழி <கோப்பு.பொழில்>' செய்வதையே செய்யும்.

  --வலை        வலைச் செயலியாக (நிரலில் 'வலைதளம்' இருந்தால் தேவையில்லை)
  --கண்காணி    கோப்பு மாறும்போதெல்லாம் மீண்டும்

முடிவு நிலை: 'பொழி' தருவதே; தவறான பயன்பாட்டுக்கு 2, 'பொழி' இல்லாவிட்டால் 3.

pozhil run <file.பொழில்> [--web] [--watch]

Builds a program and runs it, as 'பொழி <file.பொழில்>' does.

  --web        as a web application (not needed for a program with a 'வலைதளம்')
  --watch      again whenever the file changes

Exit status: that of 'பொழி'; 2 for wrong use, 3 where there is no 'பொழி'.
)";

int refuse(const std::string& text) {
    std::cerr << "பிழை: " << text << " உதவிக்கு: பொழில் ஓட்டு --உதவி" << std::endl;
    return WRONG_USE;
}

/// What the compiler calls a switch of this word; nothing if there is none.
std::optional<std::string> compilerSwitch(const std::string& argument) {
    if (argument == "--வலை" || argument == "--web") {
        return "--வலை";
    }
    if (argument == "--கண்காணி" || argument == "--watch") {
        return "--கண்காணி";
    }
    return std::nullopt;
}

int runProgram(const std::vector<std::string>& arguments) {
    platform::Command command{{(platform::executableDirectory() / fs::u8path(COMPILER)).u8string()}, {}};
    std::string source;
    for (const std::string& argument : arguments) {
        if (const auto known = compilerSwitch(argument)) {
            command.arguments.push_back(*known);
        } else if (!endsWith(argument, SOURCE_ENDING)) {
            return refuse("'" + argument + "' என்பது .பொழில் என்று முடியும் கோப்பும் அல்ல, இங்கே உள்ள தேர்வும் அல்ல!");
        } else if (!source.empty()) {
            return refuse("ஒரே ஒரு கோப்பைச் சொல்லவும்; '" + argument + "' இரண்டாவது!");
        } else {
            source = argument;
            command.arguments.push_back(argument);
        }
    }
    if (source.empty()) {
        return refuse("எந்தக் கோப்பை ஓட்ட வேண்டும்?");
    }
    std::error_code error;
    if (!fs::is_regular_file(fs::u8path(source), error)) {
        return refuse("'" + source + "' என்ற கோப்பு இல்லை!");
    }
    const int status = platform::run_command(command);
    if (status == platform::COULD_NOT_START) {
        std::cerr << "பிழை: '" << command.arguments.front() << "' என்ற தொகுப்பியை இயக்க முடியவில்லை!" << std::endl;
        return FAILED;
    }
    return status;
}

} // namespace

const Word RUN = {
    "ஓட்டு", "run", "ஒரு நிரலைத் தொகுத்து ஓட்டு", "build a program and run it", HELP, runProgram,
};

} // namespace pozhil::tools
