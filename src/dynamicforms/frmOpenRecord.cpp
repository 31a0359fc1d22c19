#include "dynamicforms/frmOpenRecord.h"

#include "dynamicforms/DisplayInformation.h"
#include "events/ActivePeople.h"
#include "platform/desktop/Keys.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

frmOpenRecord::frmOpenRecord()
    : Form(Place::InFrame, u"frmOpenRecord"), lstPerson(new desktop::ListBox(this, u"lstPerson")),
      cmdOpen(new desktop::CommandButton(this, u"cmdOpen", u"Open"_s)),
      cmdCancel(new desktop::CommandButton(this, u"cmdCancel", u"Cancel"_s))
{
    setDesignCaption(u"Tolmark Open Record"_s);
    lstPerson->setAccessibleName(u"Person"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOpen);
    buttons->addWidget(cmdCancel);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(lstPerson);
    whole->addLayout(buttons);
    desktop::on(lstPerson, &QListWidget::itemDoubleClicked, this, &frmOpenRecord::cmdOpen_Click);
    desktop::on(cmdOpen, &QPushButton::clicked, this, &frmOpenRecord::cmdOpen_Click);
    desktop::on(cmdCancel, &QPushButton::clicked, this, &frmOpenRecord::cmdCancel_Click);
}

void frmOpenRecord::Form_Load()
{
    m_ids = listActivePeople(*lstPerson);
    cmdOpen->setEnabled(!m_ids.isEmpty());
    if (!m_ids.isEmpty())
        lstPerson->setSelected(0);
    setSize(4800, 5715);
}

void frmOpenRecord::cmdOpen_Click()
{
    desktop::showNew<DisplayInformation>([this](DisplayInformation &record) {
        record.RecordId = runtime::toInteger(m_ids[lstPerson->ListIndex()]);
        record.WindowTitle = lstPerson->Text().simplified();
    });
    Unload();
}

void frmOpenRecord::cmdCancel_Click()
{
    Unload();
}

void frmOpenRecord::keyPressEvent(QKeyEvent *event)
{
    const int key = desktop::keyCode(*event);
    if (key == desktop::vbKeyReturn)
        (cmdCancel->hasFocus() ? cmdCancel : cmdOpen)->click();
    else if (key == desktop::vbKeyEscape)
        cmdCancel->click();
    else
        Form::keyPressEvent(event);
}
