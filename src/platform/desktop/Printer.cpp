#include "platform/desktop/Printer.h"

#include "platform/runtime/Application.h"
#include "platform/runtime/RuntimeError.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>

#include <memory>
#include <utility>

namespace desktop {

namespace {

constexpr double tabStopInches = 0.5;

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

void layOut(QTextDocument &document, const QString &text, QPrinter &printer)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(tabStopInches * printer.resolution());
    document.setDefaultTextOption(option);
    document.setDocumentMargin(0); // the printer has its own
    document.documentLayout()->setPaintDevice(&printer);
    document.setPageSize(printer.pageRect(QPrinter::DevicePixel).size());
    document.setPlainText(text);
}

} // namespace

void setPrintFile(const QString &file)
{
    printFile() = file;
}

void Printer::Print(const QString &text)
{
    if (m_text.isEmpty() && !isAtHand())
        throw runtime::RuntimeError(runtime::PrinterError);
    m_text += text + u'\n';
}

void Printer::EndDoc()
{
    QString text = std::exchange(m_text, {});
    if (text.isEmpty())
        return;
    if (!isAtHand()) // Qt would print into the void
        throw runtime::RuntimeError(runtime::PrinterError);
    text.chop(1); // the last line's end begins no further line
    const std::unique_ptr<QPrinter> printer = openPrinter();
    printer->setDocName(runtime::App::Title());
    QTextDocument document;
    layOut(document, text, *printer);
    QPainter painter;
    if (!painter.begin(printer.get()))
        throw runtime::RuntimeError(runtime::PrinterError);
    const QSizeF page = document.pageSize();
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black); // paper is white, whatever the desktop's colours are
    for (int number = 0; number < document.pageCount(); ++number) {
        if (number > 0 && !printer->newPage())
            throw runtime::RuntimeError(runtime::PrinterError);
        context.clip = QRectF(QPointF(0, number * page.height()), page);
        painter.resetTransform();
        painter.translate(-context.clip.topLeft());
        document.documentLayout()->draw(&painter, context);
    }
    if (!painter.end())
        throw runtime::RuntimeError(runtime::PrinterError);
}

} // namespace desktop
