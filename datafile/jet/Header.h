// The first page of a Jet file: what kind of file it is, and whether we read it.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace jet {

inline constexpr qsizetype pageSize = 4096; // of Jet 4

// Why the file is not read, as the end of a sentence about it; empty for one that is. `firstPage` may be shorter than a
// page; `size` is that of the file, in bytes. A file with a database password is read with that password alone.
QString refusalOf(QByteArrayView firstPage, qint64 size, const QString &password);

} // namespace jet
