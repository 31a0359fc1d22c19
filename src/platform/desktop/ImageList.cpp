#include "platform/desktop/ImageList.h"

#include <QCoreApplication>

namespace desktop {

namespace {

// The icon of these files. All windows share it: the sources are read once, and Qt, which keeps what it has drawn of
// each icon, keeps it once.
QIcon &sharedIcon(const QStringList &files)
{
    static QHash<QStringList, QIcon> icons;
    if (icons.isEmpty()) // pictures must not outlive the application
        qAddPostRoutine([] { icons.clear(); });
    return icons[files];
}

} // namespace

void ImageList::add(const QString &key, const QString &file)
{
    m_files.insert(key, file);
}

QIcon ImageList::icon(const QString &key) const
{
    const QString file = m_files.value(key);
    QIcon &icon = sharedIcon({file});
    if (icon.isNull())
        icon = QIcon(file);
    return icon;
}

QIcon ImageList::nodeIcon(const QString &image, const QString &selectedImage, const QString &expandedImage) const
{
    const QString plain = m_files.value(image);
    const QString selected = m_files.value(selectedImage, plain);
    const QString expanded = m_files.value(expandedImage, plain);
    const QString selectedExpanded = selectedImage.isEmpty() ? expanded : selected;
    QIcon &icon = sharedIcon({plain, selected, expanded, selectedExpanded});
    if (icon.isNull()) {
        icon.addFile(plain, {}, QIcon::Normal, QIcon::Off);
        icon.addFile(selected, {}, QIcon::Selected, QIcon::Off);
        icon.addFile(expanded, {}, QIcon::Normal, QIcon::On);
        icon.addFile(selectedExpanded, {}, QIcon::Selected, QIcon::On);
    }
    return icon;
}

} // namespace desktop
