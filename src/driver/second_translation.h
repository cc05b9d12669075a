#pragma once

#include "diagnostics/second_fault.h"
#include "diagnostics/second_hint.h"
#include "front_end/second_edition.h"
#include "generator/second/generator.h"
#include "generator/web/page/application.h"

#include <optional>
#include <string>
#include <vector>

namespace pozhil {

/// What became of a source of the second edition.
struct SecondTranslation {
    /// The program as it is written.
    SecondProgram program;
    /// The output text; empty if there are faults.
    SecondText output;
    /// All files of the program, as the places of the output text number them.
    std::vector<SourcePtr> sources;
    /// What the pages of the program ask for, which stand in its trees; nothing for a console program.
    std::optional<Application> application;
    /// The names of the test functions, if the source is a file of tests.
    std::vector<std::string> tests;
    SecondFaults faults;
    /// What runs but surely isn't meant.
    SecondHints hints;
};

/// Translates a source of the second edition and all that it imports into the output text.
SecondTranslation translateSecondEdition(SourcePtr source, const FrontEndOptions& options);

} // namespace pozhil
