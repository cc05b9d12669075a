#include "driver/settings.h"
#include "platform/console.h"
#include "platform/paths.h"
#include "tools/test/test_files.h"
#include "tools/test/test_programs.h"
#include "tools/test/test_run.h"
#include "tools/word.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace pozhil::tools {
namespace {

constexpr const char* HELP =
    R"(பொழில் சோதி [--பெயர் <பகுதி>] [--வினாடி <எண்>] [<கோப்பு அல்லது அடைவு>...]

ஒரு திட்டத்தின் சோதனைகளை ஓட்டும்: அடைவின் சோதனைகள்/ என்ற அடைவில் உள்ள .பொழில் கோப்புகளில், 'சோதி_' என்று பெயர் தொடங்கும்
செயல்கள். ஒவ்வொரு சோதனையும் தனியாக ஓடும்; தோற்றவை அச்சிட்டதும், எது ஏன் தோற்றது என்பதும் சொல்லப்படும்.
ஒன்றும் சொல்லாவிட்டால் இப்போதைய அடைவு.

  --பெயர் <பகுதி>     பெயரில் இந்தப் பகுதி உள்ள சோதனைகள் மட்டும்
  --வினாடி <எண்>      ஒரு சோதனை எடுக்கக்கூடிய நேரம் (சொல்லாவிட்டால் 10)

முடிவு நிலை: 0 எல்லாம் வெற்றி, 1 தோல்வி அல்லது நிரலில் பிழை, 2 தவறான பயன்பாடு அல்லது சோதனை எதுவும் இல்லை, 3 படிக்கவோ தொகுக்கவோ
முடியவில்லை.

pozhil test [--name <part>] [--seconds <number>] [<file or folder>...]

Runs the tests of a project: the functions whose names begin with 'சோதி_', in the .பொழில் files of the folder சோதனைகள்/ of
the folder. Each test runs by itself; of those that fail, what they printed is shown, and why they failed. Without
arguments, those of the current folder.

  --name <part>        only tests whose names hold this
  --seconds <number>   how long a test may take (10 by default)

Exit status: 0 all passed, 1 a failure or a fault in a source, 2 wrong use or no tests, 3 something can't be read or built.
)";

constexpr int MOST_SECONDS = 86400;

struct Order {
    std::vector<std::string> given;
    std::string namePart;
    TestSettings settings;
};

std::nullopt_t refuse(const std::string& text) {
    std::cerr << "பிழை: " << text << " உதவிக்கு: பொழில் சோதி --உதவி" << std::endl;
    return std::nullopt;
}

std::optional<std::chrono::seconds> readSeconds(const std::string& text) {
    int seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber && seconds > 0 && seconds <= MOST_SECONDS ? std::optional(std::chrono::seconds(seconds))
                                                              : std::nullopt;
}

/// Tells what is wrong with the arguments, if anything is. After "--" all are paths.
std::optional<Order> readOrder(const std::vector<std::string>& arguments) {
    Order order;
    bool pathsOnly = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (pathsOnly || argument.rfind("--", 0) != 0) {
            order.given.push_back(argument);
        } else if (argument == "--") {
            pathsOnly = true;
        } else if (argument == "--பெயர்" || argument == "--name") {
            if (!hasValue) {
                return refuse("'" + argument + "' என்பதன் பின் சோதனையின் பெயரோ அதன் பகுதியோ வேண்டும்!");
            }
            order.namePart = arguments[++i];
        } else if (argument == "--வினாடி" || argument == "--seconds") {
            const auto seconds = hasValue ? readSeconds(arguments[++i]) : std::nullopt;
            if (!seconds) {
                return refuse("'" + argument + "' என்பதன் பின் 1 முதல் 86400 வரையான ஓர் எண் வேண்டும்!");
            }
            order.settings.limit = *seconds;
        } else {
            return refuse("'" + argument + "' என்ற தேர்வு இங்கே இல்லை!");
        }
    }
    if (order.given.empty()) {
        order.given = {"."};
    }
    order.settings.coloured = platform::isTerminalOutput() && settings::allowsColours();
    return order;
}

/// \return how the command ends; what can't be read weighs more than what fails
int statusOf(const std::vector<TestProgram>& programs, const TestCounts& counts, bool isUnreadable) {
    bool isFaulty = counts.failed > 0;
    bool isUnbuilt = isUnreadable;
    for (const TestProgram& program : programs) {
        isUnbuilt = isUnbuilt || program.isUnreadable || (!program.tests.empty() && program.program.empty());
        isFaulty = isFaulty || !program.translation.faults.empty() || !program.refusal.empty();
    }
    if (isUnbuilt) {
        return FAILED;
    }
    return isFaulty ? FAULT_IN_SOURCE : DONE;
}

void tellSummary(const TestCounts& counts, int status) {
    std::cout << "\n"
              << (status == DONE ? "✅ " : "🚨 ") << "சோதனைகள்: " << counts.passed + counts.failed
              << ", வெற்றி: " << counts.passed << ", தோல்வி: " << counts.failed << std::endl;
}

int test(const std::vector<std::string>& arguments) {
    const std::optional<Order> order = readOrder(arguments);
    if (!order) {
        return WRONG_USE;
    }
    const TestFiles files = findTestFiles(order->given);
    for (const std::string& sentence : files.unreadable) {
        std::cerr << "பிழை: " << sentence << std::endl;
    }
    if (!files.missing.empty()) {
        std::for_each(files.missing.begin(), files.missing.end(), [](const auto& sentence) { refuse(sentence); });
        return WRONG_USE;
    }
    FrontEndOptions options;
    options.moduleDirectories = settings::moduleDirectories(platform::executableDirectory().u8string());
    options.isTest = true;
    ProgramFolder folder;
    const std::vector<TestProgram> programs = makeTestPrograms(files.paths, options, order->namePart, folder);
    const TestCounts counts = runTests(programs, order->settings);
    const int status = statusOf(programs, counts, !files.unreadable.empty());
    if (status == DONE && counts.passed == 0) {
        refuse(order->namePart.empty() ? "சோதனை எதுவும் இல்லை!"
                                       : "பெயரில் '" + order->namePart + "' உள்ள சோதனை எதுவும் இல்லை!");
        return WRONG_USE;
    }
    tellSummary(counts, status);
    return status;
}

} // namespace

const Word TEST = {
    "சோதி", "test", "ஒரு திட்டத்தின் சோதனைகளை ஓட்டு", "run the tests of a project", HELP, test,
};

} // namespace pozhil::tools
