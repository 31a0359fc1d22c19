#include "platform/desktop/ImageList.h"

namespace desktop {

QIcon ImageList::nodeIcon(const QString &image, const QString &selectedImage, const QString &expandedImage) const
{
    const QString plain = m_files.value(image);
    const QString selected = m_files.value(selectedImage, plain);
    const QString expanded = m_files.value(expandedImage, plain);
    QIcon icon;
    icon.addFile(plain, {}, QIcon::Normal, QIcon::Off);
    icon.addFile(selected, {}, QIcon::Selected, QIcon::Off);
    icon.addFile(expanded, {}, QIcon::Normal, QIcon::On);
    icon.addFile(selectedImage.isEmpty() ? expanded : selected, {}, QIcon::Selected, QIcon::On);
    return icon;
}

} // namespace desktop
