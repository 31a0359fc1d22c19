// A frame whose status bar keeps what it says of long work. Each text comes, however short the work is.
#pragma once

#include "platform/desktop/LongWork.h"
#include "platform/desktop/MdiForm.h"
#include "platform/runtime/Regional.h"

#include <QApplication>
#include <QStatusBar>

#include <utility>

class ShownWork
{
public:
    ShownWork()
    {
        QObject::connect(frame.statusBar(), &QStatusBar::messageChanged, &frame, [this](const QString &text) {
            const QCursor *pointer = QApplication::overrideCursor();
            if (pointer && pointer->shape() == Qt::WaitCursor)
                m_texts << runtime::plainlyTyped(text);
        });
        desktop::LongWork::interval = {};
    }
    ~ShownWork() { desktop::LongWork::interval = m_interval; }
    ShownWork(const ShownWork &) = delete;
    ShownWork &operator=(const ShownWork &) = delete;

    desktop::MdiForm frame{u"Frame"};

    // What has been said since the last call while the wait pointer stood, with the digits 0 to 9 in every region, and
    // "still shown" when the pointer or the text has not gone.
    QStringList takeTexts()
    {
        QStringList texts = std::exchange(m_texts, {});
        if (QApplication::overrideCursor() || !frame.statusBar()->currentMessage().isEmpty())
            texts << QStringLiteral("still shown");
        return texts;
    }

private:
    QStringList m_texts;
    std::chrono::milliseconds m_interval = desktop::LongWork::interval;
};
