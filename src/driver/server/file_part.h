#pragma once

#include <cstdint>
#include <string_view>

namespace pozhil {

/// Which part of a file is to be sent.
struct FilePart {
    enum class Kind {
        Whole,     ///< nobody asked for a part, or not in a way that has an answer
        Part,      ///< some of its bytes
        Impossible ///< bytes that the file doesn't have
    };

    Kind kind = Kind::Whole;
    std::uint64_t first = 0;
    std::uint64_t length = 0;
};

/// What a header Range asks for of a file with \p size bytes. Of several parts at a time none is sent, but the whole: it
/// isn't more than they would be.
/// \param header its value; empty if there is none
FilePart rangeOf(std::string_view header, std::uint64_t size);

} // namespace pozhil
