#pragma once

#include <string>
#include <vector>

namespace pozhil::tools {

/// What a new project is to be.
struct ProjectKind {
    bool isApplication = false;
    bool isSecondEdition = true;
};

/// A file that a new project begins with.
struct StarterFile {
    /// Its path in the project, with a folder at most.
    std::string name;
    std::string text;
};

/// \param name of the project, which the texts name
std::vector<StarterFile> starterFiles(const std::string& name, ProjectKind kind);

} // namespace pozhil::tools
