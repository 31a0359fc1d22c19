// Ends the process at the first idle moment after a view has been painted: what a start takes can be measured from
// outside then.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <cstdlib>

class EndWhenPainted : public QObject
{
public:
    // The view is found by its objectName.
    explicit EndWhenPainted(QString view) : m_view(std::move(view)) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->parent() && watched->parent()->objectName() == m_view)
            QTimer::singleShot(0, this, [] { std::_Exit(EXIT_SUCCESS); });
        return QObject::eventFilter(watched, event);
    }

private:
    QString m_view;
};
