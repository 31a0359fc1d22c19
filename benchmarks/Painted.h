// Ends the process at the first idle moment after a view has been painted: what a start takes can be measured from
// outside then, or by what is done last.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <cstdlib>
#include <functional>

class EndWhenPainted : public QObject
{
public:
    // The view is found by its objectName.
    explicit EndWhenPainted(QString view, std::function<void()> last = {})
        : m_view(std::move(view)), m_last(std::move(last))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->parent() && watched->parent()->objectName() == m_view)
            QTimer::singleShot(0, this, [this] { end(); });
        return QObject::eventFilter(watched, event);
    }

private:
    void end()
    {
        if (m_last)
            m_last();
        std::_Exit(EXIT_SUCCESS);
    }

    QString m_view;
    std::function<void()> m_last;
};
