#include "platform/desktop/Printer.h"

#include "platform/runtime/Application.h"
#include "platform/runtime/RuntimeError.h"

#include <QApplication>
#include <QFile>
#include <QLibrary>
#include <QPageSize>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTextLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

QString &printFile()
{
    static QString file;
    return file;
}

bool isAtHand()
{
    return !printFile().isEmpty() || !QPrinterInfo::defaultPrinter().isNull();
}

void raisePrinterErrorUnless(bool succeeded)
{
    if (!succeeded)
        throw runtime::RuntimeError(runtime::PrinterError);
}

// CR LF, CR and the line and paragraph separators of Unicode end a line as LF does.
QStringList paragraphsOf(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    for (const QChar end : {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        text.replace(end, u'\n');
    return text.split(u'\n');
}

// Broken into lines where the printer's margins ask for it.
void layOut(QTextLayout &paragraph, const QPrinter &printer)
{
    QTextOption option; // with tab stops at Qt's distance
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    paragraph.setTextOption(option);
    paragraph.beginLayout();
    for (QTextLine line = paragraph.createLine(); line.isValid(); line = paragraph.createLine())
        line.setLineWidth(printer.pageRect(QPrinter::DevicePixel).width());
    paragraph.endLayout();
}

void drawPages(const QString &text, QPrinter &printer)
{
    QPainter painter;
    raisePrinterErrorUnless(painter.begin(&printer));
    const double bottom = printer.pageRect(QPrinter::DevicePixel).height();
    double y = 0;
    for (const QString &paragraphText : paragraphsOf(text)) {
        QTextLayout paragraph(paragraphText, QApplication::font(), &printer);
        layOut(paragraph, printer);
        for (int at = 0; at < paragraph.lineCount(); ++at) {
            const QTextLine line = paragraph.lineAt(at);
            if (y + line.height() > bottom) {
                raisePrinterErrorUnless(printer.newPage());
                y = 0;
            }
            line.draw(&painter, QPointF(0, y - line.y()));
            y += line.height();
        }
    }
    raisePrinterErrorUnless(painter.end());
}

void printToFile(const QString &text, const QString &file, const QPageSize &paper)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    if (paper.isValid())
        printer.setPageSize(paper);
    printer.setDocName(runtime::App::Title());
    drawPages(text, printer);
}

// The print server's number for the job; 0 where it takes none. Qt would send the pages off itself, but keeps the
// server's answer for itself, so the library that Qt's own printing stands on is asked directly.
int submit(const QString &printer, const QString &file)
{
    using Submit = int (*)(const char *, const char *, const char *, int, void *);
    const auto cupsPrintFile = reinterpret_cast<Submit>(QLibrary::resolve(u"cups"_s, 2, "cupsPrintFile"));
    if (!cupsPrintFile)
        return 0;
    return cupsPrintFile(printer.toUtf8(), QFile::encodeName(file), runtime::App::Title().toUtf8(), 0, nullptr);
}

void printOnPaper(const QString &text)
{
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    const QTemporaryDir folder; // gone at the end: the server has a copy
    raisePrinterErrorUnless(folder.isValid());
    const QString pages = folder.filePath(u"pages.pdf"_s);
    printToFile(text, pages, printer.defaultPageSize());
    raisePrinterErrorUnless(submit(printer.printerName(), pages) > 0);
}

} // namespace

void setPrintFile(const QString &file)
{
    printFile() = file;
}

void Printer::Print(const QString &text)
{
    if (m_text.isEmpty())
        raisePrinterErrorUnless(isAtHand());
    m_text += text + u'\n';
}

void Printer::EndDoc()
{
    QString text = std::exchange(m_text, {});
    if (text.isEmpty())
        return;
    raisePrinterErrorUnless(isAtHand()); // it may have gone since Print
    text.chop(1);                        // the last line's end would begin another line
    if (printFile().isEmpty())
        printOnPaper(text);
    else
        printToFile(text, printFile(), {});
}

} // namespace desktop
