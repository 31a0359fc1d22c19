// The member's employer, the first row where there are two. Update writes every row of the member, all columns but the
// state and the extension; without a row it stores nothing and reports success all the same.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/StoredBoxes.h"
#include "platform/desktop/Controls.h"

class EmployerTab : public desktop::Frame
{
    Q_OBJECT
public:
    EmployerTab(QWidget *parent, Dossier &dossier);

    desktop::TextBox *txtEmployerName;
    desktop::TextBox *txtEmployerAddressOne;
    desktop::TextBox *txtEmployerAddressTwo;
    desktop::TextBox *txtEmployerCity;
    desktop::ListBox *LstEmployerState;
    desktop::TextBox *txtEmployerZip;
    desktop::TextBox *txtEmployerPhoneNumber;
    desktop::TextBox *txtEmployerExtension;
    desktop::TextBox *txtEmail;
    desktop::TextBox *txtWebAddress;
    desktop::CommandButton *butEditEmployer;
    desktop::CommandButton *butEmployerClose;

    void load();
    void butEditEmployer_Click();

private:
    Dossier &m_dossier;
    StoredBoxes m_boxes;
};
