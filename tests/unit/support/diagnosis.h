#pragma once

#include <functional>
#include <string>
#include <vector>

namespace pozhil::test {

/// Runs \p work in a child process, since a diagnostic ends the process that it is raised in.
/// \return code and line of its box, such as "பொழி-201 வரி 3"; "none" if the work came to its end; anything else that
/// ended it, such as a signal, in words
std::string diagnosisOf(const std::function<void()>& work);

/// The whole box that \p work ended with, as it was printed.
std::string reportOf(const std::function<void()>& work);

/// The lines of \p report without their line ends.
std::vector<std::string> rowsOf(const std::string& report);

} // namespace pozhil::test
