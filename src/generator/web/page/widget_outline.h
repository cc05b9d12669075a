#pragma once

#include "generator/web/page/application.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace pozhil {

/// What can be done with a widget of a page.
enum class WidgetUse {
    None,  ///< it is only looked at
    Press, ///< a press does something
    Link   ///< a press leads to another page
};

/// Variables of the program that decide whether a widget is there: its own and those of what it stands in.
struct ShowingVariables {
    /// It is there unless one of these holds a பொய்.
    std::vector<std::string> unlessHidden;
    /// It is there once all of these hold a மெய்: those of dialogs.
    std::vector<std::string> onceShown;
};

/// What those who can't see a widget are to know of it, beyond what its shapes tell.
struct OutlinedWidget {
    /// The source's word
    std::string kind;
    WidgetUse use = WidgetUse::None;
    /// The range of a slider, as far as it is constant
    std::optional<float> least{};
    std::optional<float> largest{};
    /// The file of a picture
    std::string file{};
    /// What a picture shows, in words; empty for one that only adorns
    std::string name{};
    ShowingVariables variables{};
};

/// Boxes (those to tick as well), tiles, buttons, sliders and pictures of each page by the page's name, in the order in
/// which a frame draws them: what stands in dialogs comes last.
std::map<std::string, std::vector<OutlinedWidget>> outlineOf(const Application& application);

} // namespace pozhil
