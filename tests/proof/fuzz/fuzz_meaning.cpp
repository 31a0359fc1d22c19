// Statements of a known meaning: each is made twice, in the dialect with as few parentheses as its precedence needs,
// and by hand in SQLite's SQL with all of them. Both find the same rows. Texts are ASCII, which the store compares by
// their lower-case form.
#include "platform/data/engine/RowSource.h"
#include "platform/data/engine/StatementError.h"
#include "proof/fuzz/Fuzz.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Input = FuzzedDataProvider;

// How tightly the dialect binds: Or least, a value most.
enum Level { Or, And, Not, Comparison, Joining, Sum, Modulo, Whole, Product, Atom };

struct Said
{
    QByteArray dialect;
    QByteArray byHand;
    int level = Atom;
};

QByteArray within(const Said &part, int level)
{
    return part.level < level ? '(' + part.dialect + ')' : part.dialect;
}

Said operation(const Said &left, const char *dialect, const char *byHand, const Said &right, int level)
{
    return {within(left, level) + dialect + within(right, level + 1), '(' + left.byHand + byHand + right.byHand + ')',
            level};
}

Said column(Input &input, const char *prefix, const QByteArrayList &names)
{
    const QByteArray name = prefix + names[input.ConsumeIntegralInRange<int>(0, int(names.size()) - 1)];
    return {input.ConsumeBool() ? name : name.toLower(), name};
}

Said number(Input &input, const char *prefix, int depth)
{
    if (depth == 0 || input.ConsumeBool()) {
        if (input.ConsumeBool())
            return column(input, prefix, {"N", "R", "Id"});
        const QByteArray digits = QByteArray::number(input.ConsumeIntegralInRange(0, 130));
        return {digits, digits};
    }
    const Said left = number(input, prefix, depth - 1);
    if (input.ConsumeIntegralInRange(0, 5) == 0)
        return {'-' + within(left, Atom), "(- " + left.byHand + ')'};
    const Said right = number(input, prefix, depth - 1);
    const Said wholeLeft{left.dialect, "CAST(round(" + left.byHand + ") AS INTEGER)", left.level};
    const Said wholeRight{right.dialect, "CAST(round(" + right.byHand + ") AS INTEGER)", right.level};
    switch (input.ConsumeIntegralInRange(0, 5)) {
    case 0:
        return operation(left, " + ", " + ", right, Sum);
    case 1:
        return operation(left, "-", " - ", right, Sum);
    case 2:
        return operation(left, "*", " * ", right, Product);
    case 3:
        return operation(left, "/", " * 1.0 / ", right, Product);
    case 4:
        return operation(wholeLeft, "\\", " / ", wholeRight, Whole);
    default:
        return operation(wholeLeft, " Mod ", " % ", wholeRight, Modulo);
    }
}

QByteArray letters(Input &input, QByteArrayView alphabet)
{
    QByteArray text;
    while (text.size() < 4 && input.ConsumeBool())
        text += alphabet[input.ConsumeIntegralInRange<qsizetype>(0, alphabet.size() - 1)];
    return text;
}

Said literal(Input &input, QByteArrayView alphabet)
{
    const QByteArray text = letters(input, alphabet);
    const char quote = input.ConsumeBool() ? '"' : '\'';
    return {quote + QByteArray(text).replace(quote, QByteArray(2, quote)) + quote,
            '\'' + QByteArray(text).replace('\'', "''") + '\''};
}

Said text(Input &input, const char *prefix, int depth)
{
    if (depth == 0 || input.ConsumeBool())
        return input.ConsumeBool() ? column(input, prefix, {"W", "V"}) : literal(input, "abAB1'\"");
    Said left = text(input, prefix, depth - 1);
    Said right = text(input, prefix, depth - 1);
    left.byHand = "ifnull(" + left.byHand + ",'')";
    right.byHand = "ifnull(" + right.byHand + ",'')";
    return operation(left, " & ", " || ", right, Joining);
}

Said inSmallLetters(Said said)
{
    said.byHand = "lower(" + said.byHand + ')';
    return said;
}

