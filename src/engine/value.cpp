#include "engine/value.h"

#include "engine/blocks.h"
#include "engine/collections.h"
#include "engine/library.h"
#include "engine/text.h"

namespace pozhil::engine {
namespace {

void freeBlock(Tag tag, Counted* block) noexcept {
    switch (tag) {
    case Tag::Text: return freeText(block);
    case Tag::List: return freeList(block);
    case Tag::Map: return freeMap(block);
    case Tag::Object: return freeObject(block);
    case Tag::Function: return freeFunction(block);
    case Tag::Time: return freeTime(block);
    default: return;
    }
}

/// The blocks that wait to be freed, a chain for each kind.
class WaitingBlocks {
public:
    void push(Tag tag, Counted* block) {
        Counted*& first = first_[static_cast<int>(tag)];
        block->nextWaiting = first;
        first = block;
    }

    /// Frees one of these blocks.
    /// \return false if there is none
    bool freeOne() {
        for (int tag = 0; tag <= static_cast<int>(Tag::Time); ++tag) {
            if (Counted* const block = first_[tag]) {
                first_[tag] = block->nextWaiting;
                freeBlock(static_cast<Tag>(tag), block);
                return true;
            }
        }
        return false;
    }

private:
    Counted* first_[static_cast<int>(Tag::Time) + 1] = {};
};

WaitingBlocks waitingBlocks;
bool isFreeing = false;

} // namespace

void Value::destroy(Tag tag, Counted* block) noexcept {
    if (tag == Tag::Text) {
        freeText(block);
        return;
    }
    // A block lets go of others in turn; these wait instead of nesting, however long the chain is.
    if (isFreeing) {
        waitingBlocks.push(tag, block);
        return;
    }
    isFreeing = true;
    freeBlock(tag, block);
    while (waitingBlocks.freeOne()) {
    }
    isFreeing = false;
}

const char* kindWord(const Value& value) {
    switch (value.tag()) {
    case Tag::Unset: return "மதிப்பற்றது";
    case Tag::Nothing: return "வெறுமை";
    case Tag::Truth: return "நிலை";
    case Tag::Whole: return "எண்";
    case Tag::Decimal: return "தசம எண்";
    case Tag::Text: return "உரை";
    case Tag::List: return "பட்டியல்";
    case Tag::Map: return "அகராதி";
    case Tag::Object: return "பொருள்";
    case Tag::Function: return "வினை";
    case Tag::Time: return "நேரம்";
    }
    return "";
}

Value kindName(const Value& value, Place) {
    switch (value.tag()) {
    case Tag::Decimal: return text("தசம_எண்");
    case Tag::Unset:
    case Tag::Nothing: return text("தெரியாத_வகை (Unknown)");
    default: return makeText(kindWord(value));
    }
}

} // namespace pozhil::engine
