// F1, in whichever window of the program it is pressed, a message box included.
#pragma once

#include <QObject>
#include <QStringList>

namespace desktop {

class HelpKey : public QObject
{
    Q_OBJECT
public:
    explicit HelpKey(QObject *parent);

Q_SIGNALS:
    // The object names of the windows around the focus, the innermost first. A message box is followed by the child
    // window that stands active behind it.
    void pressed(const QStringList &windows);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace desktop
