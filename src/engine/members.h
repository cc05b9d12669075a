#pragma once

#include "engine/calls.h"

/// Fields and methods of objects, and what other values can do after a dot.

namespace pozhil::engine {

/// What a name means in the objects of a structure.
struct MemberSlot {
    /// Index among the fields of an object; negative for a method, and for a name that means nothing.
    int field = -1;
    /// Null for a field, and for a name that means nothing.
    const FunctionInfo* method = nullptr;
    /// The structure that declares it; null for a name that means nothing.
    const Structure* owner = nullptr;
    bool isPrivate = false;

    bool isField() const { return field >= 0; }
    /// Whether it is plain that code may use it; what is private may be for other structures' methods too.
    bool isOpenTo(const Structure* inside) const { return !isPrivate || owner == inside; }
};

/// The block of a value with Tag::Object. Its fields lie right after it.
struct Object : Counted {
    const Structure* structure = nullptr;

    Value* fields() { return reinterpret_cast<Value*>(this + 1); }
};

inline Object& objectBlock(const Value& value) {
    return *static_cast<Object*>(value.block());
}

/// The field of an object that plainly has it; null for anything else.
inline Value* openField(const Value& object, Member name, const Structure* inside) {
    if (!object.is(Tag::Object)) {
        return nullptr;
    }
    const MemberSlot& slot = objectBlock(object).structure->slots[name];
    return slot.isField() && slot.isOpenTo(inside) ? objectBlock(object).fields() + slot.field : nullptr;
}

/// The method of an object that plainly has it, with so many parameters beside தான்; null for anything else.
inline const FunctionInfo* openMethod(const Value& object, Member name, unsigned long parameters,
                                      const Structure* inside) {
    if (!object.is(Tag::Object)) {
        return nullptr;
    }
    const MemberSlot& slot = objectBlock(object).structure->slots[name];
    const bool isOpen = slot.method != nullptr && slot.isOpenTo(inside) &&
                        static_cast<unsigned long>(slot.method->parameters) == parameters + 1;
    return isOpen ? slot.method : nullptr;
}

/// object.name, read: a field, a method bound to its object, or a part of a value that is no object.
/// \param inside the structure in whose method this stands; null outside
Value memberValue(const Value& object, Member name, Place place, const Structure* inside);
inline Value member(const Value& object, Member name, Place place, const Structure* inside = nullptr) {
    const Value* const field = openField(object, name, inside);
    return field != nullptr && !field->is(Tag::Unset) ? *field : memberValue(object, name, place, inside);
}

/// The place of object.name for writing.
Value& fieldPlace(const Value& object, Member name, Place place, const Structure* inside);
inline Value& field(const Value& object, Member name, Place place, const Structure* inside = nullptr) {
    Value* const field = openField(object, name, inside);
    return field != nullptr ? *field : fieldPlace(object, name, place, inside);
}

/// What functions get that use no shared variables.
extern const Closure WITHOUT_VARIABLES;

/// method(object, arguments)
template <unsigned long count>
Value callOpenMethod(const FunctionInfo& method, const Value& object, Value (&arguments)[count], Place place) {
    Value all[count + 1] = {object};
    for (unsigned long i = 0; i < count; ++i) {
        all[i + 1].swap(arguments[i]);
    }
    return method.code(WITHOUT_VARIABLES, all, place);
}
inline Value callOpenMethod(const FunctionInfo& method, const Value& object, Place place) {
    Value all[] = {object};
    return method.code(WITHOUT_VARIABLES, all, place);
}

/// object.name(arguments): a method, a field that holds a function, or what texts, lists, maps and times can do. The
/// arguments belong to the caller; those for மாற்று parameters have their new values afterwards.
/// \param object a place, since methods such as சேர் write to what it holds
/// \param inside the structure in whose method this stands; null outside
Value callMethod(Value& object, Member name, Value* arguments, int count, Place place,
                 const Structure* inside = nullptr);

/// The same with arguments of its own, {a, b}.
template <unsigned long count>
Value callMethod(Value& object, Member name, Value (&&arguments)[count], Place place,
                 const Structure* inside = nullptr) {
    const FunctionInfo* const method = openMethod(object, name, count, inside);
    return method != nullptr ? callOpenMethod(*method, object, arguments, place)
                             : callMethod(object, name, arguments, static_cast<int>(count), place, inside);
}
inline Value callMethod(Value& object, Member name, NoArguments, Place place, const Structure* inside = nullptr) {
    const FunctionInfo* const method = openMethod(object, name, 0, inside);
    return method != nullptr ? callOpenMethod(*method, object, place)
                             : callMethod(object, name, nullptr, 0, place, inside);
}

/// The same of a value that has no place.
template <unsigned long count>
Value callMethodOf(const Value& object, Member name, Value (&&arguments)[count], Place place,
                   const Structure* inside = nullptr) {
    const FunctionInfo* const method = openMethod(object, name, count, inside);
    if (method != nullptr) {
        return callOpenMethod(*method, object, arguments, place);
    }
    Value copy = object;
    return callMethod(copy, name, arguments, static_cast<int>(count), place, inside);
}
inline Value callMethodOf(const Value& object, Member name, NoArguments none, Place place,
                          const Structure* inside = nullptr) {
    Value copy = object;
    return callMethod(copy, name, none, place, inside);
}

/// Bit i is set if the method takes argument i (without its object) as a place.
unsigned mutableParameters(const Value& object, Member name);

} // namespace pozhil::engine
