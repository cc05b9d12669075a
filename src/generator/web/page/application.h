#pragma once

#include "language/property_words.h"
#include "parser/syntax_tree.h"

#include <set>
#include <string>
#include <vector>

namespace pozhil {

/// What the applications of a program ask for together, read from the tree once.
struct Application {
    /// The applications in order, a page each. A console program has none.
    std::vector<const WebAppNode*> pages;
    /// Name of the page that is shown first: the last one that asks for it (ஆரம்ப_பக்கம்), else the first that has a
    /// name, else "home". Console programs have no pages and get "home" as well.
    std::string startPage = language::property::UNNAMED_PAGE;
    /// Name and size of the window, by the first application.
    std::string windowName;
    ScreenConfig screen;
    /// Properties of the header as text, each that of a string or a colour in the first application that has one, else
    /// empty.
    std::string title;      ///< of the served page
    std::string icon;       ///< a path
    std::string background; ///< a colour as the source writes it
    std::string video;      ///< a path
    /// Files that widgets show: images, icons and fonts. Images in logic code are not seen.
    std::set<std::string> files;
};

/// \param program outlives the record
Application readApplication(const Program& program);

/// \param pages of a program, in order; they outlive the record
Application readApplication(std::vector<const WebAppNode*> pages);

/// The name of the page that \p app describes, "home" if its header gives none.
std::string pageName(const WebAppNode& app);

} // namespace pozhil
