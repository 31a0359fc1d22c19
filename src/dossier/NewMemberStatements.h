// The statements with which a new member is written. Values go in as they were typed: one that holds an apostrophe
// breaks its statement.
#pragma once

#include <QString>

struct MemberValues
{
    QString firstName, middleName, lastName;
    QString addressOne, addressTwo, city, state, zip;
    QString homePhone, cellPhone, eMail;
};

struct EmployerValues
{
    QString name;
    QString addressOne, addressTwo, city, state, zip;
    QString mainPhone, extension, eMail;
};

QString insertMemberStatement(const MemberValues &member);
// Finds the row that was just written by all its texts but the zip; an earlier member of the same values may be found
// first.
QString findMemberStatement(const MemberValues &member);
QString insertEmployerStatement(const EmployerValues &employer, const QString &memberId);
QString insertInterestStatement(const QString &interest, const QString &description, const QString &memberId);
