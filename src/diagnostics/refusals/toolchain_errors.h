#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace pozhil {

/// One error of what g++ or em++ wrote.
struct ToolchainError {
    /// Line of the compiled text, counted from 1; 0 if the error names none.
    std::size_t line = 0;
    /// What is said of it, in the words of the tool; a part of what it wrote.
    std::string_view message;
};

/// The errors in what g++, em++ or their linkers wrote, in its order, in time that grows with its length.
///
/// An error in a header of the C++ library counts for the line of the compiled text that made use of it.
/// \param written outlives the errors
/// \param file the compiled text, as the tool was given it
std::vector<ToolchainError> readToolchainErrors(std::string_view written, std::string_view file);

} // namespace pozhil
