#pragma once

#include "driver/second_translation.h"
#include "driver/server/build_fault.h"
#include "driver/translation.h"
#include "driver/web/web_compiler.h"
#include "generator/web/page/application.h"
#include "platform/process.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace pozhil {

/// A run of em++ that made nothing of an output text.
struct FailedCompilation {
    /// The output text, as em++ was given it
    std::string file;
    platform::CommandResult result;
    /// The same call without the user's own arguments
    platform::Command plainCall;
    /// Whether the user has been told the cause already
    bool isCauseTold = false;
    /// Whether the output text stays where it is
    bool isTextKept = true;
};

/// What a failed run of em++ came of.
struct WebFailure {
    /// For open pages
    BuildFault fault;
    /// Whether it was the machine or the user's own arguments, and no program could have been built
    bool isOfMachine = false;
};

/// An application as em++ is to build it, whichever edition it is written in. It refers to what it was made of, which
/// outlives it.
struct WebText {
    Edition edition = Edition::First;
    /// The output text
    std::string_view output;
    /// How many bytes at its head are the same in all versions of the application
    std::size_t runtimeLength = 0;
    Application application;
    WebLinking linking{};
    /// Tells on the console why em++ failed
    std::function<WebFailure(const FailedCompilation&)> reportFailure;
    /// Shows the hints on the program
    std::function<void()> reportHints;
};

/// \param output the output text of \p source
WebText webTextOf(const ParsedSource& source, const OutputText& output);

/// \param translation without faults, and with an application
WebText webTextOf(const SecondTranslation& translation);

} // namespace pozhil
