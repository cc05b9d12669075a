#include "engine/blocks.h"
#include "engine/builtin_members.h"
#include "engine/function_block.h"
#include "engine/member_faults.h"
#include "engine/object.h"
#include "engine/raise.h"
#include "engine/running_faults.h"

#include <new>
#include <string>

/// Making objects, and their members.

namespace pozhil::engine {
namespace {

Value makeObject(const Structure& structure) {
    const int count = structure.table->fieldCount;
    void* const room = ::operator new(sizeof(Object) + static_cast<std::size_t>(count) * sizeof(Value));
    auto* const object = new (room) Object;
    object->structure = &structure;
    for (int i = 0; i < count; ++i) {
        new (object->fields() + i) Value(Value::unset());
    }
    return Value(Tag::Object, object);
}

/// What parents give comes first, so that children can build on it.
void initialize(const Structure& structure, Value& object) {
    if (structure.parent != nullptr) {
        initialize(*structure.parent, object);
    }
    if (structure.initialize != nullptr) {
        structure.initialize(object);
    }
}

const Value& checkedField(Object& object, const MemberSlot& slot, Member name, Place place) {
    const Value& value = object.fields()[slot.field];
    if (value.is(Tag::Unset)) {
        raise(UNSET_FIELD, place, {object.structure->name, memberName(name)});
    }
    return value;
}

Value callBuiltin(Value& value, Member name, Value* arguments, int count, Place place) {
    const BuiltinMember* const member = findBuiltinMember(value, name);
    if (member == nullptr) {
        raiseMissingBuiltin(value, name, place);
    }
    if (member->isPart) {
        raise(PART_CALLED, place, {member->name, kindWord(value)});
    }
    if (member->arguments != count) {
        raise(WRONG_COUNT, place, {member->name, std::to_string(member->arguments), std::to_string(count)});
    }
    return member->code(value, arguments, place);
}

} // namespace

Value create(Structure& structure, Place place) {
    if (structure.isAbstract) {
        raise(ABSTRACT_STRUCTURE, place, {structure.name});
    }
    // A structure whose fields begin with objects of itself never ends, which the frame notices.
    const Frame frame(structure.name, place);
    Value object = makeObject(structure);
    initialize(structure, object);
    return object;
}

Value memberValue(const Value& object, Member name, Place place, const Structure* inside) {
    if (object.is(Tag::Object)) {
        Object& block = objectBlock(object);
        const MemberSlot& slot = slotOf(block, name, place, inside);
        return slot.isField() ? checkedField(block, slot, name, place) : boundMethod(*slot.method, object);
    }
    const BuiltinMember* const builtin = findBuiltinMember(object, name);
    if (builtin == nullptr) {
        raiseMissingBuiltin(object, name, place);
    }
    if (!builtin->isPart) {
        raise(METHOD_NOT_CALLED, place, {builtin->name});
    }
    Value copy = object;
    return builtin->code(copy, nullptr, place);
}

Value& fieldPlace(const Value& object, Member name, Place place, const Structure* inside) {
    if (object.is(Tag::Object)) {
        Object& block = objectBlock(object);
        const MemberSlot& slot = slotOf(block, name, place, inside);
        if (!slot.isField()) {
            raise(METHOD_ASSIGNED, place, {block.structure->name, memberName(name)});
        }
        return block.fields()[slot.field];
    }
    if (object.is(Tag::Time)) {
        raise(TIME_FIXED, place, {memberName(name)});
    }
    raise(MEMBER_FIXED, place, {kindWord(object), memberName(name)});
}

Value callMethod(Value& object, Member name, Value* arguments, int count, Place place, const Structure* inside) {
    if (!object.is(Tag::Object)) {
        return callBuiltin(object, name, arguments, count, place);
    }
    // The variable that holds the object may be given another value while the method runs.
    const Value held = object;
    Object& block = objectBlock(held);
    const MemberSlot& slot = slotOf(block, name, place, inside);
    if (slot.isField()) {
        return callValue(checkedField(block, slot, name, place), arguments, count, place);
    }
    return callBound(*slot.method, held, arguments, count, place);
}

unsigned mutableParameters(const Value& object, Member name) {
    if (!object.is(Tag::Object)) {
        return 0;
    }
    Object& block = objectBlock(object);
    const MemberSlot& slot = block.structure->slots[name];
    if (slot.isField()) {
        return mutableParameters(block.fields()[slot.field]);
    }
    return slot.method == nullptr ? 0 : slot.method->mutableParameters >> 1U;
}

void freeObject(Counted* block) noexcept {
    auto* const object = static_cast<Object*>(block);
    for (int i = 0; i < object->structure->table->fieldCount; ++i) {
        object->fields()[i].~Value();
    }
    object->~Object();
    ::operator delete(static_cast<void*>(object));
}

} // namespace pozhil::engine