Said between(Input &input, const Said &value, const Said &one, const Said &other)
{
    const bool isNot = input.ConsumeBool();
    const QByteArray &x = value.byHand;
    const QByteArray inside = "((" + x + " BETWEEN " + one.byHand + " AND " + other.byHand + ") OR (" + x +
                              " BETWEEN " + other.byHand + " AND " + one.byHand + "))";
    return {within(value, Joining) + (isNot ? " NOT BETWEEN " : " Between ") + within(one, Joining) + " AND " +
                within(other, Joining),
            isNot ? "(NOT " + inside + ')' : inside, Comparison};
}

Said comparison(Input &input, const char *prefix)
{
    const char *sign = input.PickValueInArray({" = ", "<>", "<", " >", "<=", " >= "});
    switch (input.ConsumeIntegralInRange(0, 6)) {
    case 0:
        return operation(number(input, prefix, 2), sign, sign, number(input, prefix, 2), Comparison);
    case 1:
        return operation(inSmallLetters(text(input, prefix, 2)), sign, sign, inSmallLetters(text(input, prefix, 2)),
                         Comparison);
    case 2: {
        const Said value = input.ConsumeBool() ? column(input, prefix, {"W", "V", "N"}) : text(input, prefix, 1);
        const Said pattern = literal(input, "ab%B_1");
        return input.ConsumeBool() ? operation(value, " like ", " LIKE ", pattern, Comparison)
                                   : operation(value, " NOT LIKE ", " NOT LIKE ", pattern, Comparison);
    }
    case 3:
        return between(input, number(input, prefix, 1), number(input, prefix, 1), number(input, prefix, 1));
    case 4: {
        const auto lowered = [&] { return inSmallLetters(text(input, prefix, 1)); };
        const Said value = lowered();
        return between(input, value, lowered(), lowered());
    }
    case 5: {
        const Said value = column(input, prefix, {"W", "V"});
        const Said one = literal(input, "abAB");
        const Said other = literal(input, "abAB");
        return {value.dialect + " In (" + one.dialect + ", " + other.dialect + ')',
                "(lower(" + value.byHand + ") IN (lower(" + one.byHand + "),lower(" + other.byHand + ")))", Comparison};
    }
    default: {
        const Said value = column(input, prefix, {"N", "R", "W", "F", "D"});
        if (input.ConsumeBool())
            return {value.dialect + " Is Not Null", '(' + value.byHand + " NOTNULL)", Comparison};
        return input.ConsumeBool() ? Said{QByteArray(prefix) + "F = Yes", QByteArray(prefix) + "F <> 0", Comparison}
                                   : Said{QByteArray("#1/31/2001 5:07 PM# >= ") + prefix + 'D',
                                          QByteArray("'2001-01-31 17:07:00' >= ") + prefix + 'D', Comparison};
    }
    }
}

Said condition(Input &input, const char *prefix, int depth)
{
    if (depth == 0 || input.ConsumeIntegralInRange(0, 2) == 0)
        return comparison(input, prefix);
    const Said left = condition(input, prefix, depth - 1);
    switch (input.ConsumeIntegralInRange(0, 2)) {
    case 0:
        return {"Not " + within(left, Not), "(NOT " + left.byHand + ')', Not};
    case 1:
        return operation(left, " AND ", " AND ", condition(input, prefix, depth - 1), And);
    default:
        return operation(left, " OR ", " OR ", condition(input, prefix, depth - 1), Or);
    }
}

