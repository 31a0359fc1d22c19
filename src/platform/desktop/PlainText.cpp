#include "platform/desktop/PlainText.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

const QString mark = u"[*]"_s;
const QString literalMark = mark + mark;

} // namespace

void setTitle(QWidget &window, const QString &title)
{
    window.setWindowTitle(title.left(mostShown).replace(mark, literalMark));
}

QString titleOf(const QWidget &window)
{
    return window.windowTitle().replace(literalMark, mark);
}

QString withoutMnemonic(QString text)
{
    return text.replace(u"&"_s, u"&&"_s);
}

bool showMarkedUpToolTip(const QString &toolTip, const QHelpEvent &event, QWidget *widget)
{
    if (!Qt::mightBeRichText(toolTip))
        return false;
    const QString html = u"<span style=\"white-space:pre\">%1</span>"_s.arg(toolTip.toHtmlEscaped());
    QToolTip::showText(event.globalPos(), html, widget);
    return true;
}

void showPlainToolTip(const QString &text, const QHelpEvent &event, QWidget *widget)
{
    if (!showMarkedUpToolTip(text, event, widget))
        QToolTip::showText(event.globalPos(), text, widget);
}

} // namespace desktop
