#include "platform/desktop/Printer.h"

#include "platform/runtime/Application.h"
#include "platform/runtime/RuntimeError.h"

#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextLayout>

#include <memory>
#include <utility>

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

std::unique_ptr<QPrinter> openPrinter()
{
    if (printFile().isEmpty())
        return std::make_unique<QPrinter>(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(printFile());
    return printer;
}

void raisePrinterErrorUnless(bool succeeded)
{
    if (!succeeded)
        throw runtime::RuntimeError(runtime::PrinterError);
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

void printText(const QString &text, QPrinter &printer)
{
    QPainter painter;
    raisePrinterErrorUnless(painter.begin(&printer));
    const double bottom = printer.pageRect(QPrinter::DevicePixel).height();
    double y = 0;
    for (const QString &paragraphText : text.split(u'\n')) {
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
    raisePrinterErrorUnless(isAtHand()); // Qt would print into the void
    text.chop(1);                        // the last line's end begins no further line
    const std::unique_ptr<QPrinter> printer = openPrinter();
    printer->setDocName(runtime::App::Title());
    printText(text, *printer);
}

} // namespace desktop
