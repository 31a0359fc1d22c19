#include "datafile/Groups.h"

#include "datafile/Inserter.h"
#include "platform/data/engine/Collation.h"

#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

// The explorers search with LIKE, so a sign that means something there stands in brackets. Their statements quote the
// name as it is, so that an apostrophe would break them.
QString groupFor(const QString &name)
{
    const qsizetype length = name.size() > 1 && name.at(0).isHighSurrogate() ? 2 : 1;
    const QString initial = name.left(length);
    if (name.isEmpty() || initial == u"'"_s || initial.at(0).isSpace() || initial.at(0).unicode() < u' ')
        return {};
    if (initial == u"["_s || initial == u"%"_s || initial == u"_"_s)
        return u'[' + initial + u']';
    const QString upper = initial.toUpper();
    return upper.size() == initial.size() ? upper : initial; // "ß" has no upper case of one letter
}

} // namespace

QList<Initial> initialsWithoutGroup(data::Database &file)
{
    file.provideLike();
    data::Statement names = file.prepare(
        "WITH Names (Name) AS (SELECT LastName FROM MemberInformation UNION ALL SELECT EventName FROM EventInformation "
        "UNION ALL SELECT UserLastName FROM Security) SELECT Name, count(*) FROM Names WHERE NOT EXISTS "
        "(SELECT 1 FROM NodeInformation WHERE NodeActive = 1 AND store_like(NodeName || '%', Name)) "
        "GROUP BY Name COLLATE BINARY ORDER BY Name COLLATE BINARY");
    QList<Initial> initials;
    QHash<QString, qsizetype> places;
    while (names.step()) {
        const QString name = QString::fromUtf8(names.text(0));
        const QString group = groupFor(name);
        const auto place = places.constFind(group);
        if (place == places.cend()) {
            places.insert(group, initials.size());
            initials.append({group, name, int(names.integer(1))});
        } else {
            initials[*place].names += int(names.integer(1));
        }
    }
    std::sort(initials.begin(), initials.end(), [](const Initial &a, const Initial &b) {
        return data::compareTexts(a.group.toUtf8(), b.group.toUtf8()) < 0;
    });
    return initials;
}

void addMissingGroups(data::Database &file)
{
    Inserter insert(file, "INSERT INTO NodeInformation (NodeName, NodeActive) SELECT ?1, 1 "
                          "WHERE NOT EXISTS (SELECT 1 FROM NodeInformation WHERE NodeName = ?1)");
    for (const Initial &initial : initialsWithoutGroup(file))
        if (!initial.group.isEmpty())
            insert(initial.group.toUtf8());
}

} // namespace datafile
