#include "platform/desktop/Printer.h"
#include "support/Outcome.h"
#include "support/PdfText.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

QString withoutBlanks(QString text)
{
    return text.remove(QRegularExpression(u"\\s"_s));
}

QString printed(desktop::Printer &printer, const QString &text)
{
    return outcomeOf([&] {
        printer.Print(text);
        printer.EndDoc();
        return u"printed"_s;
    });
}

} // namespace

class tst_Printer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { hidePrinters(); }
    void cleanup() { desktop::setPrintFile({}); }

    void eachPrintEndsItsOwnLine()
    {
        const QString file = m_folder.filePath(u"lines.pdf"_s);
        desktop::setPrintFile(file);
        desktop::Printer printer;
        printer.Print(u"first\n"_s);
        printer.Print(u"left\t\tright\r\n\u2028"_s);
        printer.Print(u"last & <b>plain</b>"_s);
        printer.EndDoc();
        const QStringList lines = pdfText(file).split(u'\n');
        QCOMPARE(lines[0], u"first"_s);
        QCOMPARE(lines[1], QString());
        QVERIFY2(QRegularExpression(u"^left {3,}right$"_s).match(lines[2]).hasMatch(), qPrintable(lines[2]));
        QCOMPARE(lines.mid(3), (QStringList{QString(), QString(), u"last & <b>plain</b>"_s, u"\f"_s}));
    }

    // Nothing is cut off at an edge and nothing is added: no page number, no page more than the text fills.
    void aLongTextIsWrappedAndTakesSeveralPages()
    {
        const QString file = m_folder.filePath(u"long.pdf"_s);
        desktop::setPrintFile(file);
        QString text = QString(500, u'x') + u"\n"_s;
        for (int word = 0; word < 3000; ++word)
            text += u"word-%1 "_s.arg(word);
        for (int line = 0; line < 100; ++line)
            text += u"\nline %1"_s.arg(line);
        desktop::Printer printer;
        QCOMPARE(printed(printer, text), u"printed"_s);
        const QString onPaper = pdfText(file);
        QVERIFY(onPaper.count(u'\f') > 2);
        QVERIFY(!onPaper.contains(u"\f\f"));
        QCOMPARE(withoutBlanks(onPaper), withoutBlanks(text));
    }

    void withoutAPrinterItFailsAndCanBeUsedAgain()
    {
        desktop::Printer printer;
        QCOMPARE(printed(printer, u"lost"_s), u"error 482"_s);
        desktop::setPrintFile(m_folder.filePath(u"no such folder/page.pdf"_s));
        QCOMPARE(printed(printer, u"lost too"_s), u"error 482"_s);
        const QString file = m_folder.filePath(u"page.pdf"_s);
        desktop::setPrintFile(file);
        QCOMPARE(printed(printer, u"kept"_s), u"printed"_s);
        QCOMPARE(withoutBlanks(pdfText(file)), u"kept"_s);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_Printer)
#include "tst_printer.moc"
