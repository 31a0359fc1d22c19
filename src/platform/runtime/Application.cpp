#include "platform/runtime/Application.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace runtime::App {

namespace {

QString &replacement()
{
    static QString folder;
    return folder;
}

} // namespace

QString Path()
{
    return replacement().isEmpty() ? QCoreApplication::applicationDirPath() : replacement();
}

void setPath(const QString &folder)
{
    replacement() = folder;
}

QString Title()
{
    return u"Tolmark Lite"_s;
}

} // namespace runtime::App
