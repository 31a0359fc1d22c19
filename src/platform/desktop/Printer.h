// The system's default printer, as a window prints on it: lines of text, without a dialog.
//
// Print gathers the document's lines and EndDoc sends them off: on the printer's default paper, within the margins,
// long lines wrapped, on as many pages as they need. With no printer at hand Print raises error 482 before it takes a
// line; an EndDoc that the printer or the print server refuses raises it too and drops the document. In both cases the
// next Print starts a document afresh.
#pragma once

#include <QString>

namespace desktop {

class Printer
{
public:
    // Adds the text and a line end of its own.
    void Print(const QString &text);
    void EndDoc();

private:
    QString m_text;
};

// Prints into a PDF file instead, which counts as a printer at hand, for a test; an empty path puts the printer back.
void setPrintFile(const QString &file);

} // namespace desktop
