#pragma once

#include "emit/origins.h"
#include "front_end/front_end.h"

#include <cstddef>
#include <string>

namespace pozhil {

/// The output text of a program.
struct OutputText {
    std::string text;
    /// How many bytes at its head are the runtime
    std::size_t runtimeLength = 0;
    /// Which node of the program each part of the text was written for
    Origins origins{};
};

/// Translates a parsed source into the output text.
/// \throws Fault
/// \throws StageFailure
OutputText generateText(const ParsedSource& parsed);

} // namespace pozhil
