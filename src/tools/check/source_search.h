#pragma once

#include "tools/check/finding.h"

#include <string>
#include <vector>

namespace pozhil::tools {

/// What stands under the files and folders that are to be checked.
struct FoundSources {
    /// Paths, those of a folder in the order of their bytes; each file once.
    std::vector<std::string> paths;
    /// Folders that can't be read.
    std::vector<Unread> unread;
};

/// Looks for sources: a file that is given is one whatever its name; in folders and all below them, what ends in
/// ".பொழில்". Links are followed, but into each folder once. What is hidden (".name") in a folder is passed over.
FoundSources findSources(const std::vector<std::string>& given);

} // namespace pozhil::tools
