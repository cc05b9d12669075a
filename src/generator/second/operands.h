#pragma once

#include "analysis/second/resolved/expressions.h"
#include "generator/second/types.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pozhil::resolved::writer {

class ExpressionWriter;

/// As what an operand is written.
enum class Wanted : std::uint8_t {
    AsIs,          ///< as it comes: whoever takes it takes a Value only
    NumberOrValue, ///< for whoever has a form for native numbers, but none for truth values
    WholeOrValue,  ///< for whoever has a form for native whole numbers only
    Value,
    Whole,
    Decimal,
    Truth
};

Wanted wantedAs(Type type);

/// The operands of one operation, written so that they are evaluated from left to right: those that would be late or early
/// otherwise go into temporaries that stand before the operation.
class Operands {
public:
    explicit Operands(ExpressionWriter& writer) : writer_(writer) {}

    /// The next operand.
    /// \param isKept it is needed several times, or after other things have happened
    /// \return its number
    std::size_t add(const Expression& expression, Wanted wanted, bool isKept = false);
    /// The operands of a place: indices and objects.
    /// \param isKept as above
    void addPlace(const TargetPlace& target, bool isKept = false) { addPlaceWithin(target, target, isKept); }
    /// From the next operand on they stand between braces, where C++ keeps the order.
    void beginBraces() { bracesFrom_ = operands_.size(); }
    /// Writes what addPlace and add have collected since the last time. What is added afterwards may come before operands
    /// that aren't kept.
    void evaluate();

    const std::string& text(std::size_t number) const { return operands_[number].text; }
    /// The same for whoever takes a Value away: a temporary that isn't needed any more needn't be copied.
    std::string takenText(std::size_t number) const;
    /// "a, b", from operand \p first on.
    std::string list(std::size_t first = 0) const;
    std::size_t count() const { return operands_.size(); }

    /// Another statement before the operation, after the operands have been evaluated.
    void before(const std::string& statement) { before_ += statement + " "; }

    /// The place as a reference to what it holds; \p isNew for one that is assigned to, whose key needs not be there.
    /// Its operands are those from number \p first on.
    std::string place(const TargetPlace& target, std::size_t first, bool isNew = false) const;

    /// The same, looked up before the operands that are still to come, so that what isn't there is told before they are
    /// evaluated. The place's operands are kept.
    /// \param isLookedUpAgain they might change where the place is, so that it must be looked up once more after them
    std::string placeFoundFirst(const TargetPlace& target, std::size_t first, bool isLookedUpAgain);
    /// What the place holds, as a value.
    std::string valueOf(const TargetPlace& target, std::size_t first) const;

    /// The operation with what has to stand before it, as an expression.
    std::string whole(const std::string& operation) const;
    /// The same as a statement.
    std::string statement(const std::string& operation) const;

private:
    struct Operand {
        const Expression* expression;
        Wanted wanted;
        bool isKept;
        std::string text;
        bool isValueTemporary = false;
    };

    void addPlaceWithin(const TargetPlace& target, const TargetPlace& whole, bool isKept);
    std::string placeFrom(const TargetPlace& target, std::size_t& next, bool isNew, bool isRead) const;
    std::string valueFrom(const TargetPlace& target, std::size_t& next) const;
    std::string variable(const TargetPlace& target, bool isRead) const;
    bool needsTemporary(std::size_t number) const;

    ExpressionWriter& writer_;
    std::vector<Operand> operands_;
    std::size_t evaluated_ = 0;
    std::size_t bracesFrom_ = static_cast<std::size_t>(-1);
    std::string before_;
};

} // namespace pozhil::resolved::writer
