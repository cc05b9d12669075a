#pragma once

#include "tools/language_server/names.h"
#include "tools/language_server/references.h"

#include <string>
#include <vector>

/// A name of a program in the place of another one, wherever it stands.
namespace pozhil::language_server {

/// What is renamed together, and in which programs.
struct NameUse {
    Edition edition = Edition::First;
    std::string name;
    /// What the name stands for: one thing, or members of several structures where nobody can tell which of them is meant
    /// before the program runs.
    std::vector<FoundSymbol> symbols;
    /// The sources that nobody imports of those that know any of these.
    std::vector<NamedSource> programs;
    /// These, and all that they import.
    std::vector<NamedSource> files;
    /// Where the name stands for one of these symbols, each place once.
    std::vector<Reference> places;
};

/// What the name at a token stands for. Only that is filled in.
/// \throws RequestError if it can't be renamed, in words for the user
NameUse renamedAt(const Workspace& workspace, const NamedSource& file, std::size_t token);

/// Finds where it is used, in all sources of the workspace.
/// \throws RequestError if one of these can't be changed
void findUses(const Workspace& workspace, NameUse& use);

/// Makes sure that all programs stay the same with the other name.
/// \param newName as it is to be written
/// \throws RequestError if not
void checkNewName(const Workspace& workspace, const NameUse& use, const std::string& newName);

} // namespace pozhil::language_server
