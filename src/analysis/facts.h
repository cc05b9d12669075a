#pragma once

#include "analysis/visit_table.h"
#include "language/var_type.h"

namespace pozhil::language {
struct Builtin;
}

namespace pozhil {

/// Where a name lives that is read.
enum class Place {
    Native, ///< a variable of the function: parameter, loop variable, own variable
    Global  ///< the one map of the program
};

/// x = v where it is an expression.
struct AssignmentFact {
    Place place;
    /// Whether the value is held as it stands, without a std::any around it.
    bool isBare;
};

/// x = v where an assignment could not take it over.
struct DeclarationFact {
    Place place;
    /// Whether the variable begins here.
    bool isNew;
    /// Whether it is emptied first, as one that holds an object is.
    bool isEmptied;
    /// Whether it is filled by an object of its own name.
    bool isConstruction;
    bool isBare;
};

/// a.b where it is read.
enum class MemberKind {
    Input,    ///< of an input widget
    Property, ///< of an object
    TimePart  ///< of a time value
};

/// Arithmetic without a function of the runtime: the type that both operands are cast to.
struct ArithmeticFact {
    VarType operands;
};

/// What a call is, by what stands before its bracket.
enum class CallKind {
    InputMethod,     ///< of an input widget
    FunctionValue,   ///< a function value that stands there itself
    Guarded,         ///< whatever a member or variable holds
    Append,          ///< .சேர்()
    Clock,           ///< நேரம்.வினாடிகள்()
    TimeText,        ///< .தேதி(), .நேரம்(), .முழுவதும்()
    UserFunction,    ///< a function of the program
    Construction,    ///< an object of a structure
    ElementWrite,    ///< வை( )
    IndexAssignment, ///< a[i] = v
    Builtin          ///< a built-in function
};

struct CallFact {
    CallKind kind;
    /// The row of the built-in function or member, null for other kinds.
    const language::Builtin* builtin = nullptr;
};

/// The side tables that analysis fills and the writing walk reads.
struct Facts {
    VisitTable<Place> names;
    VisitTable<AssignmentFact> assignments;
    VisitTable<DeclarationFact> declarations;
    VisitTable<MemberKind> members;
    VisitTable<ArithmeticFact> arithmetic;
    VisitTable<CallFact> calls;

    void clear() {
        names.clear();
        assignments.clear();
        declarations.clear();
        members.clear();
        arithmetic.clear();
        calls.clear();
    }
};

} // namespace pozhil
