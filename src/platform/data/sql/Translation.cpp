#include "platform/data/sql/Translation.h"

#include "platform/data/sql/StatementParser.h"
#include "platform/data/sql/StatementWriter.h"

#include <QCache>

#include <algorithm>

namespace sql {

namespace {

// What the cache may hold in all, and the longest text that it keeps: longer ones hold notes that a user wrote, and are
// rarely run twice.
constexpr qsizetype mostKeptBytes = 1 << 20;
constexpr qsizetype longestKept = 2000; // characters

// A statement on the users' table may hold a password, which must not stay in memory.
bool mayBeKept(const Tree &tree, const QString &text)
{
    return text.size() <= longestKept &&
           std::none_of(tree.sources.begin(), tree.sources.end(),
                        [](const Source &source) { return isSame(source.table, u"Security"); });
}

// A rough figure that is not too small: the text twice, as the key and in the literals, and the SQL.
qsizetype bytesOf(const QString &text, const Translation &translation)
{
    return qsizetype(sizeof(Translation)) + 200 + 4 * text.size() + translation.sql.capacity() +
           qsizetype(translation.assignments.size() * sizeof(Assignment) +
                     translation.comparisons.size() * sizeof(Comparison));
}

} // namespace

Translation translate(const QString &text)
{
    Tree tree;
    parse(text, tree);
    return writeStatement(tree, text.size());
}

std::shared_ptr<const Translation> cachedTranslation(const QString &text)
{
    thread_local QCache<QString, std::shared_ptr<const Translation>> kept(mostKeptBytes);
    if (const auto *known = kept.object(text))
        return *known;
    Tree tree;
    parse(text, tree);
    auto translation = std::make_shared<const Translation>(writeStatement(tree, text.size()));
    if (mayBeKept(tree, text))
        kept.insert(text, new std::shared_ptr(translation), bytesOf(text, *translation));
    return translation;
}

} // namespace sql
