#pragma once

#include "parser/syntax_tree.h"

#include <set>
#include <string>
#include <vector>

namespace pozhil {

/// The value of a header property as text: that of a string or a colour, in the first application that has one; empty
/// if there is none.
std::string extractHeaderProperty(const Program& program, const std::string& key);

/// Adds the files that a subtree shows: images, icons and fonts. Images in logic code are not seen.
/// \param statement may be null
void collectImagePaths(const Statement* statement, std::set<std::string>& paths);

/// The em++ arguments that pack an application's files: the directory assets, the files that its widgets show, and its
/// background video. Files that don't exist are left out; a missing video is told on standard error.
std::vector<std::string> packingArguments(const Program& program);

} // namespace pozhil
