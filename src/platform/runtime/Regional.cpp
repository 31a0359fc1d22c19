#include "platform/runtime/Regional.h"

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

// Some regional time forms set the AM/PM mark off with a narrow no-break space; a user types a plain blank.
QString withPlainBlanks(QString text)
{
    return text.replace(QChar(0x202f), u' ').replace(QChar(0xa0), u' ');
}

} // namespace

QLocale regional()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

QString shortDateText(QDate day)
{
    const QLocale locale = regional();
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(u"yyyy"))
        format.replace(u"yy"_s, u"yyyy"_s);
    return locale.toString(day, format);
}

QString longTimeText(QTime time)
{
    const QLocale locale = regional();
    QString format = locale.timeFormat(QLocale::ShortFormat);
    if (!format.contains(u"ss"))
        format.replace(u"mm"_s, u"mm:ss"_s);
    return withPlainBlanks(locale.toString(time, format));
}

QString shortTimeText(QTime time)
{
    const QLocale locale = regional();
    return withPlainBlanks(locale.toString(time, locale.timeFormat(QLocale::ShortFormat)));
}

} // namespace runtime
