#pragma once

#include "generator/second/expression_writer.h"

#include <string>
#include <vector>

namespace pozhil::resolved::writer {

/// Writes assignments. Appending to a text or list lets it grow where it is: x = x இணை y doesn't copy x.
class AssignmentWriter {
public:
    explicit AssignmentWriter(ExpressionWriter& writer) : writer_(writer), operands_(writer) {}

    std::string statement(const Assignment& assignment);
    /// As an expression, which has the value that was assigned.
    std::string value(const AssignmentValue& assignment);

private:
    /// What is assigned, however it is written.
    struct Step {
        const TargetPlace& target;
        bool isCompound;
        BinaryOperator op;
        const Expression& value;
        const Place& place;
    };

    /// Writes all but the last operation, whose text is returned.
    std::string write(const Step& step);
    std::string assignVariable(const Step& step);
    std::string assignPlace(const Step& step);
    std::string compoundVariable(const Step& step);
    /// \param isNeededAgain the place is read afterwards
    std::string compoundPlace(const Step& step, bool isNeededAgain = false);
    std::string compoundChangedPlace(const Step& step);
    /// x = x கூட்டு a as a growth of x, a variable or another place; empty if it is none.
    std::string grow(const Step& step);
    std::string growingPlace(const Step& step, const Expression& grown, const std::vector<const Expression*>& appended);

    ExpressionWriter& writer_;
    Operands operands_;
};

} // namespace pozhil::resolved::writer
