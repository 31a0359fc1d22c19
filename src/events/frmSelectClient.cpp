#include "events/frmSelectClient.h"

#include "events/ActivePeople.h"
#include "platform/desktop/Keys.h"
#include "shell/store/CLsDataBaseConnection.h"

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
    // Not the members: the note belongs to a person of the record window.
    m_clientIds = QList<runtime::Value>(1) + listActivePeople(*lstClient);
    lstClient->setSelected(0);
    setSize(4800, 5715);
}

void frmSelectClient::cmdOK_Click()
{
    CLsDataBaseConnection connection;
    data::Recordset note = connection.CreateRecordset(u"select * from MeetingInfo"_s);
    note.AddNew();
    note[u"PersonalInformationId"].setValue(m_clientIds[lstClient->ListIndex() + 1]);
    note[u"MeetingDate"].setValue(EventDate);
    note[u"MeetingType"].setValue(EventType);
    note[u"MeetingCatagory"].setValue(EventCategory);
    note[u"MeetingSubject"].setValue(EventPurpose);
    note[u"MeetingStartTime"].setValue(EventStartTime);
    note[u"MeetingEndTime"].setValue(EventEndTime);
    note[u"MeetingNotes"].setValue(EventNotes);
    note.UpdateBatch();
    note.Close();
    connection.DbClose();
    Unload();
}

void frmSelectClient::keyPressEvent(QKeyEvent *event)
{
    if (desktop::keyCode(*event) == desktop::vbKeyReturn)
        cmdOK->click();
    else
        Form::keyPressEvent(event);
}
