#pragma once

#include "tools/language_server/json.h"
#include "tools/language_server/outline.h"
#include "tools/language_server/workspace.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// What names mean, over the borders of sources.
namespace pozhil::language_server {

/// A source and what it names.
struct NamedSource {
    SourcePtr source;
    std::shared_ptr<const Outline> outline;
};

/// A symbol and the source that it stands in.
struct FoundSymbol {
    NamedSource file;
    const Symbol* symbol = nullptr;
};

/// A place in a document that a client asks about.
struct AskedPlace {
    const Document* document = nullptr;
    NamedSource file;
    /// Byte of the source.
    std::size_t offset = 0;
    /// The token there, NO_INDEX if there is none.
    std::size_t token = NO_INDEX;
};

/// What the parameters of a request ask about.
/// \throws RequestError if the document isn't open
AskedPlace askedPlace(const Workspace& workspace, const Json& params);
/// The open document that they name.
NamedSource askedSource(const Workspace& workspace, const Json& params, const Document*& document);

/// The source, and those whose names it sees: what it imports, of the first edition also what that imports.
std::vector<NamedSource> visibleSources(const Workspace& workspace, const NamedSource& file);

/// What the word of a token means; of a member all that have its name in any structure, since what stands before the dot is
/// known only when the program runs.
/// \param files what is visible where the token stands, its own source first
std::vector<FoundSymbol> meaningsOf(const std::vector<NamedSource>& files, std::size_t token);
std::vector<FoundSymbol> meaningsOf(const Workspace& workspace, const NamedSource& file, std::size_t token);

/// Whether a token is a member: something before a dot has it.
bool isMemberToken(const Outline& outline, std::size_t token);

/// What may stand after a dot: the members of what stands before it where that is certain, else those of all structures.
/// \param files what is visible there, its own source first
/// \param member index of the token after the dot, or of where one would be
std::vector<FoundSymbol> membersBefore(const std::vector<NamedSource>& files, std::size_t member);

/// The members of a structure or enumeration, those of the structures above it too.
std::vector<FoundSymbol> membersOf(const std::vector<NamedSource>& files, const Symbol& owner);

/// A symbol as its text declares it: செயல் பெயர்(அ, ஆ)
std::string headingOf(const Symbol& symbol);

/// The comment in the lines right above a symbol, without its signs.
std::string commentAbove(const FoundSymbol& symbol);

} // namespace pozhil::language_server
