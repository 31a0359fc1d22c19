// Any bytes and any text: the search finds what the rule finds that reads one byte after another.
#include "platform/runtime/BinaryFile.h"
#include "proof/fuzz/Fuzz.h"
#include "support/Scanner.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    FuzzedDataProvider input(data, size);
    Scanner scanner;
    scanner.sFile = folder.filePath(u"scanned"_s);
    scanner.Check1Value = input.ConsumeBool();
    scanner.Text2Text = takenText(input, 6);
    QByteArray bytes = QByteArray::fromStdString(input.ConsumeRemainingBytesAsString());
    bytes += bytes.repeated(int(size % 5));
    writeFile(scanner.sFile, bytes);
    scanner.ScanFile();
    runtime::CloseFile(scanner.FileHandle);
    const qint32 place = std::get<1>(scanner.byTheRule(bytes));
    if (scanner.MatchPosition != place)
        found(u"\"%1\" at %2, not at %3"_s.arg(scanner.Pattern).arg(place).arg(scanner.MatchPosition));
    return 0;
}