// One statement in both forms: a plain SELECT, one with TOP or with GROUP BY, or a join.
Said statement(Input &input)
{
    const char *prefix = "";
    const auto where = [&] {
        const Said part = condition(input, prefix, 3);
        return Said{" WHERE " + part.dialect, " WHERE " + part.byHand};
    };
    const auto made = [](const QByteArray &dialect, const QByteArray &byHand, const Said &rest,
                         const QByteArray &order) {
        return Said{dialect + rest.dialect + order, byHand + rest.byHand + order};
    };
    switch (input.ConsumeIntegralInRange(0, 3)) {
    case 0: {
        const Said one = number(input, "", 2);
        const Said two = text(input, "", 2);
        return made("SELECT Id, " + one.dialect + " AS One, " + two.dialect + " AS Two FROM T",
                    "SELECT Id, " + one.byHand + ", " + two.byHand + " FROM T", where(), " ORDER BY Id");
    }
    case 1: {
        const Said by = column(input, "", {"N", "R", "F", "D", "W", "V"});
        const char *way = input.PickValueInArray({"", " DESC"});
        const QByteArray top = QByteArray::number(input.ConsumeIntegralInRange(0, 7));
        const Said rest = where();
        return {"SELECT TOP " + top + " Id FROM T" + rest.dialect + " ORDER BY " + by.dialect + way + ", Id",
                "SELECT Id FROM T" + rest.byHand + " ORDER BY " + by.byHand + " COLLATE NOCASE" + way + ", Id LIMIT " +
                    top};
    }
    case 2: {
        const Said sum = number(input, "", 1);
        const Said group = column(input, "", {"N", "R", "F", "D"});
        const Said rest = where();
        return {"SELECT Count(*), Sum(" + sum.dialect + "), Max(N), Min(R) FROM T" + rest.dialect + " GROUP BY " +
                    group.dialect + " ORDER BY " + group.dialect,
                "SELECT count(*), sum(" + sum.byHand + "), max(N), min(R) FROM T" + rest.byHand + " GROUP BY " +
                    group.byHand + " ORDER BY " + group.byHand};
    }
    default: {
        const QByteArray join = input.PickValueInArray({" INNER JOIN ", " LEFT JOIN ", " Right Join "});
        const Said left = number(input, "a.", 1);
        const Said right = number(input, "b.", 1);
        prefix = input.PickValueInArray({"a.", "b."});
        const QByteArray head = "SELECT a.Id, b.Id FROM T AS a" + join + "T AS b ON ";
        return made(head + within(left, Joining) + " = " + within(right, Joining),
                    head + left.byHand + '=' + right.byHand, where(), " ORDER BY a.Id, b.Id");
    }
    }
}

QByteArrayList rowsOf(data::Statement &&query, int columns)
{
    QByteArrayList rows;
    while (query.step()) {
        QByteArray row;
        for (int column = 0; column < columns; ++column)
            row += query.text(column).toByteArray() +
                   (query.storage(column) == data::Statement::Storage::Null ? "NULL|" : "|");
        rows << row;
    }
    return rows;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static data::Database file = [] {
        data::Database made;
        made.createInMemory();
        made.execute(
            "CREATE TABLE T (Id INTEGER PRIMARY KEY, N INTEGER, R DOUBLE, D DATETIME, F BOOLEAN,"
            " W TEXT COLLATE NOCASE, V LONGTEXT COLLATE NOCASE); CREATE INDEX I ON T (W); INSERT INTO T VALUES"
            " (1, 1, 1.5, '2001-01-31 17:07:00', -1, 'ab', 'A'), (2, 12, 12, '2001-02-01 00:00:00', 0, 'AB', ''),"
            " (3, 120, -0.5, '1999-01-31 17:07:00', 1, 'a1b', '1'), (4, NULL, NULL, NULL, NULL, NULL, NULL),"
            " (5, 0, 0, '2001-01-31 17:07:09', 0, '', 'b'), (6, -7, 2.5, NULL, -1, 'b''a', 'ab')");
        return made;
    }();
    Input input(bytes, size);
    const Said said = statement(input);
    try {
        const sql::Translation translation = sql::translate(QString::fromUtf8(said.dialect));
        data::Statement byHand = file.prepare(said.byHand);
        const int columns = byHand.columnCount();
        const QByteArrayList expected = rowsOf(std::move(byHand), columns);
        data::checkComparisons(file, translation);
        const QByteArrayList rows =
            rowsOf(data::prepareChecked(file, translation, data::sqlFor(file, translation)), columns);
        if (rows != expected)
            found(u"%1\n-> %2\nnot %3\nof %4\nand %5"_s.arg(
                QString::fromUtf8(said.dialect), QString::fromUtf8(translation.sql), QString::fromUtf8(said.byHand),
                QString::fromUtf8(expected.join('\n')), QString::fromUtf8(rows.join('\n'))));
    } catch (const runtime::RuntimeError &error) {
        found(QString::fromUtf8(error.what()) + u": "_s + QString::fromUtf8(said.dialect + " | " + said.byHand));
    }
    return 0;
}
