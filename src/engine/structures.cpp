#include "engine/calls.h"
#include "engine/member_faults.h"
#include "engine/object.h"
#include "engine/raise.h"
#include "engine/running_faults.h"

/// The tables of structures: which name means what in their objects.

namespace pozhil::engine {
namespace {

MemberSlot& slotAt(Structure::Table& table, Member name) {
    return table.slots[static_cast<std::size_t>(name)];
}

/// A field that a parent declares too is the parent's field with a first value of its own.
void addField(Structure::Table& table, const Structure& structure, const FieldInfo& field) {
    MemberSlot& slot = slotAt(table, field.name);
    const int index = slot.isField() ? slot.field : table.fieldCount++;
    slot = {index, nullptr, &structure, field.isPrivate};
}

void makeTable(const ProgramInfo& program, Structure& structure) {
    auto* const table =
        structure.parent == nullptr ? new Structure::Table : new Structure::Table(*structure.parent->table);
    delete structure.table;
    structure.table = table;
    table->slots.resize(static_cast<std::size_t>(program.memberCount));
    for (int i = 0; i < structure.fieldCount; ++i) {
        addField(*table, structure, structure.fields[i]);
    }
    for (int i = 0; i < structure.methodCount; ++i) {
        const MethodInfo& method = structure.methods[i];
        slotAt(*table, method.name) = {-1, method.function, &structure, method.isPrivate};
    }
    structure.slots = table->slots.data();
}

bool descendsFrom(const Structure* structure, const Structure* ancestor) {
    while (structure != nullptr && structure != ancestor) {
        structure = structure->parent;
    }
    return structure != nullptr;
}

} // namespace

void makeTables(const ProgramInfo& program) {
    for (int i = 0; i < program.structureCount; ++i) {
        makeTable(program, *program.structures[i]);
    }
}

bool maySee(const MemberSlot& slot, Member name, const Structure* inside) {
    if (!slot.isPrivate) {
        return true;
    }
    if (inside == nullptr) {
        return false;
    }
    // A child that declares it anew hides nothing from the parent's own methods.
    return descendsFrom(inside, slot.owner) ||
           (inside->slots[name].owner != nullptr && descendsFrom(slot.owner, inside));
}

const MemberSlot& slotOf(const Object& object, Member name, Place place, const Structure* inside) {
    const MemberSlot& slot = object.structure->slots[name];
    if (slot.owner == nullptr) {
        raiseMissingMember(object, name, place, inside);
    }
    if (!maySee(slot, name, inside)) {
        raise(PRIVATE_MEMBER, place, {slot.owner->name, memberName(name)});
    }
    return slot;
}

} // namespace pozhil::engine
