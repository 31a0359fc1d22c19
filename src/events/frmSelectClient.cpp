#include "events/frmSelectClient.h"

#include "events/ActivePeople.h"
#include "platform/desktop/Keys.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

frmSelectClient::frmSelectClient()
    : Form(Place::InFrame, u"frmSelectClient"), lstClient(new desktop::ListBox(this, u"lstClient")),
      cmdOK(new desktop::CommandButton(this, u"cmdOK", u"OK"_s))
{
    setDesignCaption(u"Tolmark Select Client"_s);
    lstClient->setAccessibleName(u"Client"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(lstClient);
    whole->addLayout(buttons);
    desktop::on(cmdOK, &QPushButton::clicked, this, &frmSelectClient::cmdOK_Click);
}

void frmSelectClient::Form_Load()
{
    // Offers the people of the record window, not members: the record window lists these notes.
    m_clientIds = QList<runtime::Value>(1) + listActivePeople(*lstClient);
    lstClient->setSelected(0);
    setSize(4800, 5715);
}

void frmSelectClient::cmdOK_Click()
{
    storeNote(u"PersonalInformationId", m_clientIds[lstClient->ListIndex() + 1], *this);
    Unload();
}

void frmSelectClient::keyPressEvent(QKeyEvent *event)
{
    if (desktop::keyCode(*event) == desktop::vbKeyReturn)
        cmdOK->click();
    else
        Form::keyPressEvent(event);
}
