#pragma once

#include "diagnostics/fault.h"
#include "parser/tree/node.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace pozhil {

/// The source that analysis names in its faults: always the program's own file, also for code that it imports.
class FaultSite {
public:
    /// \param path the source path as the user gave it
    /// \param text its text, which outlives the site
    FaultSite(std::string path, std::string_view text);

    const std::string& path() const { return path_; }

    /// Raises a fault in \p line; \p details may be empty.
    [[noreturn]] void raise(const std::string& code, std::int32_t line, const std::string& details = {}) const;

    /// Raises a fault in the line of \p node, which tells whoever asks in which file that is.
    [[noreturn]] void raise(const std::string& code, const Expression& node, const std::string& details = {}) const;

    /// Raises a fault at \p node that is told without its place.
    /// \param node null if nobody knows it
    /// \param hint what may have been meant; may be empty
    /// \param mend what to write instead, where one thing alone is right
    [[noreturn]] void raisePlaceless(const std::string& code, const Expression* node, const std::string& details,
                                     std::string hint = {}, Mend mend = {}) const;

    /// A fault that is told without its place, to be thrown.
    Fault placeless(const std::string& code, std::int32_t line, const std::string& details) const;

private:
    Fault fault(const std::string& code, std::int32_t line, const std::string& details) const;

    std::string path_;
    std::string_view text_;
};

} // namespace pozhil
