#include "driver/refusal_report.h"

#include "base/line_index.h"
#include "diagnostics/refusals/refusals.h"
#include "diagnostics/refusals/toolchain_errors.h"
#include "driver/console/explanation.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace pozhil {
namespace {

constexpr std::size_t MOST_EXPLAINED = 5;

/// A line of a source that was refused, and the row that knows most of what was said of it.
struct RefusedLine {
    std::optional<SourcePlace> place;
    std::size_t line = 0;
    /// The line of the output text that was spoken of first.
    std::size_t outputLine = 0;
    Refusal refusal;
    const RefusalRow* row = nullptr;
};

std::string_view firstLineOf(std::string_view text) {
    return text.substr(0, text.find('\n'));
}

/// Sorts what a tool said of the output text by the lines of the source.
class RefusedLines {
public:
    RefusedLines(const ParsedSource& source, const OutputText& output)
        : source_(source), output_(output), outputLines_(output.text) {
        for (const auto& structure : source.parser->structs()) {
            if (const auto place = source.parser->places().of(*structure.second)) {
                structures_.push_back(*place);
            }
        }
    }

    /// What is said after a line whose row misleads counts for nothing.
    void add(const ToolchainError& error) {
        if (isMisled_ && error.line != misledAt_) {
            return;
        }
        RefusedLine found = locate(error);
        const auto [known, isNew] =
            indices_.emplace(std::pair(found.place ? found.place->source.get() : nullptr, found.line), lines_.size());
        if (isNew) {
            lines_.push_back(std::move(found));
        }
        RefusedLine& line = lines_[known->second];
        if (line.row == nullptr) {
            recognise(line, error);
        }
    }

    /// In the order in which they were refused. What has neither a place nor a row tells nothing beside the others.
    std::vector<RefusedLine> take() {
        const auto tellsNothing = [](const RefusedLine& line) { return !line.place && line.row == nullptr; };
        if (!std::all_of(lines_.begin(), lines_.end(), tellsNothing)) {
            lines_.erase(std::remove_if(lines_.begin(), lines_.end(), tellsNothing), lines_.end());
        }
        return std::move(lines_);
    }

private:
    RefusedLine locate(const ToolchainError& error) {
        RefusedLine found;
        found.outputLine = error.line;
        if (error.line == 0 || error.line > outputLines_.count()) {
            return found;
        }
        const void* node = output_.origins.ofLineAt(output_.text, outputLines_.beginOf(error.line));
        found.place = source_.parser->places().ofAddress(node);
        if (found.place) {
            const SourceText* text = found.place->source.get();
            const auto& index = sourceLines_.try_emplace(text, text->text).first->second;
            found.line = index.lineAt(found.place->range.begin);
        }
        return found;
    }

    void recognise(RefusedLine& line, const ToolchainError& error) {
        Refusal& refusal = line.refusal;
        refusal.message = plainMessage(error.message);
        if (line.place) {
            const std::string_view text = line.place->source->text;
            refusal.statement = firstLineOf(text.substr(line.place->range.begin));
            refusal.isInStructure = isInStructure(*line.place);
        }
        line.row = findRefusal(refusal);
        if (line.row != nullptr) {
            isMisled_ = line.row->misleads;
            misledAt_ = error.line;
        }
    }

    bool isInStructure(const SourcePlace& place) const {
        return std::any_of(structures_.begin(), structures_.end(), [&](const SourcePlace& structure) {
            return structure.source == place.source && structure.range.begin < place.range.begin &&
                   place.range.end <= structure.range.end;
        });
    }

    const ParsedSource& source_;
    const OutputText& output_;
    const LineIndex outputLines_;
    std::vector<SourcePlace> structures_;
    std::map<const SourceText*, LineIndex> sourceLines_;
    std::vector<RefusedLine> lines_;
    std::map<std::pair<const SourceText*, std::size_t>, std::size_t> indices_;
    bool isMisled_ = false;
    std::size_t misledAt_ = 0;
};

ShownPlace placeOf(const RefusedLine& line) {
    if (!line.place) {
        return {};
    }
    const auto number = static_cast<std::int32_t>(line.line);
    return {line.place->source->path, number, lineOf(line.place->source->text, number)};
}

/// A refusal that no row knows: the words of the target compiler are all there is to go by.
Explanation unknownRefusal(const RefusedLine& line, const std::string& file) {
    std::string text = "உருவான C++ உரை: '" + file + "'";
    if (line.outputLine > 0) {
        text += ", வரி " + std::to_string(line.outputLine);
    }
    return {
        placeOf(line),
        {line.place ? "பொழில் ஏற்கும் இந்தக் கூற்றை C++ தொகுப்பி மறுக்கிறது." : "உருவான உரையை C++ தொகுப்பி மறுக்கிறது.", text},
        line.place ? "கூற்றைச் சின்னச் சின்ன வரிகளா பிரிச்சு, ஒவ்வொரு விடையையும் ஒரு மாறியில வச்சுப் பாரு மச்சி!" : ""};
}

void explain(const RefusedLine& line, const std::string& file) {
    if (line.row == nullptr) {
        printExplanation(unknownRefusal(line, file));
        return;
    }
    printExplanation({placeOf(line),
                      {fillRefusalText(line.row->cause, line.refusal)},
                      fillRefusalText(line.row->remedy, line.refusal)});
}

} // namespace

void reportRefusals(const ParsedSource& source, const OutputText& output, const std::string& file,
                    std::string_view written) {
    if (written.empty()) {
        return;
    }
    RefusedLines refused(source, output);
    for (const ToolchainError& error : readToolchainErrors(written, file)) {
        refused.add(error);
    }
    const std::vector<RefusedLine> lines = refused.take();
    if (lines.empty()) {
        explain({}, file);
    }
    for (std::size_t index = 0; index < std::min(lines.size(), MOST_EXPLAINED); ++index) {
        explain(lines[index], file);
    }
    if (lines.size() > MOST_EXPLAINED) {
        std::cerr << "  … இன்னும் " << lines.size() - MOST_EXPLAINED << " வரிகள் மறுக்கப்பட்டன." << std::endl;
    }
}

} // namespace pozhil
