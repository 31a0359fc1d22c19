// Any bytes as the file of settings, and any text as a setting: it is read back as it was written.
#include "platform/desktop/Settings.h"
#include "proof/fuzz/Fuzz.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    FuzzedDataProvider input(data, size);
    const QString path = folder.filePath(u"settings"_s);
    desktop::setSettingsFile(path);
    const QString text = takenText(input, 40);
    writeFile(path, QByteArray::fromStdString(input.ConsumeRemainingBytesAsString()));
    desktop::GetSetting(u"Options"_s, u"Show Tips at Startup"_s, u"1"_s);
    desktop::SaveSetting(u"Options"_s, u"Show Tips at Startup"_s, text);
    const QString read = desktop::GetSetting(u"Options"_s, u"Show Tips at Startup"_s, u"none"_s);
    if (read != text)
        found(u"\"%1\" became \"%2\""_s.arg(text, read));
    return 0;
}
