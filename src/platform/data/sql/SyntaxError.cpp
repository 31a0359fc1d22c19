#include "platform/data/sql/SyntaxError.h"

#include "platform/runtime/ProviderError.h"

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

// The description; "%1" stands for the expression.
QString patternOf(Fault fault)
{
    switch (fault) {
    case Fault::MissingOperator:
        break;
    case Fault::UnclosedText:
        return u"Syntax error in string in query expression '%1'."_s;
    case Fault::BadNumber:
        return u"Syntax error in number in query expression '%1'."_s;
    case Fault::BadDate:
        return u"Syntax error in date in query expression '%1'."_s;
    case Fault::Comma:
        return u"Syntax error (comma) in query expression '%1'."_s;
    case Fault::ExtraParenthesis:
        return u"Extra ) in query expression '%1'."_s;
    case Fault::MissingParenthesis:
        return u"Missing ), ], or Item in query expression '%1'."_s;
    case Fault::ArgumentCount:
        return u"Wrong number of arguments used with function in query expression '%1'."_s;
    }
    return u"Syntax error (missing operator) in query expression '%1'."_s;
}

QString textOf(Clause clause)
{
    switch (clause) {
    case Clause::From:
        break;
    case Clause::Insert:
        return u"Syntax error in INSERT INTO statement."_s;
    case Clause::Update:
        return u"Syntax error in UPDATE statement."_s;
    case Clause::Delete:
        return u"Syntax error in DELETE statement."_s;
    case Clause::Where:
        return u"Syntax error in WHERE clause."_s;
    case Clause::Join:
        return u"Syntax error in JOIN operation."_s;
    case Clause::GroupBy:
        return u"Syntax error in GROUP BY clause."_s;
    case Clause::Having:
        return u"Syntax error in HAVING clause."_s;
    case Clause::OrderBy:
        return u"Syntax error in ORDER BY clause."_s;
    }
    return u"Syntax error in FROM clause."_s;
}

} // namespace

runtime::RuntimeError syntaxError(const QString &description)
{
    return provider::error(provider::SyntaxError, description);
}

runtime::RuntimeError faultIn(QStringView expression, Fault fault)
{
    return syntaxError(patternOf(fault).arg(expression.trimmed()));
}

runtime::RuntimeError faultIn(Clause clause)
{
    return syntaxError(textOf(clause));
}

} // namespace sql
