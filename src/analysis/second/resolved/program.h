#pragma once

#include "analysis/second/resolved/kind.h"
#include "analysis/second/resolved/statements.h"
#include "base/source_text.h"

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace pozhil {
struct EachNode;
struct WebAppNode;
} // namespace pozhil

namespace pozhil::resolved {

struct Function;
struct Structure;

/// A variable: of a file, or of one call of a function.
struct Variable {
    /// As it is written.
    std::string name;
    /// Where it is first given a value.
    Place place;
    /// The function whose calls each have one of their own; null for a variable of a file.
    const Function* owner = nullptr;
    /// Index of the file among Program::files.
    std::size_t file = 0;
    /// What it always holds; Any unless that is certain. A variable that may be unset, is shared or is passed by
    /// reference is always Any.
    Kind kind = Kind::Any;
    /// A function inside its owner reads or writes it, so it lives as long as both.
    bool isShared = false;
    /// Some way leads to a read of it before it has a value: such reads are checked.
    bool mayBeUnset = false;
    /// A parameter that is மாற்று: while the call lasts it is the variable that the call gives for it, which others may know.
    bool isReference = false;
};

/// A parameter of a function.
struct Parameter {
    Variable* variable = nullptr;
    /// மாற்று: what the call gives is a place, and gets the value that the parameter has in the end.
    bool isMutable = false;
};

/// A function of a file, a function inside of another, a lambda, or a method.
struct Function {
    /// As it is written; "வினை" for a lambda.
    std::string name;
    Place place;
    std::size_t file = 0;
    /// With தான் first, if it is a method.
    std::vector<Parameter> parameters;
    /// Variables of its own that are no parameters.
    std::vector<Variable*> variables;
    /// Shared variables of the functions around it that it or a function inside of it uses, in the order in which a value
    /// of it takes them.
    std::vector<Variable*> captures;
    std::unique_ptr<Block> body;
    /// What it returns; Any unless that is certain. A function that is used as a value has Any here and in all parameters.
    Kind result = Kind::Any;
    /// The structure that it is a method of.
    const Structure* structure = nullptr;
    /// The function that it stands in; null for functions of a file and methods.
    const Function* enclosing = nullptr;
    bool isPrivate = false;
    /// Somewhere its name stands for a value, so it can be called without being named.
    bool isValue = false;
    /// It stands for the frames of a page.
    bool isPage = false;
};

/// A field of a structure.
struct Field {
    std::string name;
    Place place;
    /// What an object begins with, evaluated anew for each; null for a field that only methods set.
    ExpressionPtr initializer;
    bool isPrivate = false;
};

struct Structure {
    std::string name;
    Place place;
    std::size_t file = 0;
    const Structure* parent = nullptr;
    /// No object is made of it.
    bool isAbstract = false;
    /// தான் in the first values of its fields: no variable of the program, since every object has its own.
    Variable self;
    /// Its own; those of its parents come before them in an object.
    std::vector<Field> fields;
    /// Its own, துவக்கம் among them; an abstract one has no body.
    std::vector<const Function*> methods;
};

/// One source file and what it does when the program starts.
struct File {
    SourcePtr source;
    std::vector<Variable*> variables;
    /// The statements at top level.
    std::unique_ptr<Block> body;
};

/// A page of a web application.
struct Page {
    const WebAppNode* tree = nullptr;
    /// Each of its calls is a frame: its statements evaluate, in the order of the text, what the widgets show and what
    /// happens when they are used. Its values are written where the widgets need them.
    const Function* frame = nullptr;
};

/// Whether the variable is an element of a list that a page shows, or the index of one.
inline bool isOfElement(const Variable& variable) {
    return variable.owner != nullptr && variable.owner->isPage;
}

/// A value of a page, as a statement of its frame.
struct PageValue {
    const Evaluation* evaluation = nullptr;
    const Function* frame = nullptr;
};

/// A whole program with every name resolved. It owns all that its parts point to.
struct Program {
    /// In the order in which they run: what is imported before who imports it, the program's own file last.
    std::vector<File> files;
    /// All functions, lambdas and methods, those of a file in the order of the text.
    std::vector<std::unique_ptr<Function>> functions;
    /// Parents before their children.
    std::vector<std::unique_ptr<Structure>> structures;
    std::vector<std::unique_ptr<Variable>> variables;
    /// Of a file of tests, in the order of the text; each is called if the program is started for it.
    std::vector<const Function*> tests;
    /// In the order of the text; none in a console program. The trees outlive the program.
    std::vector<Page> pages;
    /// The values of pages, by their nodes in the tree, the states of boxes to tick by the texts of their names; what assigns the place of a control by the name of its property.
    std::unordered_map<const void*, PageValue> pageValues;
    /// By the node of an ஒவ்வொன்றும், the function whose parameters are the element and its index.
    std::unordered_map<const EachNode*, const Function*> elements;
};

} // namespace pozhil::resolved
