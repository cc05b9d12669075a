#include "tools/command.h"

#include "driver/console/banner.h"
#include "tools/completion.h"
#include "tools/word.h"

#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <ostream>
#include <string_view>

namespace pozhil::tools {
namespace {

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool asksForHelp(std::string_view argument) {
    return isOneOf(argument, {"--உதவி", "--help", "-h"});
}

void printHelp(std::ostream& out) {
    out << "பொழில்: பொழில் மொழியின் கருவிகள் (நிரலை இயக்க: பொழி <கோப்பு.பொழில்>)\n\n"
        << "பயன்பாடு: பொழில் <சொல்> ...\n\n";
    for (const Word* word : words()) {
        out << "  " << word->tamil << "    " << word->summary << "\n";
    }
    out << "  உதவி [சொல்]    இந்த உதவி, அல்லது ஒரு சொல்லின் உதவி\n"
        << "  --பதிப்பு    பதிப்பு எண்\n\n"
        << "pozhil: the tools of the language Pozhil (to run a program: பொழி <file.பொழில்>)\n\n"
        << "usage: pozhil <word> ...\n\n";
    for (const Word* word : words()) {
        out << "  " << word->english << "    " << word->englishSummary << "\n";
    }
    out << "  help [word]    this help, or that of a word\n"
        << "  --version    the version\n";
}

int refuse(const std::string& name) {
    std::cerr << "பிழை: '" << name << "' என்ற சொல் இங்கே இல்லை! இருக்கும் சொற்களைக் காண: பொழில் உதவி" << std::endl;
    return WRONG_USE;
}

int help(const std::vector<std::string>& arguments) {
    if (arguments.size() < 3) {
        printHelp(std::cout);
        return DONE;
    }
    const Word* const word = findWord(arguments[2]);
    if (word == nullptr) {
        return refuse(arguments[2]);
    }
    std::cout << word->help;
    return DONE;
}

int complete(const std::vector<std::string>& arguments) {
    if (arguments.size() < 3) {
        printWords(std::cout);
    } else {
        printSwitches(std::cout, arguments[2]);
    }
    return DONE;
}

int carryOut(const std::vector<std::string>& arguments) {
    if (arguments.size() < 2) {
        printHelp(std::cerr);
        return WRONG_USE;
    }
    const std::string& name = arguments[1];
    if (asksForHelp(name) || isOneOf(name, {"உதவி", "help"})) {
        return help(arguments);
    }
    if (isVersionSwitch(name)) {
        printVersionScreen();
        return DONE;
    }
    if (name == COMPLETION_SWITCH) {
        return complete(arguments);
    }
    const Word* const word = findWord(name);
    if (word == nullptr) {
        return refuse(name);
    }
    const std::vector<std::string> rest(arguments.begin() + 2, arguments.end());
    if (std::any_of(rest.begin(), rest.end(), asksForHelp)) {
        std::cout << word->help;
        return DONE;
    }
    return word->run(rest);
}

} // namespace

int runCommand(const std::vector<std::string>& arguments) {
    const int status = carryOut(arguments);
    const bool isOfProgram = arguments.size() > 1 && findWord(arguments[1]) == &RUN;
    if (isOfProgram || std::cout.flush()) {
        return status;
    }
    std::cerr << "பிழை: வெளியீட்டில் எழுத முடியவில்லை!" << std::endl;
    return FAILED;
}

} // namespace pozhil::tools
