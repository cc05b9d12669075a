#include "base/source_text.h"
#include "base/whole_file.h"
#include "driver/settings.h"
#include "formatter/formatter.h"
#include "platform/paths.h"
#include "platform/replace_file.h"
#include "tools/check/outcome_report.h"
#include "tools/check/source_check.h"
#include "tools/check/source_search.h"
#include "tools/word.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* HELP =
    R"(பொழில் வடிவமை [--சரிபார்] [<கோப்பு அல்லது அடைவு>...]
பொழில் வடிவமை [--சரிபார்] -

நிரல்களை ஒரே பாணியில் அடுக்கும்: உள்தள்ளலும் இடைவெளிகளும் வெற்று வரிகளும் மட்டுமே மாறும்; பொருள் மாறாது. வரிகள் LF-இல்
முடியும்; BOM நீங்கும். மாறிய கோப்புகளின் பெயர்கள் வரும். அடைவில் அதற்குள் உள்ள எல்லா .பொழில் கோப்புகளும்; ஒன்றும் சொல்லாவிட்டால் இப்போதைய அடைவு. '-' என்றால் உள்ளீட்டைப்
படித்து வெளியீட்டில் எழுதும். பிழையுள்ள நிரல் இருந்தபடியே இருக்கும்; பிழை சொல்லப்படும்.

  --சரிபார்    எதையும் எழுதாது; மாற வேண்டிய கோப்புகளின் பெயர்களை மட்டும் சொல்லும்

முடிவு நிலை: 0 எல்லாம் சரி, 1 நிரலில் பிழை (--சரிபார்: அல்லது மாற வேண்டியது உண்டு), 2 தவறான பயன்பாடு,
3 ஏதோ ஒன்றைப் படிக்கவோ எழுதவோ முடியவில்லை.

pozhil format [--check] [<file or folder>...]
pozhil format [--check] -

Sets programs in one style: indentation, blanks and blank lines change, their meaning doesn't. Lines end in LF, and a byte
order mark goes. The names of changed files are told. Of a folder all .பொழில் files in it and below; without arguments, those of the current one. With '-' standard
input goes to standard output. A program with faults is left as it is, and the faults are told.

  --check      write nothing, only name the files that would change

Exit status: 0 all is well, 1 a fault in a program (--check: or a file would change), 2 wrong use,
3 something can't be read or written.
)";

constexpr const char* INPUT = "-";
/// In bytes; tokens and tree take some sixty times as much.
constexpr std::uintmax_t LARGEST = std::uintmax_t(16) * 1024 * 1024;

struct Order {
    std::vector<std::string> given;
    bool checkOnly = false;
    bool isInput = false;
};

int refuse(const std::string& text) {
    std::cerr << "பிழை: " << text << " உதவிக்கு: பொழில் வடிவமை --உதவி" << std::endl;
    return WRONG_USE;
}

bool isThere(const std::string& path) {
    std::error_code ignored;
    return fs::exists(fs::u8path(path), ignored);
}

/// Tells what is wrong with the arguments, if anything is. After "--" all are paths.
std::optional<Order> readOrder(const std::vector<std::string>& arguments) {
    Order order;
    bool pathsOnly = false;
    for (const std::string& argument : arguments) {
        if (!pathsOnly && argument == INPUT) {
            order.isInput = true;
        } else if (pathsOnly || argument.rfind("--", 0) != 0) {
            order.given.push_back(argument);
        } else if (argument == "--") {
            pathsOnly = true;
        } else if (argument == "--சரிபார்" || argument == "--check") {
            order.checkOnly = true;
        } else {
            refuse("'" + argument + "' என்ற தேர்வு இங்கே இல்லை!");
            return std::nullopt;
        }
    }
    if (order.isInput && !order.given.empty()) {
        refuse("'-' உடன் கோப்புகளைச் சொல்ல முடியாது!");
        return std::nullopt;
    }
    const auto missing = std::find_if_not(order.given.begin(), order.given.end(), isThere);
    if (missing != order.given.end()) {
        refuse("'" + *missing + "' என்ற கோப்போ அடைவோ இல்லை!");
        return std::nullopt;
    }
    if (order.given.empty()) {
        order.given = {"."};
    }
    return order;
}

class Format {
public:
    explicit Format(Order order) : order_(std::move(order)) {
        options_.moduleDirectories = settings::moduleDirectories(platform::executableDirectory().u8string());
    }

