#include "report/box.h"

#include "report/width.h"

#include <algorithm>
#include <string_view>

namespace pozhil::report {
namespace {

constexpr const char* RED = "\033[1;31m";
constexpr const char* BLUE = "\033[1;34m";
constexpr const char* CYAN = "\033[1;36m";
constexpr const char* GOLD = "\033[1;93m";
constexpr const char* GREEN = "\033[1;32m";
constexpr const char* DIM = "\033[2;37m";
constexpr const char* RESET = "\033[0m";
constexpr const char* RULE = "------------------------------------------------------------";

/// What stands before the number of a line, and as many columns for the number as two digits take.
constexpr std::size_t INDENT = 4;
constexpr std::size_t FEWEST_DIGITS = 2;

std::string coloured(const char* colour, const std::string& text) {
    return colour + text + RESET;
}

std::string dimRule() {
    return std::string(DIM) + "  " + RULE + RESET + "\n";
}

/// \p text with each further line of it indented like its first.
std::string indented(std::string_view text, std::size_t columns) {
    std::string result;
    for (const char c : text) {
        result += c;
        if (c == '\n') {
            result.append(columns, ' ');
        }
    }
    return result;
}

/// A part of a source line as a terminal can show it: a tab takes four columns, other control characters, which could
/// command the terminal, become blanks.
std::string shown(std::string_view text) {
    constexpr std::string_view TAB = "    ";
    constexpr unsigned char FIRST_PRINTABLE = 0x20;
    constexpr unsigned char DELETE = 0x7F;
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\t') {
            result += TAB;
        } else {
            result += byte < FIRST_PRINTABLE || byte == DELETE ? ' ' : c;
        }
    }
    return result;
}

/// A line in three parts, as it is shown.
struct ShownLine {
    std::string before;
    std::string underlined;
    std::string after;
};

ShownLine partsOf(const Excerpt& excerpt) {
    std::string_view line = excerpt.lineText;
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r')) {
        line.remove_suffix(1);
    }
    const std::size_t begin = std::min(excerpt.begin, line.size());
    const std::size_t end = std::clamp(excerpt.end, begin, line.size());
    return {shown(line.substr(0, begin)), shown(line.substr(begin, end - begin)), shown(line.substr(end))};
}

/// The last letters of \p text that fit into so many columns, with a sign that something is missing.
std::string lastLetters(const std::string& text, std::size_t columns) {
    std::string_view rest = text;
    for (std::size_t left = width(rest); left > columns;) {
        const std::size_t letter = firstLetterSize(rest);
        left -= width(rest.substr(0, letter));
        rest.remove_prefix(letter);
    }
    return rest.size() == text.size() ? text : "…" + std::string(rest);
}

std::string firstLetters(const std::string& text, std::size_t columns) {
    std::size_t size = 0;
    std::size_t taken = 0;
    while (size < text.size()) {
        const std::string_view rest = std::string_view(text).substr(size);
        const std::size_t letter = firstLetterSize(rest);
        taken += width(rest.substr(0, letter));
        if (taken > columns) {
            return text.substr(0, size) + "…";
        }
        size += letter;
    }
    return text;
}

/// Of a very long line only what stands around the underlined piece.
void shorten(ShownLine& line) {
    constexpr std::size_t WIDEST_LINE = 160;
    constexpr std::size_t WIDEST_PART = 60;
    // Bytes are never fewer than columns, so usual lines needn't be measured.
    if (line.before.size() + line.underlined.size() + line.after.size() <= WIDEST_LINE ||
        width(line.before) + width(line.underlined) + width(line.after) <= WIDEST_LINE) {
        return;
    }
    line.before = lastLetters(line.before, WIDEST_PART);
    line.underlined = firstLetters(line.underlined, WIDEST_PART);
    line.after = firstLetters(line.after, WIDEST_PART);
}

std::string gutter(std::size_t digits) {
    return std::string(INDENT + digits + 1, ' ');
}

/// The line with its number, and the marks under it.
std::string excerptText(const Excerpt& excerpt, std::size_t digits) {
    ShownLine line = partsOf(excerpt);
    shorten(line);
    const std::string number = std::to_string(excerpt.line);
    std::string text = std::string(INDENT, ' ') + std::string(digits - number.size(), '0') + number + " |  " +
                       line.before + line.underlined + line.after + "\n";
    if (const std::size_t marks = width(line.underlined); marks > 0) {
        text += gutter(digits) + "|  " + std::string(width(line.before), ' ') + GOLD;
        for (std::size_t i = 0; i < marks; ++i) {
            text += "▲";
        }
        text += std::string(RESET) + "\n";
    }
    return text;
}

