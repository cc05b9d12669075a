#include "tools/completion.h"

#include "tools/word.h"

#include <algorithm>
#include <string_view>

namespace pozhil::tools {
namespace {

/// Writes the switch that a line of a help begins with, if it does: "  --switch VALUE    what it does".
void printSwitch(std::ostream& out, std::string_view line) {
    constexpr std::string_view INDENT = "  ";
    if (line.substr(0, INDENT.size() + 2) != "  --") {
        return;
    }
    line.remove_prefix(INDENT.size());
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::size_t gap = std::min(line.find("  "), line.size());
    const std::size_t text = std::min(line.find_first_not_of(' ', gap), line.size());
    out << line.substr(0, end) << '\t' << line.substr(text) << '\n';
}

} // namespace

void printWords(std::ostream& out) {
    for (const Word* word : words()) {
        out << word->tamil << '\t' << word->summary << '\n' << word->english << '\t' << word->englishSummary << '\n';
    }
    out << "உதவி\tஎல்லாச் சொற்களையும், அல்லது ஒன்றின் பயன்பாட்டைச் சொல்\nhelp\tlist all words, or tell how one is used\n";
}

void printSwitches(std::ostream& out, const std::string& name) {
    const Word* const word = findWord(name);
    if (word == nullptr) {
        return;
    }
    for (std::string_view rest = word->help; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        printSwitch(out, rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

} // namespace pozhil::tools
