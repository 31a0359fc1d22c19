#include "platform/desktop/LongWork.h"

#include "platform/desktop/MdiForm.h"
#include "platform/runtime/Regional.h"

#include <QApplication>
#include <QStatusBar>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

// Null without a frame, and for a frame without a bar.
QStatusBar *frameStatusBar()
{
    return MdiForm::frame() ? MdiForm::frame()->findChild<QStatusBar *>({}, Qt::FindDirectChildrenOnly) : nullptr;
}

} // namespace

LongWork::LongWork(const QString &what, qsizetype total)
    : m_what(what), m_total(total), m_next(std::chrono::steady_clock::now() + interval)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

LongWork::~LongWork()
{
    QApplication::restoreOverrideCursor();
    if (QStatusBar *bar = m_shown ? frameStatusBar() : nullptr)
        bar->clearMessage();
}

void LongWork::at(qsizetype piece)
{
    if (std::chrono::steady_clock::now() >= m_next)
        showAt(piece);
}

void LongWork::showAt(qsizetype piece)
{
    m_next = std::chrono::steady_clock::now() + interval;
    QStatusBar *bar = frameStatusBar();
    if (!bar)
        return;
    m_shown = true;
    const QLocale region = runtime::regional();
    bar->showMessage(u"%1 %2 of %3"_s.arg(m_what, region.toString(piece), region.toString(m_total)));
    bar->repaint();
}

} // namespace desktop
