#pragma once

#include <cstddef>
#include <string_view>

namespace pozhil::language {

/// A constant table as a range of its rows. It owns nothing: the table lives as long as the program.
template <class Row> class Rows {
public:
    constexpr Rows() = default;

    template <std::size_t N> constexpr Rows(const Row (&table)[N]) : first_(table), count_(N) {}

    constexpr const Row* begin() const { return first_; }
    constexpr const Row* end() const { return first_ + count_; }
    constexpr std::size_t size() const { return count_; }

private:
    const Row* first_ = nullptr;
    std::size_t count_ = 0;
};

/// The same said in both languages of the documents.
struct Bilingual {
    std::string_view tamil;
    std::string_view english;
};

} // namespace pozhil::language
