// Takes the place of whatever would open a file, and keeps the paths. A test names this header among its sources,
// because moc has to read it.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

class Launches : public QObject
{
    Q_OBJECT
public:
    Launches() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Launches() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList paths;

public Q_SLOTS:
    void open(const QUrl &url) { paths << url.toLocalFile(); }
};
