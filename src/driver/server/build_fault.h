#pragma once

#include <chrono>
#include <cstdint>
#include <string>

/// What open pages show of a build that failed, until there is a good one.
namespace pozhil {

/// Why a build failed.
struct BuildFault {
    /// A code of the catalogue; empty if nobody knows it
    std::string code;
    std::string file;
    /// Counted from 1; 0 if nobody knows it
    std::int32_t line = 0;
    std::string description;
};

/// From now on pages that ask are told of this fault.
void tellPages(const BuildFault& fault);

/// From now on pages that ask are told that all is well.
void tellPagesOfSuccess();

/// What a page that asks is told, as JSON: all members of the fault, those that nobody knows empty or 0; none if all is well.
std::string answerToPage();

/// Waits until the fault that was told last has reached a page, if there are pages that ask: without their server they could
/// never learn of it.
/// \param longest how long to wait
void waitForPages(std::chrono::milliseconds longest);

} // namespace pozhil
