// A record window opened as its openers do it, driven by mouse and keyboard, over a data file of the test's own.
#pragma once

#include "dynamicforms/DisplayInformation.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Lines.h"

#include <QPointer>

class OpenRecord
{
public:
    explicit OpenRecord(qint16 person = 2, const QString &editMode = {}) : m_window(new DisplayInformation)
    {
        m_window->RecordId = person;
        m_window->EditMode = editMode;
        m_window->WindowTitle = QStringLiteral("Ashworth B. Helen");
        desktop::guarded([this] { m_window->Show(); });
        m_window->activateWindow();
    }
    ~OpenRecord() { delete m_window; }
    OpenRecord(const OpenRecord &) = delete;
    OpenRecord &operator=(const OpenRecord &) = delete;

    DisplayInformation *operator->() const { return m_window; }
    bool isOpen() const { return m_window && m_window->isVisible(); }

    QStringList tabs() const
    {
        QStringList captions;
        for (int tab = 1; tab <= m_window->TabStrip1->Count(); ++tab)
            captions << m_window->TabStrip1->Caption(tab);
        return captions;
    }
    void turnTo(const QString &caption) const
    {
        const QRect tab = m_window->TabStrip1->tabRect(int(tabs().indexOf(caption)));
        QTest::mouseClick(m_window->TabStrip1, Qt::LeftButton, {}, tab.center());
    }
    static void press(desktop::CommandButton *button) { QTest::mouseClick(button, Qt::LeftButton); }
    // The captions of the buttons, "-" for one that cannot be seen.
    QString buttons() const
    {
        QStringList captions;
        for (const auto *button : {m_window->cmdEdit, m_window->cmdDelete, m_window->cmdCancel, m_window->cmdClose})
            captions << (button->isVisible() ? button->text() : QStringLiteral("-"));
        return captions.join(QLatin1Char(' '));
    }

    // By the field's place on the page, from 1.
    desktop::TextBox *box(int field) const
    {
        return child<desktop::TextBox>(*m_window->Frame1, qPrintable(QStringLiteral("Text1(%1)").arg(field)));
    }
    // Of the boxes that can be seen.
    QString texts() const
    {
        QStringList all;
        for (const QLineEdit *each : m_window->Frame1->findChildren<QLineEdit *>()) {
            if (each->isVisible())
                all << each->text();
        }
        return all.join(QLatin1Char('|'));
    }
    // As the user does; a locked box takes nothing.
    void type(int field, const QString &text) const
    {
        QTest::keySequence(box(field), QKeySequence::SelectAll);
        QTest::keyClicks(box(field), text);
    }

    QStringList lines() const { return ::lines(*m_window->ListView1); }

private:
    QPointer<DisplayInformation> m_window;
};

// The open window of that kind, null without one.
template <class Window> std::unique_ptr<Window> openedWindow()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<Window *>(widget); window && window->isVisible())
            return std::unique_ptr<Window>(window);
    }
    return {};
}
