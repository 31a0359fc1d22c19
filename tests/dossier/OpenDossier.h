// A dossier opened as the explorer opens it, and what its tests do again and again.
#pragma once

#include "dossier/DisplayMembers.h"
#include "support/Lines.h"
#include "support/StoreTest.h"

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

private:
    DisplayMembers m_window;
};

inline void select(desktop::ListView &list, int index)
{
    list.setCurrentItem(&list.ListItems(index));
}
