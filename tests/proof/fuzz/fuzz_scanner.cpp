// Any bytes and any text: the search finds what the rule finds that reads one byte after another.
#include "library/ClsBinaryFunctions.h"
#include "platform/runtime/BinaryFile.h"
#include "proof/fuzz/Fuzz.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

class Scanner : public ClsBinaryFunctions
{
public:
    using ClsBinaryFunctions::FileHandle;
    using ClsBinaryFunctions::MatchPosition;
    using ClsBinaryFunctions::Pattern;
    using ClsBinaryFunctions::ScanFile;
};

// The byte that ends an attempt is gone, and no attempt begins where the text would reach the last byte.
qsizetype placeByTheRule(const QByteArray &bytes, const QString &pattern, const runtime::CodePage &characters)
{
    for (qsizetype read = 0; read < bytes.size() - pattern.size();) {
        qsizetype index = 0;
        while (index < pattern.size() && characters[uchar(bytes[read + index])] == pattern[index])
            ++index;
        if (index == pattern.size())
            return read;
        read += index + 1;
    }
    return -1;
}

} // namespace

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
    const qsizetype place = placeByTheRule(
        bytes, scanner.Pattern, scanner.Check1Value ? runtime::ansiCharacters() : runtime::ansiUpperCaseCharacters());
    if (scanner.MatchPosition != place)
        found(u"\"%1\" at %2, not at %3"_s.arg(scanner.Pattern).arg(place).arg(scanner.MatchPosition));
    return 0;
}