/// The number with a comma after every third digit.
std::string grouped(std::size_t number) {
    constexpr std::size_t GROUP = 3;
    std::string digits = std::to_string(number);
    for (std::size_t i = digits.size(); i > GROUP; i -= GROUP) {
        digits.insert(i - GROUP, ",");
    }
    return digits;
}

bool isSameCall(const Call& left, const Call& right) {
    return left.function == right.function && left.file == right.file && left.line == right.line;
}

/// \param times how often the call stands there in a row
std::string callText(const Call& call, std::size_t times) {
    std::string text = "     '" + call.function + "' அழைக்கப்பட்ட இடம்: ";
    text += call.line == 0 ? "தெரியவில்லை" : call.file + ", வரி " + std::to_string(call.line);
    return times == 1 ? text + "\n" : text + " (" + std::to_string(times) + " முறை)\n";
}

/// The calls from one of them up to, but not including, another. Those of a function that calls itself are told once.
std::string callsText(const std::vector<Call>& way, std::size_t begin, std::size_t end) {
    std::string text;
    while (begin < end) {
        std::size_t next = begin + 1;
        while (next < end && isSameCall(way[begin], way[next])) {
            ++next;
        }
        text += callText(way[begin], next - begin);
        begin = next;
    }
    return text;
}

std::string wayText(const FaultText& fault) {
    const std::string title = coloured(CYAN, "  🧭 இங்கே வந்த வழி:") + "\n";
    if (fault.callsLeftOut == 0) {
        return title + callsText(fault.way, 0, fault.way.size());
    }
    const std::size_t middle = fault.way.size() / 2;
    return title + callsText(fault.way, 0, middle) + "     … நடுவில் இன்னும் " + grouped(fault.callsLeftOut) +
           " அழைப்புகள் …\n" + callsText(fault.way, middle, fault.way.size());
}

std::string headText(const FaultText& fault) {
    const std::string rule = coloured(RED, RULE) + "\n";
    std::string text = "\n" + rule;
    text += "  🚨 [ " + coloured(GOLD, fault.code) + " ] :: " + coloured(RED, fault.category) + "\n" + rule;
    if (!fault.excerpt.file.empty()) {
        text += "  " + coloured(BLUE, "📂 கோப்பு  ") + ": " + fault.excerpt.file + "\n";
    }
    if (fault.excerpt.line > 0) {
        text += "  " + coloured(BLUE, "📍 இடம்    ") + ": வரி " + std::to_string(fault.excerpt.line) + "\n";
    }
    return text + dimRule();
}

std::string remedyText(const FaultText& fault) {
    constexpr std::size_t COLUMNS = 5;
    std::string text = coloured(GREEN, "  💡 சரி செய்யும் முறை:") + "\n";
    for (const std::string& part : {fault.suggestion, fault.remedy}) {
        if (!part.empty()) {
            text += std::string(COLUMNS, ' ') + indented(part, COLUMNS) + "\n";
        }
    }
    return text + dimRule();
}

} // namespace

std::string faultBox(const FaultText& fault) {
    std::string box = headText(fault);
    std::size_t digits = FEWEST_DIGITS;
    if (fault.excerpt.line > 0) {
        digits = std::max(digits, std::to_string(fault.excerpt.line).size());
    }
    if (fault.excerpt.line > 0 && !fault.excerpt.isHidden) {
        box += coloured(CYAN, "  🔍 பிழை கண்டறியப்பட்ட பகுதி:") + "\n";
        box += excerptText(fault.excerpt, digits);
    }
    const std::string corner = gutter(digits) + "╰── ";
    box += coloured(RED, corner + "மச்சி, " + indented(fault.message, width(corner))) + "\n" + dimRule();
    if (!fault.way.empty()) {
        box += wayText(fault) + dimRule();
    }
    return box + remedyText(fault) + "\n";
}

std::string plainFaultBox(const FaultText& fault) {
    constexpr std::string_view BEGIN = "\033[";
    const std::string box = faultBox(fault);
    std::string plain;
    std::size_t told = 0;
    for (std::size_t found = box.find(BEGIN); found != std::string::npos; found = box.find(BEGIN, found + 1)) {
        const std::size_t end = box.find_first_not_of("0123456789;", found + BEGIN.size());
        // A told value may hold what looks like the beginning of a colour.
        if (end != std::string::npos && box[end] == 'm') {
            plain.append(box, told, found - told);
            told = end + 1;
        }
    }
    return plain.append(box, told, std::string::npos);
}

} // namespace pozhil::report
