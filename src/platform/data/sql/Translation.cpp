#include "platform/data/sql/Translation.h"

#include "platform/data/sql/StatementParser.h"
#include "platform/data/sql/StatementWriter.h"

#include <QHash>

namespace sql {

namespace {

// Statements hold keys and texts of the user, so their number has no end.
constexpr qsizetype mostKept = 4000;

} // namespace

Translation translate(const QString &text)
{
    Tree tree;
    parse(text, tree);
    return writeStatement(tree, text.size());
}

std::shared_ptr<const Translation> cachedTranslation(const QString &text)
{
    thread_local QHash<QString, std::shared_ptr<const Translation>> kept;
    if (const auto known = kept.constFind(text); known != kept.constEnd())
        return *known;
    auto translation = std::make_shared<const Translation>(translate(text));
    if (kept.size() >= mostKept)
        kept.clear();
    kept.insert(text, translation);
    return translation;
}

} // namespace sql
