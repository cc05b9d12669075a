#pragma once

#include <cstddef>
#include <string_view>

namespace pozhil::engine {

/// Finds a part of a text by whole letters: "க" isn't in "கா". Only a part that begins with a sign, which is no letter of
/// its own, is found inside letters too. Going over a text takes time in line with its length.
class LetterSearch {
public:
    static constexpr std::size_t NOWHERE = std::string_view::npos;

    /// Both texts must live as long as the search.
    /// \param part not empty
    LetterSearch(std::string_view text, std::string_view part);

    /// The first byte of the next occurrence at byte \p from or after it, which must not lie before that of an earlier
    /// question; NOWHERE if there is none.
    std::size_t find(std::size_t from);

private:
    /// Tells whether letters begin or end at places that are asked for in ascending order.
    class Boundaries {
    public:
        bool has(std::string_view text, std::size_t position);

    private:
        std::size_t reached_ = 0;
    };

    bool isAt(std::size_t position);

    std::string_view text_;
    std::string_view part_;
    bool beginsWithSign_;
    Boundaries begins_;
    Boundaries ends_;
};

} // namespace pozhil::engine
