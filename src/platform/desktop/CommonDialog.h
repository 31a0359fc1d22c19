// The file dialog: asks for a file to open or a name to save under. What its fields say stays from one use to the next.
#pragma once

#include <QObject>
#include <QString>

class QFileDialog;
class QWidget;

namespace desktop {

class CommonDialog : public QObject
{
public:
    CommonDialog(QWidget *window, QAnyStringView name);

    QString DialogTitle; // empty: the dialog's own
    QString Filter;      // "description|pattern|description|pattern"
    QString FileName;    // what was chosen, with its folder; before ShowSave, the name to begin with
    QString FileTitle;   // what was chosen, without folder

    // False when the dialog ends with nothing chosen; the fields are then as before.
    bool ShowOpen();
    // Asks before it gives a name that stands already.
    bool ShowSave();

private:
    bool show(QFileDialog &dialog);
    QStringList nameFilters() const;

    QWidget *m_window;
};

} // namespace desktop
