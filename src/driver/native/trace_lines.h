#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

/// Finds the same places in another build of a program, whose functions are the same but lie elsewhere.
/// \param trace addresses in hexadecimal, a line each
/// \param symbols what nm tells of the program they come from
/// \param otherSymbols what nm tells of the other build
/// \return those of the addresses that lie in functions of both, in the same order and form
std::vector<std::string> translateAddresses(std::string_view trace, std::string_view symbols,
                                            std::string_view otherSymbols);

/// The lines of the output text among the places that addr2line names, in its order.
std::vector<std::size_t> linesOfOutputText(std::string_view places);

} // namespace pozhil
