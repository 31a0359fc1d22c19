#include "platform/runtime/TextFile.h"

#include "platform/runtime/BinaryFile.h"
#include "platform/runtime/CodePage.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

QString decoded(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = utf8(bytes);
    if (!utf8.hasError())
        return text;
    text.resize(bytes.size());
    std::transform(bytes.cbegin(), bytes.cend(), text.begin(),
                   [](char byte) { return QChar(ansiCharacters()[uchar(byte)]); });
    return text;
}

} // namespace

QStringList textLines(const QString &path)
{
    BinaryFile file(path, BinaryAccess::Read);
    QByteArray bytes(file.size(), '\0');
    file.get(1, bytes);
    QString text = decoded(bytes);
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    QStringList lines = text.split(u'\n');
    if (lines.constLast().isEmpty()) // the end of the last line begins no further one
        lines.removeLast();
    return lines;
}

} // namespace runtime
