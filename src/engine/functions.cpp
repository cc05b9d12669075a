#include "engine/blocks.h"
#include "engine/calls.h"
#include "engine/function_block.h"
#include "engine/members.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "report/catalogue.h"
#include "report/remedies.h"

#include <algorithm>
#include <memory>
#include <string>

namespace pozhil::engine {
namespace {

void release(Cell* cell) {
    if (--cell->references == 0) {
        delete cell;
    }
}

/// \param expected without the object of a method, as the user counts
void checkCount(const FunctionInfo& info, int expected, int given, Place place) {
    if (expected != given) {
        raise(WRONG_COUNT, place, {info.name, std::to_string(expected), std::to_string(given)});
    }
}

/// Lends arguments to a call that takes an object before them, and gives them back in the end with what it wrote.
class WithObject {
public:
    WithObject(const Value& self, Value* arguments, int count)
        : arguments_(arguments), count_(count), more_(count < FEW ? 0 : static_cast<std::size_t>(count) + 1) {
        data()[0] = self;
        lend();
    }
    ~WithObject() { lend(); }
    WithObject(const WithObject&) = delete;
    WithObject& operator=(const WithObject&) = delete;

    Value* data() { return more_.empty() ? few_ : more_.data(); }

private:
    static constexpr int FEW = 5;

    void lend() {
        for (int i = 0; i < count_; ++i) {
            arguments_[i].swap(data()[i + 1]);
        }
    }

    Value* arguments_;
    int count_;
    Value few_[FEW];
    std::vector<Value> more_;
};

Value callWithObject(const Closure& own, const FunctionInfo& info, const Value& self, Value* arguments, int count,
                     Place place) {
    checkCount(info, info.parameters - 1, count, place);
    WithObject all(self, arguments, count);
    return info.code(own, all.data(), place);
}

} // namespace

const Closure WITHOUT_VARIABLES{};

Shared::Shared() : cell_(new Cell) {}

Shared::Shared(const Value& first) : cell_(new Cell(first)) {}

Shared::~Shared() {
    release(cell_);
}

SharedPlace::SharedPlace(Value& place) : cell_(new Cell(&place)) {}

SharedPlace::~SharedPlace() {
    cell_->detach();
    release(cell_);
}

Value function(const FunctionInfo& info, std::initializer_list<Cell*> captured) {
    auto closure = std::make_unique<Closure>();
    closure->info = &info;
    closure->cells.assign(captured.begin(), captured.end());
    for (Cell* const cell : closure->cells) {
        ++cell->references;
    }
    return Value(Tag::Function, closure.release());
}

Value boundMethod(const FunctionInfo& info, const Value& self) {
    Value value = function(info);
    functionBlock(value).self = self;
    return value;
}

Cell* captured(const Closure& own, int index) {
    return own.cells[static_cast<std::size_t>(index)];
}

void freeFunction(Counted* block) noexcept {
    auto* const closure = static_cast<Closure*>(block);
    std::for_each(closure->cells.begin(), closure->cells.end(), release);
    delete closure;
}

Value callBound(const FunctionInfo& info, const Value& self, Value* arguments, int count, Place place) {
    return callWithObject(WITHOUT_VARIABLES, info, self, arguments, count, place);
}

Value callValue(const Value& callee, Value* arguments, int count, Place place) {
    if (!callee.is(Tag::Function)) {
        raise(NOT_A_FUNCTION, place, {kindWord(callee)});
    }
    // The variable that holds the function may be given another value while it runs.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const Value held = callee;
    const Closure& closure = functionBlock(held);
    const FunctionInfo& info = *closure.info;
    if (!closure.self.is(Tag::Unset)) {
        return callWithObject(closure, info, closure.self, arguments, count, place);
    }
    checkCount(info, info.parameters, count, place);
    return info.code(closure, arguments, place);
}

const Value& calledVariable(const char* name, const Value& held, Place place) {
    if (!held.is(Tag::Function)) {
        raise(NOT_A_FUNCTION, place, {kindWord(held)}, "", report::filled(report::remedy::HIDDEN_FUNCTION, {name}));
    }
    return held;
}

int parameterCount(const Value& callee) {
    if (!callee.is(Tag::Function)) {
        return -1;
    }
    const Closure& closure = functionBlock(callee);
    return closure.info->parameters - (closure.self.is(Tag::Unset) ? 0 : 1);
}

unsigned mutableParameters(const Value& callee) {
    if (!callee.is(Tag::Function)) {
        return 0;
    }
    const Closure& closure = functionBlock(callee);
    return closure.self.is(Tag::Unset) ? closure.info->mutableParameters : closure.info->mutableParameters >> 1U;
}

} // namespace pozhil::engine
