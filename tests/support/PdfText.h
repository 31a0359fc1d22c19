// Reads printed pages back with pdftotext: the words in the places in which they stand, ligatures as their letters. A
// form feed ends each page.
#pragma once

#include <QProcess>
#include <QString>
#include <QTest>

inline QString pdfText(const QString &file)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitStatus() != QProcess::NormalExit || reader.exitCode() != 0)
        QTest::qFail("pdftotext cannot read the page", __FILE__, __LINE__);
    return QString::fromUtf8(reader.readAllStandardOutput()).normalized(QString::NormalizationForm_KC);
}

// Hides the system's printers from this process: what looks for the print server finds none. Call it before anything is
// printed.
inline void hidePrinters()
{
    qputenv("CUPS_SERVER", "/dev/null/no-server");
}
