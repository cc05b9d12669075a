#pragma once

#include "analysis/second/resolved/node.h"
#include "parser/tree/node.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace pozhil {
struct SecondProgram;
}

namespace pozhil::second {

/// Where the nodes of a program's trees stand.
class Locations {
public:
    /// \param program outlives the object
    explicit Locations(const SecondProgram& program) : program_(program) {}

    /// The whole text of a node; an empty range at the beginning of the file for a node that no text has.
    resolved::Place of(std::size_t file, const void* node) const;

    /// A part of a node that has no node of its own, such as a name.
    /// \param part its address, by which the parser noted it
    /// \param name its text, which is looked for in the node's if the parser noted nothing
    resolved::Place ofPart(std::size_t file, const void* part, const void* node, std::string_view name) const;

    /// The first word \p name of a node's text after the byte \p end of the source; all of the node if it isn't there.
    resolved::Place wordAfter(resolved::Place whole, std::uint32_t end, std::string_view name) const;

    /// The line of a place, counted from 1.
    std::size_t lineOf(resolved::Place place) const;

private:
    std::string_view textOf(resolved::Place place) const;
    resolved::Place ofWord(resolved::Place whole, std::string_view name) const;

    const SecondProgram& program_;
};

} // namespace pozhil::second
