#include "platform/desktop/ImageList.h"

namespace desktop {

void ImageList::add(const QString &key, const QString &file)
{
    m_files.insert(key, file);
    m_nodeIcons.clear();
}

QIcon ImageList::nodeIcon(const QString &image, const QString &selectedImage, const QString &expandedImage) const
{
    QIcon &icon = m_nodeIcons[{image, selectedImage, expandedImage}];
    if (!icon.isNull())
        return icon;
    const QString plain = m_files.value(image);
    const QString selected = m_files.value(selectedImage, plain);
    const QString expanded = m_files.value(expandedImage, plain);
    icon.addFile(plain, {}, QIcon::Normal, QIcon::Off);
    icon.addFile(selected, {}, QIcon::Selected, QIcon::Off);
    icon.addFile(expanded, {}, QIcon::Normal, QIcon::On);
    icon.addFile(selectedImage.isEmpty() ? expanded : selected, {}, QIcon::Selected, QIcon::On);
    return icon;
}

} // namespace desktop
