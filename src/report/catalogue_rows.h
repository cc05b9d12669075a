#pragma once

#include "report/catalogue.h"

#include <cstddef>

/// The rows of the catalogue, a file for each hundred or half hundred of numbers, so that every stage has one of its own.

namespace pozhil::report {

/// Rows in ascending order of their numbers.
class EntryRows {
public:
    template <std::size_t count> constexpr EntryRows(const Entry (&rows)[count]) : begin_(rows), end_(rows + count) {}
    /// None yet.
    constexpr EntryRows() = default;

    const Entry* begin() const { return begin_; }
    const Entry* end() const { return end_; }

private:
    const Entry* begin_ = nullptr;
    const Entry* end_ = nullptr;
};

/// 501 to 549: what is written wrong.
EntryRows writingRows();
/// 551 to 599: what means nothing.
EntryRows meaningRows();
/// 601 to 623: what values can't do.
EntryRows valueRows();
/// 624 to 639: what is written wrong in a web application.
EntryRows applicationRows();
/// 640 to 699: calls, lists, maps, objects, files and time.
EntryRows runningRows();

/// All of them, in ascending order of their numbers.
struct Catalogue {
    EntryRows blocks[5];
};
Catalogue catalogue();

} // namespace pozhil::report
