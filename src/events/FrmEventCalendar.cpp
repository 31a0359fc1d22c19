#include "events/FrmEventCalendar.h"

#include "platform/runtime/Clock.h"
#include "platform/runtime/Conversion.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

FrmEventCalendar::FrmEventCalendar()
    : Form(Place::InFrame, u"FrmEventCalendar"),
      frEventCalendar(new desktop::Frame(this, u"frEventCalendar", u"Event Calendar"_s)),
      Calendar1(new Calendar(frEventCalendar, u"Calendar1"))
{
    Calendar1->setAccessibleName(u"Event Calendar"_s);
    Calendar1->findChild<QAbstractItemView *>()->setAccessibleName(u"Event Calendar"_s); // the focus is in its days
    auto *inside = new QVBoxLayout(frEventCalendar);
    inside->addWidget(Calendar1);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(frEventCalendar);
    Calendar1->setFocus();
    desktop::on(Calendar1, &Calendar::Click, this, &FrmEventCalendar::Calendar1_Click);
}

FrmAddEvent *FrmEventCalendar::frmEvent()
{
    if (!m_frmEvent) {
        m_frmEvent = new FrmAddEvent;
        m_frmEvent->setParent(this, Qt::Window);
    }
    return m_frmEvent;
}

void FrmEventCalendar::Form_Load()
{
    const QDate today = runtime::clockNow().day();
    Calendar1->setMonth(today.month());
    Calendar1->setDay(today.day());
    Calendar1->setYear(today.year());
}

void FrmEventCalendar::Calendar1_Click()
{
    const QString day = runtime::toText(Calendar1->Value());
    FrmAddEvent &event = *frmEvent();
    event.Load(); // a window that was closed meanwhile would otherwise load later and put its presets over the day
    (ControlName == u"txtEventStartDate" ? event.txtEventStartDate : event.txtEventEndDate)->setText(day);
    Unload();
}

void FrmEventCalendar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Unload();
    else
        Form::keyPressEvent(event);
}
