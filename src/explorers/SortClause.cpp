#include "explorers/SortClause.h"

using namespace Qt::Literals::StringLiterals;

QString sortClauseAfterClick(const QString &clause, const QString &tag)
{
    QString current = clause;
    current.remove(u" ORDER BY "_s).remove(u" DESC"_s).remove(u" ASC"_s);
    const bool descends = current == tag && !clause.endsWith(u"DESC");
    return u" ORDER BY "_s + tag + (descends ? u" DESC"_s : u" ASC"_s);
}

QString sortDirection(const QString &clause)
{
    return clause.endsWith(u"DESC") ? u"descending"_s : u"ascending"_s;
}
