// The statements that are measured, as the windows compose them.
#pragma once

#include <QString>

namespace statements {

// The member explorer's list, up to its condition.
inline QString memberList(const QString &condition)
{
    return QStringLiteral(
               "SELECT MemberInformation.MemberId, MemberInformation.FirstName, MemberInformation.MiddleName, "
               " MemberInformation.LastName, MemberInformation.AddressOne, MemberInformation.City, "
               " MemberInformation.State, MemberInformation.Zip, MemberInformation.HomePhone, "
               " MemberInformation.CellPhone, MemberType.MemberType FROM MemberInformation "
               " LEFT JOIN MemberType ON MemberInformation.MemberTypeId = MemberType.MemberTypeId"
               " WHERE ") +
           condition;
}

inline QString memberListOfGroup(const QString &group)
{
    return memberList(QStringLiteral("(((MemberInformation.LastName) Like '") + group +
                      QStringLiteral("%') AND ((MemberInformation.Active)=Yes))"));
}

// The explorer's tree: the groups, and the members of one that are counted.
inline QString groups()
{
    return QStringLiteral("select * from NodeInformation Where NodeActive = 1");
}

inline QString membersOfGroup(const QString &group)
{
    return QStringLiteral("select * from [MemberInformation] Where [LastName] like '") + group +
           QStringLiteral("%' and Active = yes");
}

} // namespace statements
