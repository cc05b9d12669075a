#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// Fonts as TrueType and OpenType write them: a list of tables, each under a tag of four letters.
namespace pozhil::tools {

/// Numbers of a font have their highest byte first. What lies beyond the end is zero.
std::uint32_t shortAt(std::string_view bytes, std::size_t place);
std::uint32_t longAt(std::string_view bytes, std::size_t place);

/// The same numbers as a font writes them; of a larger one, the bytes that fit.
std::string shortBytes(std::size_t number);
std::string longBytes(std::size_t number);

/// What of \p bytes lies from \p begin on; less than \p length where they end before.
std::string_view part(std::string_view bytes, std::size_t begin, std::size_t length = std::string_view::npos);

/// Whether a file begins as a font of this kind does.
/// \param file the whole file; any bytes will do
bool isFont(std::string_view file);

/// The first table with a tag, as far as it is there; empty without one.
/// \param font the whole file; any bytes will do
std::string_view tableOf(std::string_view font, std::string_view tag);

/// Tables by their tags. Whose they are lives as long.
using FontTables = std::map<std::string, std::string_view, std::less<>>;

/// All tables of a font.
/// \param font the whole file; any bytes will do
/// \return nothing if it isn't a font, or one whose tables aren't whole, or which has two with the same tag
std::optional<FontTables> readTables(std::string_view font);

/// A font with TrueType outlines that has these tables. The sums in it that tell whether it is whole are right, whatever
/// stands for the one in the table "head", which has all of its 54 bytes.
std::string writeFont(const FontTables& tables);

} // namespace pozhil::tools
