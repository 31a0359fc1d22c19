#include "dossier/NewMemberStatements.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

// 'one','two','three'
QString quotedList(const QStringList &values)
{
    return u"'"_s + values.join(u"','"_s) + u"'"_s;
}

} // namespace

QString insertMemberStatement(const MemberValues &m)
{
    return u"INSERT INTO MemberInformation (FirstName, MiddleName, LastName, "
           " AddressOne, AddressTwo, City, State, Zip, HomePhone, CellPhone, EMailAddress)"
           "values ("_s +
           quotedList({m.firstName, m.middleName, m.lastName, m.addressOne, m.addressTwo, m.city, m.state, m.zip,
                       m.homePhone, m.cellPhone, m.eMail}) +
           u")"_s;
}

QString findMemberStatement(const MemberValues &m)
{
    return u"select * from memberinformation where (FirstName = '"_s + m.firstName + u"') and (MiddleName = '"_s +
           m.middleName + u"') and (LastName = '"_s + m.lastName + u"') and (addressOne = '"_s + m.addressOne +
           u"') and (AddressTwo = '"_s + m.addressTwo + u"') and (City = '"_s + m.city + u"') and (State = '"_s +
           m.state + u"') and (HomePhone = '"_s + m.homePhone + u"') and (CellPhone = '"_s + m.cellPhone +
           u"') and (EMailaddress = '"_s + m.eMail + u"')"_s;
}

QString insertEmployerStatement(const EmployerValues &e, const QString &memberId)
{
    return u"INSERT INTO EmployerInformation (Name, AddressOne, AddressTwo, City, Zip, "
           " PhoneNumber, EmailAddress, State, MemberId, Extension) values ("_s +
           quotedList({e.name, e.addressOne, e.addressTwo, e.city, e.zip, e.mainPhone, e.eMail, e.state, memberId,
                       e.extension}) +
           u")"_s;
}

QString insertInterestStatement(const QString &interest, const QString &description, const QString &memberId)
{
    return u"INSERT INTO MemberInterest (Interest, InterestDescription, MemberId) values ('"_s + interest + u"','"_s +
           description + u"',"_s + memberId + u")"_s;
}
