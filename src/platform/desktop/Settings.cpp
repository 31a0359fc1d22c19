#include "platform/desktop/Settings.h"

#include <QSettings>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

QString &otherPath()
{
    static QString path;
    return path;
}

std::unique_ptr<QSettings> settings()
{
    if (!otherPath().isEmpty())
        return std::make_unique<QSettings>(otherPath(), QSettings::IniFormat);
    return std::make_unique<QSettings>(u"Tolmark"_s, u"Tolmark"_s);
}

} // namespace

QString GetSetting(const QString &section, const QString &key, const QString &defaultText)
{
    return settings()->value(section + u'/' + key, defaultText).toString();
}

void SaveSetting(const QString &section, const QString &key, const QString &text)
{
    settings()->setValue(section + u'/' + key, text);
}

void setSettingsFile(const QString &path)
{
    otherPath() = path;
}

} // namespace desktop
