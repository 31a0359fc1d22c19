// The frame window: menus, bars and an area in which the child windows live. There is one at a time.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/desktop/ErrorReport.h"

#include <QList>
#include <QMainWindow>
#include <QMdiArea>

class QActionGroup;
class QMdiSubWindow;
class QMenu;

namespace desktop {

class Form;

class MdiForm : public QMainWindow
{
    Q_OBJECT
public:
    explicit MdiForm(QAnyStringView className);
    ~MdiForm() override;

    // The one frame that stands; null without one.
    static MdiForm *frame();

    QString Caption() const { return titleOf(*this); }
    void setCaption(const QString &caption) { setTitle(*this, caption); }

    // Runs the load handler at the first call, then shows the frame.
    void Show();
    bool isLoaded() const { return m_loaded; }

    // Every control of the frame, in the order of the design.
    QList<Control *> Controls();
    // Twips, with the frame's border and title bar.
    double Left() const;
    double Top() const;
    double Width() const;
    double Height() const;
    void Move(double left, double top, double width, double height);

    void showChild(Form &form);
    // A child has closed: the one that was active before it comes back, unless another one is active.
    void childClosed();
    // Undoes the maximising of a child.
    void restoreChild(QMdiSubWindow &host);
    QMdiArea &area();
    // Scrolls that part of a child's control into view, where the child is larger than the frame. Without a frame, and
    // for other windows, it does nothing.
    static void bringIntoView(const QWidget &control, const QRect &part);
    // A shared window that is closed stays in the area, hidden.
    QList<QMdiSubWindow *> openChildren(QMdiArea::WindowOrder order) const;

    // No menu that hides and shows the bars: they always show.
    QMenu *createPopupMenu() override { return nullptr; }

protected:
    virtual void Form_Load() {}
    // A resize that the window system reports.
    virtual void Form_Resize() {}
    virtual void Form_Unload() {}

    // The picture behind the child windows.
    void setBackground(const QString &file);
    // Keeps the list of open child windows at the end of the menu, behind whatever else stands in it.
    void setWindowsMenu(QMenu *menu);

    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void listWindows(QMenu *menu, QActionGroup *listed);
    // Runs from the event loop, once the focus has moved: a new child gets it before it has its place in the area.
    void showFocus();
    // Moves the child so that it lies within the area, as far as it fits.
    void bringIn(QMdiSubWindow &host);

    class Area;
    Area *m_area;
    bool m_loaded = false;
};

} // namespace desktop
