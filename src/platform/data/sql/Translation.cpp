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
    Translation translation = writeStatement(tree, text.size());
    translation.mayBeKept =
        std::ranges::none_of(tree.sources, [](const Source &source) { return isSame(source.table, u"Security"); });
    return translation;
}

std::shared_ptr<const Translation> cachedTranslation(const QString &text)
{
    thread_local QCache<QString, std::shared_ptr<const Translation>> kept(mostKeptBytes);
    if (const auto *known = kept.object(text))
        return *known;
    auto translation = std::make_shared<const Translation>(translate(text));
    if (translation->mayBeKept && text.size() <= longestKept)
        kept.insert(text, new std::shared_ptr(translation), bytesOf(text, *translation));
    return translation;
}

} // namespace sql
