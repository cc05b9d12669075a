#pragma once

#include "parser/parser.h"

#include <string>
#include <vector>

namespace pozhil::test {

/// Scans and parses \p source as the file நிரல்.பொழில்.
/// \param moduleDirectories where imports are looked for behind the working directory
Program parseText(const std::string& source, const std::vector<std::string>& moduleDirectories = {});

/// The tree of \p source in written form.
std::string tree(const std::string& source);

/// The same with the lines of the nodes.
std::string treeWithLines(const std::string& source);

/// The tree of an expression, parsed as what a print statement prints.
std::string valueTree(const std::string& expression);

/// The tree of a widget as the root of an application's interface, where every word is taken for a widget's.
std::string widgetTree(const std::string& widget);

/// The tree of tokens that no source scans to; the end of the file is added.
std::string treeOfTokens(std::vector<Token> tokens);

/// Code and line of the diagnostic that \p source ends with, such as "பொழி-201 வரி 3"; "none" if it is parsed.
std::string fault(const std::string& source);

/// Code and line of the diagnostic for an expression, parsed as what a print statement prints.
std::string valueFault(const std::string& expression);

/// Code and line of the diagnostic for the root of an application's interface, whose text begins on line 2.
std::string widgetFault(const std::string& widget);

/// Code and line of the diagnostic for tokens that no source scans to.
std::string faultOfTokens(const std::vector<Token>& tokens);

} // namespace pozhil::test
