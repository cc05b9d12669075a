#pragma once

#include "diagnostics/mend.h"
#include "error_handler.h"

#include <cstdint>
#include <string>

namespace pozhil {

/// How the user is told of a fault while a program is compiled.
enum class FaultForm {
    Box,      ///< by the box of ErrorHandler::அறிக்கை
    StageLine ///< by the line that names the stage, since nobody noted a source line for it
};

/// Something wrong in a source, as a stage found it. Stages throw it; whoever runs them decides what becomes of it.
///
/// It is no std::exception: a handler for the surprises of the C++ library can't swallow it.
struct Fault {
    பிழைவகை category;
    /// A code of the catalogue.
    std::string code;
    /// The file that is shown; empty where naming one would mislead.
    std::string file;
    /// Counted from 1; 0 if the stage knows none.
    std::int32_t line = 0;
    /// What is known beyond the catalogue's description; may be empty.
    std::string details{};
    /// The text of the line.
    std::string lineText{};
    FaultForm form = FaultForm::Box;
    /// The node of the tree that it was found at; null if the stage knows none.
    const void* node = nullptr;
    /// What may have been meant, as a sentence of its own; may be empty.
    std::string hint{};
    /// What to write in its place, where one thing alone is right.
    Mend mend{};
};

/// The catalogue's description of the fault, with its details in brackets.
std::string descriptionOf(const Fault& fault);

/// Code, description, remedy and details in one line, as a fault without a box is told while a source is watched.
std::string messageOf(const Fault& fault);

} // namespace pozhil
