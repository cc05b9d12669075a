#pragma once

#include <string>
#include <string_view>

namespace pozhil::tools {

/// The list of errors that users read (docs/பிழைகள்.md), compiled into the command.
namespace error_page {
extern const std::string_view பிழைகள்;
} // namespace error_page

/// The programs that the list of errors shows of one error.
struct ShownPrograms {
    /// One that comes to the error, and below it one that does the same right; empty where none is shown.
    std::string wrong;
    std::string right;
};

/// Reads them off a page: the first program whose expected fault has this code, and the program after it, unless that one
/// comes to a fault too.
/// \param page in Markdown, with the fences of the guides
/// \param code such as "பொழி-304"
ShownPrograms shownPrograms(std::string_view page, std::string_view code);

} // namespace pozhil::tools
