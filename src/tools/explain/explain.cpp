#include "tools/explain/error_page.h"
#include "tools/explain/known_faults.h"
#include "tools/word.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::tools {
namespace {

constexpr const char* HELP =
    R"(பொழில் விளக்கு [எண்]

ஒரு பிழையை விளக்கும்: எப்போது வரும், எப்படிச் சரி செய்வது, தவறான ஒரு நிரல், சரியான ஒரு நிரல். எண்ணைப் பெட்டியில்
உள்ளபடி 'பொழி-304' என்றோ '304' என்றோ சொல்லலாம். எண் இல்லாவிட்டால் எல்லாப் பிழைகளின் பட்டியல் வரும்.

முடிவு நிலை: 0 வெற்றி, 2 தெரியாத எண்.

pozhil explain [number]

Explains an error: when it comes, how to mend it, a wrong program and a right one. The number may be written as in the
box, 'பொழி-304', or as '304'. Without a number all errors are listed.

Exit status: 0 success, 2 an unknown number.
)";

int refuse(const std::string& text) {
    std::cerr << "பிழை: " << text << " எல்லா எண்களையும் காண: பொழில் விளக்கு" << std::endl;
    return WRONG_USE;
}

int listAll() {
    for (const KnownFault& fault : knownFaults()) {
        std::cout << fault.code << "  " << fault.message << (fault.isRaised ? "" : " (இப்போது எழுவதில்லை)") << "\n";
    }
    std::cout << std::flush;
    return DONE;
}

void printPart(const char* title, std::string_view text) {
    if (!text.empty()) {
        std::cout << "\n" << title << "\n  " << text << "\n";
    }
}

void printProgram(const char* title, std::string_view program) {
    if (program.empty()) {
        return;
    }
    std::cout << "\n" << title << "\n";
    for (std::size_t begin = 0; begin < program.size();) {
        const std::size_t end = std::min(program.find('\n', begin), program.size());
        std::cout << (end > begin ? "    " : "") << program.substr(begin, end - begin) << "\n";
        begin = end + 1;
    }
}

int explainFault(const KnownFault& fault) {
    std::cout << fault.code << ": " << fault.message << "\n";
    if (!fault.isRaised) {
        std::cout
            << "\nஇந்த எண் வைக்கப்பட்டுள்ளது, ஆனால் இப்போது எதுவும் இதை எழுப்புவதில்லை. · Nothing raises this number today.\n";
    }
    printPart("காரணம் · Cause", fault.cause.tamil);
    if (!fault.cause.english.empty()) {
        std::cout << "  " << fault.cause.english << "\n";
    }
    printPart("தீர்வு · Remedy", fault.remedy);
    const ShownPrograms programs = shownPrograms(error_page::பிழைகள், fault.code);
    printProgram("தவறான நிரல் · Wrong", programs.wrong);
    printProgram("சரியான நிரல் · Right", programs.right);
    std::cout << std::flush;
    return DONE;
}

int explain(const std::vector<std::string>& arguments) {
    if (arguments.empty()) {
        return listAll();
    }
    if (arguments.size() > 1) {
        return refuse("ஒரே ஓர் எண்ணைச் சொல்லவும்; '" + arguments[1] + "' இரண்டாவது!");
    }
    const std::optional<int> number = faultNumber(arguments.front());
    if (!number) {
        return refuse("'" + arguments.front() + "' ஒரு பிழையின் எண் அல்ல! எ.கா: பொழில் விளக்கு 304.");
    }
    const std::vector<KnownFault> all = knownFaults();
    const auto nearest = std::min_element(all.begin(), all.end(), [&](const KnownFault& a, const KnownFault& b) {
        return std::abs(a.number - *number) < std::abs(b.number - *number);
    });
    if (nearest->number != *number) {
        return refuse("பொழி-" + std::to_string(*number) + " என்ற எண்ணில் பிழை எதுவும் இல்லை! அதற்கு அருகில் உள்ளது " +
                      nearest->code + ": " + nearest->message);
    }
    return explainFault(*nearest);
}

} // namespace

const Word EXPLAIN = {
    "விளக்கு",
    "explain",
    "ஒரு பிழையின் எண்ணை விளக்கு: காரணம், தீர்வு, நிரல்கள்",
    "explain the number of an error: cause, remedy, programs",
    HELP,
    explain,
};

} // namespace pozhil::tools
