// A dossier opened as the explorer opens it, and what its tests do again and again.
#pragma once

#include "dossier/DisplayMembers.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

class OpenDossier
{
public:
    explicit OpenDossier(qint16 member = 1)
    {
        m_window.MemberId = member;
        m_window.setCaption(QStringLiteral("Tolmark Member Information : Ann B Cole"));
        m_window.setMemberIdentification(runtime::Value(member));
        m_window.resize(900, 700);
        m_window.Show();
    }

    DisplayMembers *operator->() { return &m_window; }
    DisplayMembers &operator*() { return m_window; }

    desktop::TextBox &box(const char *name) { return *child<desktop::TextBox>(m_window, name); }
    desktop::ListBox &states(const char *name) { return *child<desktop::ListBox>(m_window, name); }
    desktop::ListView &list(const char *name) { return *child<desktop::ListView>(m_window, name); }
    void click(const char *button) { child<QPushButton>(m_window, button)->click(); }
    // Chooses an item of a pop-up, as a click on it does.
    void choose(const char *item) { child<QAction>(m_window, item)->trigger(); }
    void turnTo(QWidget *tab) { m_window.SSTab1->setCurrentWidget(tab->parentWidget()); }

    CaughtErrors errors;

private:
    DisplayMembers m_window;
};

// The texts of a line, as many as there are columns, joined by "|".
inline QString line(const desktop::ListView &list, int index)
{
    QStringList texts;
    for (int column = 0; column < list.ColumnHeaders.Count(); ++column)
        texts << list.ListItems(index).SubItems(column);
    return texts.join(QLatin1Char('|'));
}

inline QStringList lines(const desktop::ListView &list)
{
    QStringList all;
    for (int index = 1; index <= list.ListItems.Count(); ++index)
        all << line(list, index);
    return all;
}

inline void select(desktop::ListView &list, int index)
{
    list.setCurrentItem(&list.ListItems(index));
}