    int run() {
        if (order_.isInput) {
            formatInput();
            return status_;
        }
        const FoundSources found = findSources(order_.given);
        if (found.paths.empty() && found.unread.empty()) {
            return refuse("வடிவமைக்க எந்த .பொழில் கோப்பும் இல்லை!");
        }
        fail(found.unread);
        for (const std::string& path : found.paths) {
            formatFile(path);
        }
        return status_;
    }

private:
    /// What can't be formatted comes out as it went in, so that no editor loses it.
    void formatInput() {
        const std::string bytes((std::istreambuf_iterator<char>(std::cin)), std::istreambuf_iterator<char>());
        const std::optional<std::string> text =
            isTooLarge(bytes.size(), INPUT) ? std::nullopt : formatted(INPUT, bytes);
        if (order_.checkOnly) {
            noteChange(text && *text != bytes, INPUT);
        } else {
            std::cout << text.value_or(bytes) << std::flush;
        }
    }

    void formatFile(const std::string& path) {
        std::error_code ignored;
        if (fs::is_regular_file(fs::u8path(path), ignored) &&
            isTooLarge(fs::file_size(fs::u8path(path), ignored), path)) {
            return;
        }
        const std::optional<std::string> bytes = readFile(fs::u8path(path));
        if (!bytes) {
            fail({{path, "இந்தக் கோப்பைப் படிக்க முடியவில்லை"}});
            return;
        }
        const std::optional<std::string> text = formatted(path, *bytes);
        if (!text || *text == *bytes) {
            return;
        }
        if (!order_.checkOnly) {
            if (const std::error_code error = platform::replaceFile(fs::u8path(path), *text)) {
                fail({{path, "இந்தக் கோப்பில் எழுத முடியவில்லை (" + error.message() + ")"}});
                return;
            }
        }
        noteChange(true, path);
    }

    /// Tells it of a file that is.
    bool isTooLarge(std::uintmax_t size, const std::string& path) {
        if (size <= LARGEST) {
            return false;
        }
        raise(FAULT_IN_SOURCE);
        std::cerr << "பிழை: '" << path
                  << "': 16 MB-ஐ விடப் பெரிய நிரலை வடிவமைக்க முடியாது; எனவே இது இருந்தபடியே இருக்கிறது!" << std::endl;
        return true;
    }

    /// The bytes in the one style; nothing, after telling why, if they are to stay as they are.
    std::optional<std::string> formatted(const std::string& path, const std::string& bytes) {
        const SourcePtr source = makeSource(path, sourceTextOf(bytes));
        FormattedSource made = formatSource(source, options_);
        if (made.result == FormatResult::Faulty) {
            tellFaults(source);
            return std::nullopt;
        }
        if (made.result == FormatResult::NotUnderstood || hasLoneCarriageReturns(bytes)) {
            raise(FAULT_IN_SOURCE);
            std::cerr << "பிழை: '" << path
                      << "': இடைவெளிகளை மாற்றினால் இதன் பொருள் மாறக்கூடும்; எனவே இது இருந்தபடியே இருக்கிறது!" << std::endl;
            return std::nullopt;
        }
        return std::move(made.text);
    }

    void tellFaults(const SourcePtr& source) {
        raise(FAULT_IN_SOURCE);
        Findings faults = checkSource(source, options_, false);
        faults.erase(std::remove_if(faults.begin(), faults.end(),
                                    [&](const Finding& finding) { return finding.text.excerpt.file != source->path; }),
                     faults.end());
        printFindings(std::cerr, faults, false);
        std::cerr << "பிழை: '" << source->path << "': நிரலில் பிழை உள்ளது; எனவே இது இருந்தபடியே இருக்கிறது!" << std::endl;
    }

    void noteChange(bool isChanged, const std::string& path) {
        if (isChanged) {
            std::cout << path << std::endl;
            raise(order_.checkOnly ? FAULT_IN_SOURCE : DONE);
        }
    }

    void fail(const std::vector<Unread>& unread) {
        reportUnread(unread);
        raise(unread.empty() ? DONE : FAILED);
    }

    void raise(ExitStatus status) { status_ = std::max(status_, status); }

    const Order order_;
    FrontEndOptions options_;
    ExitStatus status_ = DONE;
};

int format(const std::vector<std::string>& arguments) {
    std::optional<Order> order = readOrder(arguments);
    return order ? Format(std::move(*order)).run() : WRONG_USE;
}

} // namespace

const Word FORMAT = {
    "வடிவமை", "format", "நிரல்களை ஒரே பாணியில் அடுக்கு", "set programs in one style", HELP, format,
};

} // namespace pozhil::tools
