#include "platform/data/engine/DefaultExpression.h"

#include "platform/data/sql/Lexer.h"
#include "platform/data/sql/Literal.h"
#include "platform/data/sql/SyntaxError.h"
#include "platform/runtime/ProviderError.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

using sql::TokenKind;
using Tokens = std::vector<sql::Token>;

// Each gives a date in the form in which the store keeps dates.
constexpr auto today = "(strftime('%Y-%m-%d 00:00:00', 'now', 'localtime'))";
constexpr auto timeOfDay = "(strftime('1899-12-30 %H:%M:%S', 'now', 'localtime'))";
constexpr auto now = "(strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime'))";

struct Moment
{
    QLatin1StringView function;
    const char *sql;
};

constexpr std::array moments{
    Moment{"Date"_L1, today},      Moment{"Date$"_L1, today}, Moment{"Time"_L1, timeOfDay},
    Moment{"Time$"_L1, timeOfDay}, Moment{"Now"_L1, now},
};

Tokens tokensOf(QStringView expression)
{
    Tokens tokens;
    sql::Lexer lexer(expression);
    for (sql::Token token = lexer.next(); !token.is(TokenKind::End); token = lexer.next())
        tokens.push_back(token);
    return tokens;
}

// The value of an expression that is nothing but a text or a number with or without a sign.
std::optional<runtime::Value> constantOf(const Tokens &tokens)
{
    if (tokens.size() == 1 && tokens[0].is(TokenKind::Text))
        return runtime::Value(sql::textValue(tokens[0].text));
    const bool isSigned = tokens.size() == 2 && (tokens[0].is(TokenKind::Minus) || tokens[0].is(TokenKind::Plus));
    if (!(tokens.size() == 1 || isSigned) || !tokens.back().is(TokenKind::Number))
        return std::nullopt;
    return sql::numberValue(tokens.back().text, tokens[0].is(TokenKind::Minus));
}

runtime::RuntimeError mismatch()
{
    return provider::error(provider::CriteriaMismatch, u"Data type mismatch in criteria expression."_s);
}

QByteArray storedLiteral(const Database &file, ColumnType type, const runtime::Value &literal)
{
    runtime::Value value;
    try {
        value = convertedTo(type, literal);
    } catch (const runtime::RuntimeError &) {
        throw mismatch();
    }
    Statement quote = file.prepare("SELECT quote(?1)");
    quote.bind(1, value);
    quote.step();
    return quote.text(0).toByteArray();
}

// The function is called without arguments; its parentheses may be missing.
QByteArray momentSql(const QString &expression, const Tokens &tokens, ColumnType type, const QString &place)
{
    const bool hasMark = tokens.size() > 1 && tokens[1].text == u"$";
    const QString function = tokens[0].text.toString() + (hasMark ? u"$"_s : QString());
    const Tokens parentheses(tokens.begin() + (hasMark ? 2 : 1), tokens.end());
    const bool isOpen = !parentheses.empty() && parentheses[0].is(TokenKind::LeftParenthesis);
    const bool isWhole = parentheses.empty() || (isOpen && parentheses.size() == 2 && parentheses[1].text == u")");
    const auto *const known = std::find_if(moments.begin(), moments.end(), [&](const Moment &moment) {
        return function.compare(moment.function, Qt::CaseInsensitive) == 0;
    });
    if (known == moments.end() && (hasMark || isOpen))
        throw provider::error(
            provider::SyntaxError,
            u"Unknown function '%1' in validation expression or default value on '%2'."_s.arg(function, place));
    if (known == moments.end() || !isWhole)
        throw sql::faultIn(expression, sql::Fault::MissingOperator);
    if (type != ColumnType::Date)
        throw mismatch();
    return known->sql;
}

} // namespace

QByteArray defaultSql(const Database &file, const QString &expression, ColumnType type, const QString &place)
{
    Tokens tokens = tokensOf(expression);
    if (!tokens.empty() && tokens[0].is(TokenKind::Equal))
        tokens.erase(tokens.begin());
    if (const auto literal = constantOf(tokens))
        return storedLiteral(file, type, *literal);
    if (tokens.empty() || !tokens[0].is(TokenKind::Word))
        throw sql::faultIn(expression, sql::Fault::MissingOperator);
    return momentSql(expression, tokens, type, place);
}

} // namespace data
