// The keys that lead round in a frame and from one of its child windows to another.
//
// F6 goes from part to part: the first menu, the frame's toolbars, and the parts of the active child, which are its
// toolbars, each tree or list that stands directly in it, and all else together. Shift with F6 goes back.
// Ctrl with F6, with Shift too, goes to another child; Ctrl with F4 or W closes the active one, Alt with the minus key
// opens its menu.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>

class QWidget;

namespace desktop {

class MdiForm;

class FrameKeys : public QObject
{
public:
    // Owned by the frame.
    explicit FrameKeys(MdiForm &frame);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // A part is told by the widget that holds it.
    struct Part
    {
        QWidget *holder;
        QWidget *entry; // where the focus goes
    };
    template <class Action> void add(const QKeySequence &keys, Action action);
    static QList<Part> partsOf(QWidget *window);
    QList<Part> parts() const;
    void goOnFrom(const QWidget *focus, int step);
    void openFirstMenu();
    void goToChild(int step);

    MdiForm &m_frame;
};

} // namespace desktop
