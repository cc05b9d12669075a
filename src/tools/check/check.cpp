#include "driver/file_changes.h"
#include "driver/settings.h"
#include "platform/console.h"
#include "platform/paths.h"
#include "tools/check/outcome_json.h"
#include "tools/check/outcome_report.h"
#include "tools/check/project_check.h"
#include "tools/check/seen_sources.h"
#include "tools/check/source_search.h"
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

constexpr const char* HELP =
    R"(பொழில் சரிபார் [--json] [--கண்காணி] [<கோப்பு அல்லது அடைவு>...]

நிரல்களைத் தொகுக்காமல், ஓட்டாமல் சரிபார்க்கும்: பிழைகளும் குறிப்புகளும் சொல்லப்படும்; எதுவும் எழுதப்படாது. அடைவில் அதற்குள்
உள்ள எல்லா .பொழில் கோப்புகளும் சரிபார்க்கப்படும்; ஒன்றும் சொல்லாவிட்டால் இப்போதைய அடைவு.

  --json       கருவிகளுக்காக, ஒரே வரியில் JSON
  --கண்காணி    ஒரு கோப்பு மாறும்போதெல்லாம் மீண்டும் சரிபார்க்கும் (நிறுத்த: Ctrl+C)

முடிவு நிலை: 0 பிழை இல்லை, 1 நிரலில் பிழை, 2 தவறான பயன்பாடு, 3 ஏதோ ஒன்றைப் படிக்க முடியவில்லை.

pozhil check [--json] [--watch] [<file or folder>...]

Checks programs without building or running them: tells faults and hints, and writes nothing. Of a folder all .பொழில்
files in it and below are checked; without arguments, those of the current one.

  --json       for tools, a line of JSON
  --watch      check again whenever a file changes (Ctrl+C ends it)

Exit status: 0 no fault, 1 a fault in a program, 2 wrong use, 3 something can't be read.
)";

struct Order {
    std::vector<std::string> given;
    bool json = false;
    bool watch = false;
};

int refuse(const std::string& text) {
    std::cerr << "பிழை: " << text << " உதவிக்கு: பொழில் சரிபார் --உதவி" << std::endl;
    return WRONG_USE;
}

/// Tells what is wrong with the arguments, if anything is. After "--" all are paths.
std::optional<Order> readOrder(const std::vector<std::string>& arguments) {
    Order order;
    bool pathsOnly = false;
    for (const std::string& argument : arguments) {
        if (pathsOnly || argument.rfind("--", 0) != 0) {
            order.given.push_back(argument);
        } else if (argument == "--") {
            pathsOnly = true;
        } else if (argument == "--json") {
            order.json = true;
        } else if (argument == "--கண்காணி" || argument == "--watch") {
            order.watch = true;
        } else {
            refuse("'" + argument + "' என்ற தேர்வு இங்கே இல்லை!");
            return std::nullopt;
        }
    }
    for (const std::string& path : order.given) {
        std::error_code error;
        if (!fs::exists(fs::u8path(path), error)) {
            refuse("'" + path + "' என்ற கோப்போ அடைவோ இல்லை!");
            return std::nullopt;
        }
    }
    if (order.given.empty()) {
        order.given = {"."};
    }
    return order;
}

class Check {
public:
    explicit Check(Order order) : order_(std::move(order)) {
        options_.moduleDirectories = settings::moduleDirectories(platform::executableDirectory().u8string());
    }

    int run() {
        const FoundSources found = findSources(order_.given);
        if (found.paths.empty() && found.unread.empty()) {
            return refuse("சரிபார்க்க எந்த .பொழில் கோப்பும் இல்லை!");
        }
        return check(found);
    }

    [[noreturn]] void watch() {
        FoundSources last = findSources(order_.given);
        check(last);
        lookAgainAndAgain([&] {
            const FoundSources now = findSources(order_.given);
            if (now.paths != last.paths || sources_.haveChanged()) {
                last = now;
                sources_.forget();
                check(last);
            }
        });
    }

private:
    int check(const FoundSources& found) {
        const Outcome outcome = checkSources(found, sources_, options_);
        if (order_.json) {
            std::cout << outcomeJson(outcome) << std::endl;
            reportUnread(outcome.unread);
        } else {
            reportOutcome(outcome, platform::isTerminalOutput() && settings::allowsColours());
        }
        if (!outcome.unread.empty()) {
            return FAILED;
        }
        return countOf(outcome.findings, Finding::Kind::Fault) == 0 ? DONE : FAULT_IN_SOURCE;
    }

    const Order order_;
    FrontEndOptions options_;
    SeenSources sources_;
};

int check(const std::vector<std::string>& arguments) {
    const std::optional<Order> order = readOrder(arguments);
    if (!order) {
        return WRONG_USE;
    }
    Check check(*order);
    if (order->watch) {
        check.watch();
    }
    return check.run();
}

} // namespace

const Word CHECK = {
    "சரிபார்",
    "check",
    "நிரல்களில் உள்ள பிழைகளையும் குறிப்புகளையும் தொகுக்காமல் சொல்",
    "tell the faults of programs and hints on them without building them",
    HELP,
    check,
};

} // namespace pozhil::tools
