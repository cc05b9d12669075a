#pragma once

#include "analysis/second/doubt.h"
#include "analysis/second/fault_list.h"
#include "analysis/second/locations.h"
#include "analysis/second/resolved/program.h"
#include "parser/tree/second_edition.h"

#include <cstddef>
#include <deque>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace pozhil {
struct SecondProgram;
}

/// What the parts of the analysis know of a program, and hand on to each other. Names are views of the trees, which
/// outlive the analysis.

namespace pozhil::second {

/// How a name is used where it stands.
enum class Use : std::uint8_t { Read, Call, Write };

/// A name in the text of a function.
struct Mention {
    std::string_view name;
    Use use;
};

/// A place where a name gets a value.
struct GivenName {
    enum class By : std::uint8_t { Assignment, Compound, Loop, Catch, Control };
    std::string_view name;
    By by;
    resolved::Place place;
    /// What is assigned; null for loops and catch variables.
    const Expression* value;
};

/// The names of one function, or of a file's top level.
struct Scope {
    std::size_t file = 0;
    /// What it stands in: the file's scope for a function of the file or a method; null for the file's.
    Scope* outer = nullptr;
    /// Null for a file's top level.
    resolved::Function* function = nullptr;
    /// What is carried out: a block, or for a short lambda the value that it gives.
    const BlockStatement* body = nullptr;
    const Expression* value = nullptr;
    /// The place that a call puts its only argument into, which no function of the text does.
    const Expression* assigned = nullptr;
    /// It has no name, so it is always used as a value.
    bool isLambda = false;
    /// The page that is drawn in each call of the function; null for all other functions.
    const WebAppNode* page = nullptr;
    /// It stands in an application, so that it assigns the application's variables without a word.
    bool isOfApplication = false;

    std::unordered_map<std::string_view, resolved::Variable*> variables;
    /// Functions that are written in this one.
    std::unordered_map<std::string_view, resolved::Function*> functions;
    /// Names that பொது makes those of the file.
    std::unordered_set<std::string_view> fileNames;
    /// In the order of the text.
    std::vector<GivenName> given;
    std::vector<Mention> mentions;
};

/// What a name of a file can stand for beside its variables.
struct Definition {
    resolved::Function* function = nullptr;
    resolved::Structure* structure = nullptr;
    const EnumerationStatement* enumeration = nullptr;
    resolved::Place place;
};

using Definitions = std::unordered_map<std::string_view, Definition>;

/// What is known of a variable besides its resolved form.
struct VariableFacts {
    /// Every value that it is assigned.
    std::vector<const Expression*> values;
    /// An assignment, a loop or a fault gives it a value.
    bool isGivenInText = false;
    /// It is given values that the text doesn't show: a parameter or the variable of a loop.
    bool isFilledFromOutside = false;
    /// A function assigns this variable of its file.
    bool isAssignedByPublic = false;
};

/// What the applications of a file have in common.
struct ApplicationFacts {
    /// Names of their state: what their logic assigns by itself, and what their pages show.
    std::unordered_set<std::string_view> stateNames;
    /// Names that the program calls widgets by.
    std::unordered_set<std::string_view> widgetNames;
};

/// A structure as it is written.
struct StructureFacts {
    const StructDefinitionStatement* tree = nullptr;
    const AbstractStructDefinitionStatement* abstractTree = nullptr;
    /// Members that its methods assign through தான், in the order of the text.
    std::vector<std::pair<std::string_view, resolved::Place>> assigned;
    std::vector<const resolved::Structure*> children;
};

struct Model {
    Model(const SecondProgram& theSource, resolved::Program& theProgram)
        : source(theSource), program(theProgram), faults(theSource), locations(theSource) {}

    const SecondProgram& source;
    resolved::Program& program;
    FaultList faults;
    Locations locations;
    Doubt doubt;
    /// Outer ones before inner ones, those of a file in the order of the text.
    std::deque<Scope> scopes;
    std::vector<Scope*> fileScopes;
    /// Of each file.
    std::vector<ApplicationFacts> applications;
    bool hasApplication = false;
    /// By the names of pages, where they begin.
    std::unordered_map<std::string, resolved::Place> pages;
    /// By the node of the function in its tree.
    std::unordered_map<const void*, Scope*> scopeOf;
    std::unordered_map<const resolved::Function*, Scope*> scopeOfFunction;
    /// Of each file: what it defines, and what it sees.
    std::vector<Definitions> own;
    std::vector<Definitions> visible;
    std::unordered_map<const resolved::Variable*, VariableFacts> variables;
    std::unordered_map<const resolved::Structure*, StructureFacts> structures;
    /// Arguments that a function value may take as places, by the number of arguments and the index.
    std::set<std::pair<std::size_t, std::size_t>> mutableInValues;
    /// Arguments that methods take as places, by the method's name and the index without the object.
    std::set<std::pair<std::string_view, std::size_t>> mutableInMethods;
    /// Unknown names, each of which is told once in a file.
    std::set<std::pair<std::size_t, std::string_view>> toldNames;
    /// Unknown members, with the name of what doesn't have them.
    std::set<std::pair<std::string, std::string>> toldMembers;
    /// The variable that holds an inner function, if it needs the variables around it.
    std::unordered_map<const resolved::Function*, resolved::Variable*> holders;

    /// A new variable of the program, which belongs to \p scope.
    resolved::Variable* addVariable(const Scope& scope, std::string_view name, resolved::Place place);
    /// The same, known to the scope by its name.
    resolved::Variable* declare(Scope& scope, std::string_view name, resolved::Place place);
};

/// The object itself in its methods and in the first values of its fields.
constexpr std::string_view SELF_NAME = "தான்";

/// Whether \p name is the object itself in its methods.
bool isSelf(std::string_view name);

/// Whether \p name is that of a constant.
bool isConstantName(std::string_view name);

} // namespace pozhil::second
