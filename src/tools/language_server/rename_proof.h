#pragma once

#include "front_end/front_end.h"

#include <optional>
#include <string>
#include <string_view>

/// Whether a program with a changed name is still the same program.
namespace pozhil::language_server {

/// What the compiler makes of a source and all that it imports.
struct CompiledText {
    bool isSecondEdition = false;
    std::string text;
};

/// \return nothing if there are faults
std::optional<CompiledText> compiledText(const SourcePtr& source, FrontEndOptions options);

/// Whether both texts are the same word by word, but that \p newName stands for \p oldName in names; and whether no name
/// of the second one stands for two of the first, so that one variable would have taken the place of another.
///
/// This is the judgement of the compiler itself: what it takes for another variable it declares another way, wherever the
/// outline of a source may be mistaken.
bool isSameButForName(const CompiledText& before, const CompiledText& after, std::string_view oldName,
                      std::string_view newName);

} // namespace pozhil::language_server
