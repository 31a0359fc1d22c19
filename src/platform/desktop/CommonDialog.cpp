#include "platform/desktop/CommonDialog.h"

#include "platform/desktop/PlainText.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

CommonDialog::CommonDialog(QWidget *window, QAnyStringView name) : QObject(window), m_window(window)
{
    setObjectName(name.toString());
}

// The descriptions repeat their pattern in brackets, which Qt reads as the pattern; "*.*" means every name, also one
// without a dot.
QStringList CommonDialog::nameFilters() const
{
    const QStringList pieces = Filter.split(u'|');
    QStringList filters;
    for (qsizetype at = 0; at + 1 < pieces.size(); at += 2) {
        const QString description = pieces[at].section(u'(', 0, 0).trimmed();
        const QString pattern = pieces[at + 1] == u"*.*" ? u"*"_s : pieces[at + 1];
        filters << description + u" ("_s + pattern + u')';
    }
    return filters;
}

bool CommonDialog::show(QFileDialog &dialog)
{
    dialog.setObjectName(objectName());
    if (!DialogTitle.isEmpty())
        setTitle(dialog, DialogTitle);
    if (!Filter.isEmpty())
        dialog.setNameFilters(nameFilters());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    FileName = dialog.selectedFiles().constFirst();
    FileTitle = QFileInfo(FileName).fileName();
    return true;
}

bool CommonDialog::ShowOpen()
{
    QFileDialog dialog(m_window);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return show(dialog);
}

bool CommonDialog::ShowSave()
{
    QFileDialog dialog(m_window);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(FileName);
    return show(dialog);
}

} // namespace desktop
