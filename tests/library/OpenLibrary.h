// The open document library, driven by mouse and keyboard, over a data file of the test's own.
#pragma once

#include "library/frmDocumentExp.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Lines.h"

#include <QLineEdit>

class OpenLibrary
{
public:
    enum class Mode { Manager, Browser };
    explicit OpenLibrary(Mode mode = Mode::Manager, const QString &person = {})
    {
        if (mode == Mode::Browser) {
            m_window.setCaption(QStringLiteral("Resource Manager Browser"));
            m_window.PersonalInformationId = person;
        } else {
            m_window.adminFunction = true;
        }
        m_window.Show();
        m_window.activateWindow();
    }

    frmDocumentExp &window() { return m_window; }
    desktop::TreeView &tree() { return *child<desktop::TreeView>(m_window, "TreClassView"); }
    desktop::ListView &list() { return *child<desktop::ListView>(m_window, "LstStudenInformation"); }
    QAction &item(const char *name) { return *child<QAction>(m_window, name); }
    bool isEnabled(const char *name) { return item(name).isEnabled(); }
    // Chooses an item of the bar, whose menu opens for that.
    void choose(const char *name)
    {
        Q_EMIT qobject_cast<QMenu *>(item(name).parent())->aboutToShow();
        item(name).trigger();
    }

    void select(int index) { tree().setCurrentItem(&tree().Nodes(index)); }
    void press(int index, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(tree().viewport(), button, {}, tree().visualItemRect(&tree().Nodes(index)).center());
    }
    void doubleClickDocument(int row) { doubleClick(list(), row); }
    // The open editor of a label, null without one.
    QLineEdit *editor() { return tree().findChild<QLineEdit *>(QStringLiteral("TreClassView.LabelEdit")); }
    // Opens the editor on the selected node, types and confirms.
    void rename(const QString &label)
    {
        QTest::keyClick(&tree(), Qt::Key_F2);
        editor()->setText(label);
        QTest::keyClick(editor(), Qt::Key_Return);
    }

    // Every node as "2 Bylaws under 1".
    QStringList nodes()
    {
        QStringList all;
        for (int index = 1; index <= tree().Nodes.Count(); ++index) {
            const desktop::Node &node = tree().Nodes(index);
            all << QStringLiteral("%1 %2 under %3")
                       .arg(QString::number(node.Index()), node.Text(),
                            QString::number(node.Parent() ? node.Parent()->Index() : 0));
        }
        return all;
    }
    QStringList documents() { return lines(list()); }

private:
    frmDocumentExp m_window;
};
