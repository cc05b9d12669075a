#include "tools/explain/error_page.h"

#include "base/text.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace pozhil::tools {
namespace {

constexpr std::string_view FENCE = "```";
constexpr std::string_view PROGRAMS[] = {"பொழில்", "பொழில்-வலை", "பொழில்-சோதனை"};
constexpr std::string_view FAULT = "பிழை";
constexpr std::string_view RUNNING_FAULT = "இயக்கநேர_பிழை";

/// A fenced block of the page.
struct Fence {
    std::string_view tag;
    std::string_view text;
};

/// A program of the page with the code of the fault that it comes to; empty if it comes to none.
struct Program {
    std::string_view text;
    std::string_view code;
};

std::string_view firstLine(std::string_view text) {
    return text.substr(0, text.find('\n'));
}

/// Takes the next fence off \p page.
/// \return one without a tag where there are no more
Fence takeFence(std::string_view& page) {
    Fence fence;
    while (!page.empty()) {
        const std::string_view line = firstLine(page);
        page.remove_prefix(std::min(line.size() + 1, page.size()));
        if (startsWith(line, FENCE)) {
            fence.tag = line.substr(FENCE.size());
            break;
        }
    }
    const std::string_view begin = page;
    while (!page.empty()) {
        const std::string_view line = firstLine(page);
        const std::size_t size = begin.size() - page.size();
        page.remove_prefix(std::min(line.size() + 1, page.size()));
        if (line == FENCE) {
            fence.text = begin.substr(0, size);
            break;
        }
    }
    return fence;
}

bool isProgram(const Fence& fence) {
    return std::find(std::begin(PROGRAMS), std::end(PROGRAMS), fence.tag) != std::end(PROGRAMS);
}

std::vector<Program> programsOf(std::string_view page) {
    std::vector<Program> programs;
    for (Fence fence = takeFence(page); !fence.tag.empty(); fence = takeFence(page)) {
        if (isProgram(fence)) {
            programs.push_back({fence.text, {}});
        } else if ((fence.tag == FAULT || fence.tag == RUNNING_FAULT) && !programs.empty()) {
            programs.back().code = fence.text.substr(0, fence.text.find(' '));
        }
    }
    return programs;
}

} // namespace

ShownPrograms shownPrograms(std::string_view page, std::string_view code) {
    const std::vector<Program> programs = programsOf(page);
    const auto wrong =
        std::find_if(programs.begin(), programs.end(), [&](const Program& program) { return program.code == code; });
    ShownPrograms shown;
    if (wrong != programs.end()) {
        shown.wrong = wrong->text;
        const auto next = wrong + 1;
        if (next != programs.end() && next->code.empty()) {
            shown.right = next->text;
        }
    }
    return shown;
}

} // namespace pozhil::tools
