// Answers the message boxes and file dialogs that a test makes the program show, and catches what would have been
// reported as unhandled.
#pragma once

#include "platform/desktop/ErrorReport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaEnum>
#include <QTest>
#include <QTimer>

#include <functional>
#include <optional>

// A box as it stood on the screen.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;

    // "Tolmark: Invalid Interest (Critical, Ok)", "Tolmark: Do you want to proceed? (NoIcon, Yes|No)".
    QString whole() const
    {
        const QByteArray kind = QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(icon);
        QByteArray names = QMetaEnum::fromType<QMessageBox::StandardButtons>().valueToKeys(buttons);
        names.replace("|FirstButton", ""); // Qt's second name of "Ok"
        return QStringLiteral("%1: %2 (%3, %4)").arg(title, text, QLatin1String(kind), QLatin1String(names));
    }
};

// Presses the planned buttons on the boxes that come up, in their order. A box that nobody planned is closed and fails
// the test, and so does a plan that no box used.
class BoxAnswers : public QObject
{
public:
    explicit BoxAnswers(QList<QMessageBox::StandardButton> plan = {}) : m_plan(std::move(plan))
    {
        m_timer.callOnTimeout(this, [this] { look(); });
        m_timer.start(1);
    }
    ~BoxAnswers() override
    {
        if (!m_plan.isEmpty())
            QTest::qFail("a planned message box never came", __FILE__, __LINE__);
    }

    QList<SeenBox> seen;
    // Called while a box stands, before it is answered.
    std::function<void()> atBox;

private:
    void look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        seen << SeenBox{box->windowTitle(), box->text(), box->icon(), box->standardButtons()};
        if (atBox)
            atBox();
        if (m_plan.isEmpty()) {
            QTest::qFail(qPrintable(QStringLiteral("unexpected message box: ") + box->text()), __FILE__, __LINE__);
            box->done(QMessageBox::Cancel);
            return;
        }
        QAbstractButton *planned = box->button(m_plan.takeFirst());
        if (!planned)
            qFatal("this message box has no such button: %s", qPrintable(box->text()));
        QTest::mouseClick(planned, Qt::LeftButton);
    }

    QList<QMessageBox::StandardButton> m_plan;
    QTimer m_timer;
};

// Types the planned paths into the file dialogs that come up, in their order; an empty path cancels. A dialog that
// nobody planned, or a plan that no dialog used, fails the test.
class FileAnswers : public QObject
{
public:
    explicit FileAnswers(QStringList plan) : m_plan(std::move(plan))
    {
        m_timer.callOnTimeout(this, [this] { look(); });
        m_timer.start(1);
    }
    ~FileAnswers() override
    {
        if (!m_plan.isEmpty())
            QTest::qFail("a planned file dialog never came", __FILE__, __LINE__);
    }

    // Of the dialog seen last.
    QString title;
    QString name;
    QStringList filters;

private:
    void look()
    {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        title = dialog->windowTitle();
        name = edit->text();
        filters = dialog->nameFilters();
        if (m_plan.isEmpty()) {
            QTest::qFail("unexpected file dialog", __FILE__, __LINE__);
            dialog->reject();
        } else if (const QString path = m_plan.takeFirst(); path.isEmpty()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            edit->setText(path);
            QTest::keyClick(edit, Qt::Key_Return);
        }
    }

    QStringList m_plan;
    QTimer m_timer;
};

// Keeps the errors that no handler held back. The test looks at them; one left over fails it.
class CaughtErrors
{
public:
    CaughtErrors()
    {
        desktop::setErrorReport([this](const runtime::RuntimeError &error) { m_errors << error; });
    }
    ~CaughtErrors()
    {
        desktop::setErrorReport({});
        for (const runtime::RuntimeError &error : m_errors)
            QTest::qFail(error.what(), __FILE__, __LINE__);
    }

    // The first error that is not taken yet; its number, 0 when there is none.
    int takeNumber() { return m_errors.isEmpty() ? 0 : m_errors.takeFirst().number(); }

private:
    QList<runtime::RuntimeError> m_errors;
};

// The one child of that name; a missing one ends the program with the names that there are. By a cast,
// since findChild() cannot tell classes without Q_OBJECT apart.
template <class Widget = QWidget> Widget *child(const QObject &parent, const char *name)
{
    for (QObject *each : parent.findChildren<QObject *>(QString::fromLatin1(name)))
        if (auto *found = dynamic_cast<Widget *>(each))
            return found;
    QStringList names;
    for (const QObject *each : parent.findChildren<QObject *>())
        names << each->objectName();
    names.removeAll(QString());
    qFatal("no child %s among %s", name, qPrintable(names.join(QLatin1Char(' '))));
}
