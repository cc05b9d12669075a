#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

/// The words of an application besides those of its widgets, as the second edition reads them: plain names, unless they
/// stand where an application can have them.
namespace pozhil::language::second::application {

constexpr std::string_view APPLICATION = "வலைதளம்";

// Sections.
constexpr std::string_view HEADER = "தலைமை";
constexpr std::string_view INTERFACE = "குமரி";
constexpr std::string_view DEFINITION = "வரையறை";
constexpr std::string_view DATABASE_MANAGER = "தரவுத்தளமேலாண்மை";
constexpr std::string_view FIREBASE_CONFIG = "பயர்பேசு_அமைப்பு";

// Calls of the database: the name before the dot, and its members.
constexpr std::string_view DATABASE = "நிகழ்நேர";
constexpr std::string_view DATABASE_INSERT = "தரவுசேர்";
constexpr std::string_view DATABASE_UPDATE = "தரவுமாற்று";
constexpr std::string_view DATABASE_DELETE = "தரவுஅழி";
constexpr std::string_view DATABASE_READ = "தரவுபடி";

} // namespace pozhil::language::second::application

namespace pozhil::language::second {

/// Whether a section of an application begins with this word.
inline bool isSection(std::string_view word) {
    constexpr std::string_view SECTIONS[] = {application::HEADER, application::INTERFACE, application::DEFINITION,
                                             application::DATABASE_MANAGER};
    return std::find(std::begin(SECTIONS), std::end(SECTIONS), word) != std::end(SECTIONS);
}

} // namespace pozhil::language::second
