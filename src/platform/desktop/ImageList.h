// Pictures by key, drawn from scalable sources.
#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>

namespace desktop {

class ImageList : public QObject
{
public:
    ImageList(QObject *parent, QAnyStringView name) : QObject(parent) { setObjectName(name.toString()); }

    void add(const QString &key, const QString &file);
    QIcon icon(const QString &key) const;
    // A tree node's picture: as it is, selected, and expanded. An empty key shows the first one in its place.
    QIcon nodeIcon(const QString &image, const QString &selectedImage, const QString &expandedImage) const;

private:
    QHash<QString, QString> m_files;
};

} // namespace desktop
