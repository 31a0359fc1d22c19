// The dialect's errors for a statement that cannot be read. All have the provider's number -2147217900 and its source.
#pragma once

#include "platform/runtime/RuntimeError.h"

#include <QStringView>

namespace sql {

// What is wrong inside an expression; the description quotes the whole expression.
enum class Fault {
    MissingOperator,
    UnclosedText,
    BadNumber,
    BadDate,
    Comma,
    ExtraParenthesis,
    MissingParenthesis,
    ArgumentCount
};

// The clause or statement whose structure is wrong.
enum class Clause { From, Insert, Update, Delete, Where, Join, GroupBy, Having, OrderBy };

runtime::RuntimeError syntaxError(const QString &description);
runtime::RuntimeError faultIn(QStringView expression, Fault fault);
runtime::RuntimeError faultIn(Clause clause);

} // namespace sql
