#include "shell/users/frmTip.h"

#include "platform/desktop/Keys.h"
#include "platform/desktop/Settings.h"
#include "platform/runtime/Application.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/Random.h"
#include "platform/runtime/TextFile.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::Label;

namespace {

const QString tipsFile = u"TIPOFDAY.TXT"_s;
const QString section = u"Options"_s;
const QString setting = u"Show Tips at Startup"_s;

} // namespace

frmTip::frmTip()
    : Form(Place::Alone, u"frmTip"), Picture1(new desktop::PictureBox(this, u"Picture1")),
      Label1(new Label(Picture1, u"Label1", u"Did you know..."_s)), lblTipText(new Label(Picture1, u"lblTipText")),
      chkLoadTipsAtStartup(new desktop::CheckBox(this, u"chkLoadTipsAtStartup", u"&Show Tips at Startup"_s)),
      cmdNextTip(new desktop::CommandButton(this, u"cmdNextTip", u"&Next Tip"_s)),
      cmdOK(new desktop::CommandButton(this, u"cmdOK", u"OK"_s))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setDesignCaption(u"Tolmark Tip of the Day"_s);
    setUpContent();
    desktop::on(chkLoadTipsAtStartup, &QCheckBox::clicked, this, &frmTip::chkLoadTipsAtStartup_Click);
    desktop::on(cmdNextTip, &QPushButton::clicked, this, &frmTip::cmdNextTip_Click);
    desktop::on(cmdOK, &QPushButton::clicked, this, &frmTip::cmdOK_Click);
}

void frmTip::setUpContent()
{
    constexpr int charactersOfALine = 60;
    constexpr int linesOfATip = 5;
    Picture1->setAutoFillBackground(true);
    Picture1->setBackgroundRole(QPalette::Base); // a sheet of paper
    for (Label *label : {Label1, lblTipText})
        label->setForegroundRole(QPalette::Text);
    Label1->setFontSize(Label1->FontSize() * 1.3);
    lblTipText->setWordWrap(true);
    lblTipText->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    const QFontMetrics metrics = lblTipText->fontMetrics();
    lblTipText->setMinimumSize(charactersOfALine * metrics.averageCharWidth(), linesOfATip * metrics.lineSpacing());

    auto *tip = new QVBoxLayout(Picture1);
    tip->addWidget(Label1);
    tip->addWidget(lblTipText, 1);
    auto *row = new QHBoxLayout;
    row->addWidget(chkLoadTipsAtStartup);
    row->addStretch();
    row->addWidget(cmdNextTip);
    row->addWidget(cmdOK);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(Picture1, 1);
    whole->addLayout(row);
    desktop::setTabOrder({cmdNextTip, cmdOK, chkLoadTipsAtStartup});
    cmdNextTip->setFocus();
}

void frmTip::Form_Load()
{
    if (runtime::toDouble(runtime::Value(desktop::GetSetting(section, setting, u"1"_s))) == 0) {
        Unload();
        return;
    }
    chkLoadTipsAtStartup->setChecked(true);
    runtime::Randomize();
    if (!LoadTips(runtime::App::Path() + u'/' + tipsFile))
        lblTipText->setText(u"That the "_s + tipsFile + u" file was not found? \n\nCreate a text file named "_s +
                            tipsFile +
                            u" using NotePad with 1 tip per line. Then place it in the same directory as the "
                            "application. "_s);
}

bool frmTip::LoadTips(const QString &FileName)
{
    if (FileName.isEmpty() || runtime::Dir(FileName).isEmpty())
        return false;
    m_tips += runtime::textLines(FileName);
    chooseNextTip();
    return true;
}

void frmTip::chooseNextTip()
{
    CurrentTip = runtime::randomPlace(int(m_tips.size()));
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip()
{
    if (!m_tips.isEmpty())
        lblTipText->setText(m_tips[CurrentTip - 1]);
}

void frmTip::chkLoadTipsAtStartup_Click()
{
    desktop::SaveSetting(section, setting, QString::number(chkLoadTipsAtStartup->Value()));
}

void frmTip::cmdNextTip_Click()
{
    chooseNextTip();
}

void frmTip::cmdOK_Click()
{
    Unload();
}

void frmTip::keyPressEvent(QKeyEvent *event)
{
    if (desktop::keyCode(*event) == desktop::vbKeyEscape)
        cmdOK->click();
    else
        Form::keyPressEvent(event);
}
