// Any bytes as a file of tips: the lines are those that a plain reading finds.
#include "platform/runtime/CodePage.h"
#include "platform/runtime/TextFile.h"
#include "proof/fuzz/Fuzz.h"

#include <QStringDecoder>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList plainLines(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = utf8(bytes);
    if (utf8.hasError()) {
        text.clear();
        for (const char byte : bytes)
            text += QChar(runtime::ansiCharacters()[uchar(byte)]);
    }
    QStringList lines;
    QString line;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] != u'\r' && text[at] != u'\n') {
            line += text[at];
            continue;
        }
        lines << line;
        line.clear();
        if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
            ++at;
    }
    return line.isEmpty() ? lines : lines << line;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString path = folder.filePath(u"TIPOFDAY.TXT"_s);
    writeFile(path, bytes);
    const QStringList lines = runtime::textLines(path);
    if (lines != plainLines(bytes))
        found(u"%1 lines, not %2"_s.arg(lines.size()).arg(plainLines(bytes).size()));
    return 0;
}
