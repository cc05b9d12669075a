#pragma once

#include "front_end/front_end.h"

#include <string>

namespace pozhil {

/// What became of a source that was to be formatted.
enum class FormatResult {
    Formatted,
    /// The scanner or the grammar finds fault with it.
    Faulty,
    /// It holds what can't be set anew without a change of its meaning, such as tabs that swallow letters.
    NotUnderstood
};

/// A source in the one style of the language.
struct FormattedSource {
    FormatResult result = FormatResult::Faulty;
    /// The whole text, which ends in a line end; that of the source as it was unless it was formatted.
    std::string text;
};

/// Sets a source anew: blocks and brackets indented by four blanks, single blanks between words, one blank line at most.
///
/// Lines stay lines, and all bytes but blanks stay: those of words, texts, numbers, signs and comments. The result means
/// the same, and is its own result. It is read again and compared with the source, so that nothing else ever comes out.
/// Only blanks at the end of a line aren't part of a comment.
/// \param source without carriage returns and byte order mark, like all sources
/// \param options how what a source of the first edition imports is read; an import that can't be found holds nothing
FormattedSource formatSource(const SourcePtr& source, const FrontEndOptions& options);

} // namespace pozhil
