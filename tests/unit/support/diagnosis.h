#pragma once

#include <functional>
#include <string>
#include <vector>

namespace pozhil::test {

/// Runs \p work up to its first fault.
/// \return code and line of the fault, such as "பொழி-201 வரி 3"; "none" if the work came to its end; "exception" and the
/// message for a fault that is told without its place and for an exception
std::string diagnosisOf(const std::function<void()>& work);

/// The whole box of the fault that \p work ends with, as it is printed. A box ends its process, so that is a child.
std::string reportOf(const std::function<void()>& work);

/// The lines of \p report without their line ends.
std::vector<std::string> rowsOf(const std::string& report);

} // namespace pozhil::test
