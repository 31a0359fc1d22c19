#include "dossier/MemberFields.h"

#include <array>

namespace {

constexpr std::array fieldsOfMember{
    MemberField{.column = u"FirstName",
                .label = u"First Name",
                .boxInDossier = u"txtFirstName",
                .boxInEntry = u"txtMemberFirstName"},
    MemberField{.column = u"MiddleName",
                .label = u"Middle Name",
                .boxInDossier = u"txtMiddleName",
                .boxInEntry = u"txtMemberMiddleName"},
    MemberField{.column = u"LastName",
                .label = u"Last Name",
                .boxInDossier = u"txtLastName",
                .boxInEntry = u"txtMemberLastName"},
    MemberField{.column = u"AddressOne",
                .label = u"Address One",
                .boxInDossier = u"txtAddressOne",
                .boxInEntry = u"txtMemberAddressOne"},
    MemberField{.column = u"AddressTwo",
                .label = u"Address Two",
                .boxInDossier = u"txtAddressTwo",
                .boxInEntry = u"txtMemberAddressTwo"},
    MemberField{.column = u"City", .label = u"City", .boxInDossier = u"txtCity", .boxInEntry = u"txtCity"},
    MemberField{
        .column = u"State", .label = u"State", .boxInDossier = u"LstState", .boxInEntry = u"LstState", .isState = true},
    MemberField{.column = u"Zip", .label = u"Zip", .boxInDossier = u"txtZip", .boxInEntry = u"txtMemberZip"},
    MemberField{.column = u"HomePhone",
                .label = u"Home Phone Number",
                .boxInDossier = u"txtHomePhone",
                .boxInEntry = u"txtMemberHomePhone",
                .labelInEntry = u"Home Phone"},
    MemberField{.column = u"CellPhone",
                .label = u"Cell Phone Number",
                .boxInDossier = u"txtCellPhone",
                .boxInEntry = u"txtMemberCellPhone",
                .labelInEntry = u"Cell Phone"},
    MemberField{.label = u"Work Phone", .boxInEntry = u"txtMemberWorkExtension"},
    MemberField{.column = u"EMailAddress",
                .label = u"EMail Address",
                .boxInDossier = u"txtEMailAddress",
                .boxInEntry = u"txtMemberEmail"},
};

constexpr std::array fieldsOfEmployer{
    MemberField{.column = u"Name",
                .label = u"Employer Name",
                .boxInDossier = u"txtEmployerName",
                .boxInEntry = u"txtEmployerName"},
    MemberField{.column = u"AddressOne",
                .label = u"Address One",
                .boxInDossier = u"txtEmployerAddressOne",
                .boxInEntry = u"txtEmployerAddressOne"},
    MemberField{.column = u"AddressTwo",
                .label = u"Address Two",
                .boxInDossier = u"txtEmployerAddressTwo",
                .boxInEntry = u"txtEmployerAddressTwo"},
    MemberField{
        .column = u"City", .label = u"City", .boxInDossier = u"txtEmployerCity", .boxInEntry = u"txtEmployerCity"},
    MemberField{.column = u"State",
                .label = u"State",
                .boxInDossier = u"LstEmployerState",
                .boxInEntry = u"LstEmployerState",
                .isState = true},
    MemberField{.column = u"Zip", .label = u"Zip", .boxInDossier = u"txtEmployerZip", .boxInEntry = u"txtEmployerZip"},
    MemberField{.column = u"PhoneNumber",
                .label = u"Phone Number",
                .boxInDossier = u"txtEmployerPhoneNumber",
                .boxInEntry = u"txtEmployerMainPhone",
                .labelInEntry = u"Main Phone"},
    MemberField{.column = u"Extension",
                .label = u"Extension",
                .boxInDossier = u"txtEmployerExtension",
                .boxInEntry = u"txtEmployerExtension"},
    MemberField{.label = u"Cell Phone", .boxInEntry = u"txtEmployerCellPhone"},
    MemberField{.column = u"EMailAddress",
                .label = u"EMail Address",
                .boxInDossier = u"txtEmail",
                .boxInEntry = u"txtEmployerEmail"},
    MemberField{.column = u"WebAddress", .label = u"Web Address", .boxInDossier = u"txtWebAddress"},
};

} // namespace

std::span<const MemberField> memberFields()
{
    return fieldsOfMember;
}

std::span<const MemberField> employerFields()
{
    return fieldsOfEmployer;
}
