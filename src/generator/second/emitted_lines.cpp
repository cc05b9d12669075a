#include "generator/second/emitted_lines.h"

#include <algorithm>

namespace pozhil::resolved::writer {
namespace {

constexpr std::size_t BLANKS_PER_LEVEL = 4;

} // namespace

void EmittedLines::line(const std::string& text) {
    if (!text.empty()) {
        text_.append(BLANKS_PER_LEVEL * level_, ' ');
        text_ += text;
    }
    text_ += '\n';
    // A long literal is several lines.
    origins_.insert(origins_.end(), 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')), place_);
}

void EmittedLines::lines(std::string_view text) {
    text_ += text;
    origins_.insert(origins_.end(), static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')), place_);
}

void EmittedLines::open(const std::string& text) {
    line(text);
    ++level_;
    deepestLevel_ = std::max(deepestLevel_, level_);
}

void EmittedLines::close(const std::string& after) {
    --level_;
    line("}" + after);
}

void EmittedLines::reopen(const std::string& text) {
    --level_;
    open(text);
}

void EmittedLines::gap() {
    const bool hasGap = text_.empty() || (text_.size() > 1 && text_.compare(text_.size() - 2, 2, "\n\n") == 0);
    if (!hasGap) {
        line("");
    }
}

void EmittedLines::append(const EmittedLines& part) {
    text_ += part.text_;
    origins_.insert(origins_.end(), part.origins_.begin(), part.origins_.end());
    deepestLevel_ = std::max(deepestLevel_, part.deepestLevel_);
}

} // namespace pozhil::resolved::writer
