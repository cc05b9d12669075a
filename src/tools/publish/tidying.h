#pragma once

#include <string>

/// What is taken out of files that nobody reads any more.
namespace pozhil::tools {

/// A page without the indentation of its lines and without the lines of its scripts that are comments.
std::string tidiedPage(const std::string& page);

/// The script of em++ with the bare name of the packed files in place of where they were made: a folder of whoever
/// publishes, which is nobody's business.
std::string tidiedScript(std::string script);

} // namespace pozhil::tools
