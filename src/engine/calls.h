#pragma once

#include "engine/faults.h"
#include "engine/value.h"

#include <initializer_list>

/// Functions as values, structures and objects, as the emitted text makes and uses them.

namespace pozhil::engine {

/// A variable that functions share: it lives as long as one of them.
class Cell : public Counted {
public:
    Cell() = default;
    explicit Cell(const Value& first) : own_(first) {}
    /// The variable is \p place until it is detached from there.
    explicit Cell(Value* place) : place_(place) {}
    Cell(const Cell&) = delete;
    Cell& operator=(const Cell&) = delete;

    Value& value() { return *place_; }
    /// From now on the variable is one of its own, with the value that the place has.
    void detach() {
        own_ = *place_;
        place_ = &own_;
    }

private:
    Value own_ = Value::unset();
    Value* place_ = &own_;
};

/// Holds on to a shared variable.
class Shared {
public:
    Shared();
    explicit Shared(const Value& first);
    Shared(Cell* cell) : cell_(cell) { ++cell_->references; }
    Shared(const Shared& other) : Shared(other.cell_) {}
    Shared& operator=(const Shared&) = delete;
    ~Shared();

    Value& value() const { return cell_->value(); }
    Cell* cell() const { return cell_; }

private:
    Cell* cell_;
};

/// A மாற்று parameter that functions share: as long as the call lasts they see the place that the call gave for it, and
/// afterwards a variable of their own.
class SharedPlace {
public:
    explicit SharedPlace(Value& place);
    SharedPlace(const SharedPlace&) = delete;
    SharedPlace& operator=(const SharedPlace&) = delete;
    ~SharedPlace();

    Cell* cell() const { return cell_; }

private:
    Cell* cell_;
};

/// The code of a function that a value holds. What it leaves in the arguments of its மாற்று parameters is what the caller
/// takes back.
using Code = Value (*)(const Closure& own, Value* arguments, Place calledAt);

/// What is known of a function before the program runs. The emitted text has one for each that is used as a value or is a
/// method.
struct FunctionInfo {
    const char* name;
    Code code;
    /// With தான், if it is a method.
    int parameters;
    /// Bit i is set if parameter i is மாற்று.
    unsigned mutableParameters;
};

/// A value of the function, with the shared variables that it uses.
Value function(const FunctionInfo& info, std::initializer_list<Cell*> captured = {});

/// The shared variable that a function value took as number \p index.
Cell* captured(const Closure& own, int index);

/// callee(arguments). The arguments belong to the caller; those for மாற்று parameters have their new values afterwards.
/// \param count how many arguments there are
/// \return what the function gives
Value callValue(const Value& callee, Value* arguments, int count, Place place);

/// The arguments {} of a call.
struct NoArguments {};

/// The same with arguments of its own, {a, b}.
template <unsigned long count> Value call(const Value& callee, Value (&&arguments)[count], Place place) {
    return callValue(callee, arguments, static_cast<int>(count), place);
}
inline Value call(const Value& callee, NoArguments, Place place) {
    return callValue(callee, nullptr, 0, place);
}

/// What a variable holds that is called, and whose name hides a function of the language: a fault if that is no function.
const Value& calledVariable(const char* name, const Value& held, Place place);

/// Bit i is set if the function takes argument i as a place.
unsigned mutableParameters(const Value& callee);

/// Names of members have numbers, which the emitted text gives.
using Member = int;

struct MemberSlot;
struct Structure;

/// A field of a structure as the emitted text declares it.
struct FieldInfo {
    Member name;
    bool isPrivate;
};

struct MethodInfo {
    Member name;
    const FunctionInfo* function;
    bool isPrivate;
};

/// A structure as the emitted text declares it. The tables of members are made by run().
struct Structure {
    const char* name;
    const Structure* parent;
    bool isAbstract;
    const FieldInfo* fields;
    int fieldCount;
    const MethodInfo* methods;
    int methodCount;
    /// Gives the fields of one structure, without those of its parents, their first values.
    void (*initialize)(Value& self);
    /// Made by run().
    struct Table;
    Table* table;
    /// Of every member of the program, by its number. Made by run().
    const MemberSlot* slots = nullptr;
};

/// A new object, the fields of all its parents and its own initialised, before துவக்கம்.
Value create(Structure& structure, Place place);

/// A source of the program, for its faults; without its text, these tell the number of a line alone.
struct Source {
    const char* path;
    const char* text;
    unsigned long length;
};

/// A text that stands in the program: UTF-8 in NFC, with a zero byte at its end.
struct TextLiteral {
    const char* bytes;
    unsigned long length;

    template <unsigned long size>
    constexpr TextLiteral(const char (&literal)[size]) : bytes(literal), length(size - 1) {}
};

/// What the emitted text tells of its program.
struct ProgramInfo {
    /// Carries out the statements of all files.
    void (*start)();
    const Source* sources;
    int sourceCount;
    /// By number.
    const char* const* members;
    int memberCount;
    /// Parents before their children.
    Structure* const* structures;
    int structureCount;
    /// Where run() puts the values of the literals, before the program starts.
    Value* texts = nullptr;
    const TextLiteral* literals = nullptr;
    int textCount = 0;
};

/// Runs the program on a stack of its own.
/// \return its exit status: 0, or 1 after a fault that nobody caught, whose box is shown
int run(const ProgramInfo& program);

} // namespace pozhil::engine
