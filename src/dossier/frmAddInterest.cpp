#include "dossier/frmAddInterest.h"

#include <QGridLayout>
#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

frmAddInterest::frmAddInterest()
    : Form(Place::InFrame, u"frmAddInterest"), Frame1(new desktop::Frame(this, u"Frame1", u"Member Interest"_s)),
      txtInterestName(new desktop::TextBox(Frame1, u"txtInterestName")),
      txtInterestDescription(new desktop::MultilineTextBox(Frame1, u"txtInterestDescription")),
      Command1(new CommandButton(this, u"Command1", u"Add"_s)),
      Command2(new CommandButton(this, u"Command2", u"Cancel"_s))
{
    setDesignCaption(u"Tolmark Member's Interest"_s);
    auto *name = new QLabel(u"Interest"_s, Frame1);
    name->setBuddy(txtInterestName);
    auto *description = new QLabel(u"Description"_s, Frame1);
    description->setBuddy(txtInterestDescription);
    auto *grid = new QGridLayout(Frame1);
    grid->addWidget(name, 0, 0);
    grid->addWidget(txtInterestName, 0, 1);
    grid->addWidget(description, 1, 0, Qt::AlignTop);
    grid->addWidget(txtInterestDescription, 1, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(Command1);
    buttons->addWidget(Command2);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(Frame1);
    whole->addLayout(buttons);
    desktop::on(Command2, &QPushButton::clicked, this, &frmAddInterest::Command2_Click);
}

void frmAddInterest::Command2_Click()
{
    Unload();
}
