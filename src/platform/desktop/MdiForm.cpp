#include "platform/desktop/MdiForm.h"

#include "platform/desktop/Form.h"
#include "platform/desktop/FrameKeys.h"
#include "platform/desktop/MenuBar.h"
#include "platform/desktop/Twips.h"

#include <QAbstractItemView>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

MdiForm *&theFrame()
{
    static MdiForm *frame = nullptr;
    return frame;
}

// What a child window's border and title bar take; Qt's own layout of the window knows it only once it has been shown.
QMargins borders(const QWidget &child)
{
    const int frame = child.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &child);
    const int title = child.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &child);
    return {frame, title, frame, frame};
}

// A child's border and title bar. QMdiSubWindow stores why the focus came to it last. Once that is the Tab key, which
// is also the reason when a page that has the focus is hidden, each later activation moves the focus one stop further.
class ChildWindow : public QMdiSubWindow
{
protected:
    void focusOutEvent(QFocusEvent *event) override
    {
        QMdiSubWindow::focusOutEvent(event);
        QFocusEvent asByActivation(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QMdiSubWindow::focusInEvent(&asByActivation);
    }
};

// How far to scroll so that `from` to `to` lies within `seenFrom` to `seenTo`, or at least begins there.
int wayInto(int from, int to, int seenFrom, int seenTo)
{
    if (from < seenFrom)
        return from - seenFrom;
    return to > seenTo ? qMin(to - seenTo, from - seenFrom) : 0;
}

} // namespace

// Draws the picture in the middle of the area, behind the child windows.
class MdiForm::Area : public QMdiArea
{
public:
    using QMdiArea::QMdiArea;
    QSvgRenderer picture;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(viewport());
        painter.fillRect(event->rect(), palette().brush(QPalette::Window).color().darker(112));
        if (!picture.isValid())
            return;
        QSizeF size = picture.defaultSize();
        size.scale(viewport()->size() * 0.6, Qt::KeepAspectRatio);
        QRectF place({}, size);
        place.moveCenter(QRectF(viewport()->rect()).center());
        painter.setRenderHint(QPainter::Antialiasing);
        picture.render(&painter, place);
    }
};

MdiForm::MdiForm(QAnyStringView className) : m_area(new Area(this))
{
    setObjectName(className.toString());
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setActivationOrder(QMdiArea::ActivationHistoryOrder); // who opened a window comes back when it closes
    setCentralWidget(m_area);
    setMenuBar(new MenuBar(this));
    on(m_area, &QMdiArea::subWindowActivated, m_area, [](Area *, const QMdiSubWindow *host) {
        if (auto *form = host ? qobject_cast<Form *>(host->widget()) : nullptr)
            form->becomeActive();
    });
    connect(qApp, &QApplication::focusChanged, this, &MdiForm::showFocus, Qt::QueuedConnection);
    new FrameKeys(*this);
    theFrame() = this;
}

MdiForm::~MdiForm()
{
    theFrame() = nullptr;
}

QMdiArea &MdiForm::area()
{
    return *m_area;
}

MdiForm *MdiForm::frame()
{
    return theFrame();
}

void MdiForm::Show()
{
    if (!m_loaded) {
        m_loaded = true;
        Form_Load();
    }
    show();
}

QList<Control *> MdiForm::Controls()
{
    QList<Control *> controls;
    for (QWidget *child : findChildren<QWidget *>()) {
        const bool inChildWindow = m_area->isAncestorOf(child);
        if (auto *control = dynamic_cast<Control *>(child); control && !inChildWindow)
            controls << control;
    }
    return controls;
}

double MdiForm::Left() const
{
    return twips(frameGeometry().x());
}

double MdiForm::Top() const
{
    return twips(frameGeometry().y());
}

double MdiForm::Width() const
{
    return twips(frameGeometry().width());
}

double MdiForm::Height() const
{
    return twips(frameGeometry().height());
}

void MdiForm::Move(double left, double top, double width, double height)
{
    const QSize borders = frameGeometry().size() - size();
    move(pixels(left), pixels(top));
    resize(QSize(pixels(width), pixels(height)) - borders);
}

void MdiForm::bringIntoView(const QWidget &control, const QRect &part)
{
    QMdiArea *area = frame() ? &frame()->area() : nullptr;
    if (!area || !area->viewport()->isAncestorOf(&control))
        return;
    const QRect place(control.mapTo(area->viewport(), part.topLeft()), part.size());
    const QRect seen = area->viewport()->rect();
    const auto scroll = [](QScrollBar &bar, int way) { bar.setValue(bar.value() + way); };
    scroll(*area->horizontalScrollBar(), wayInto(place.left(), place.right(), seen.left(), seen.right()));
    scroll(*area->verticalScrollBar(), wayInto(place.top(), place.bottom(), seen.top(), seen.bottom()));
}

void MdiForm::showFocus()
{
    const QWidget *now = QApplication::focusWidget();
    if (auto *list = qobject_cast<const QAbstractItemView *>(now); list && list->currentIndex().isValid())
        bringIntoView(*list->viewport(), list->visualRect(list->currentIndex()));
    else if (now)
        bringIntoView(*now, now->rect());
}

void MdiForm::bringIn(QMdiSubWindow &host)
{
    const QSize room = m_area->viewport()->size() - host.size();
    host.move(qMax(0, qMin(host.x(), room.width())), qMax(0, qMin(host.y(), room.height())));
}

void MdiForm::restoreChild(QMdiSubWindow &host)
{
    host.showNormal();
    bringIn(host);
}

void MdiForm::showChild(Form &form)
{
    // Qt maximises the next active child where the active one is maximised; one that keeps its size must not be.
    if (QMdiSubWindow *active = m_area->activeSubWindow(); active && active->isMaximized() && form.keepsSize())
        active->showNormal();
    auto *host = qobject_cast<QMdiSubWindow *>(form.parentWidget());
    const QSize wanted = form.testAttribute(Qt::WA_Resized) ? form.size() : form.sizeHint();
    QSize content = wanted;
    if (form.layout()) // it fits itself to a smaller place
        content = content.boundedTo(m_area->viewport()->size().shrunkBy(borders(form)));
    content = content.expandedTo(form.minimumSizeHint());
    if (!host) {
        const bool placed = form.testAttribute(Qt::WA_Moved);
        const QPoint middle = form.geometry().center(); // on the screen
        QWidget *start = form.focusWidget();            // which the new parent does not know
        host = new ChildWindow;
        host->setWidget(&form);
        m_area->addSubWindow(host);
        connect(host, &QObject::destroyed, this, &MdiForm::childClosed, Qt::QueuedConnection);
        if (start)
            start->setFocus();
        host->setAttribute(Qt::WA_DeleteOnClose, form.testAttribute(Qt::WA_DeleteOnClose));
        for (QAction *action : host->systemMenu()->actions())
            action->setShortcuts({}); // the frame has these keys, whether the window is maximised or not
        host->resize(form.presetSize().value_or(content.grownBy(borders(*host))));
        form.show();
        host->show();
        // A window without a place of its own stays where the area has put it.
        if (placed)
            host->move(m_area->viewport()->mapFromGlobal(middle) - host->rect().center());
        bringIn(*host);
    }
    if (host->isMinimized())
        host->showNormal();
    form.show();
    host->show();
    m_area->setActiveSubWindow(host);
}

// Qt activates none when a window is hidden, nor when one is deleted while a hidden one was active before it.
void MdiForm::childClosed()
{
    if (const QMdiSubWindow *active = m_area->activeSubWindow(); active && !active->isHidden())
        return;
    const QList<QMdiSubWindow *> others = openChildren(QMdiArea::ActivationHistoryOrder);
    if (!others.isEmpty())
        m_area->setActiveSubWindow(others.constLast());
}

QList<QMdiSubWindow *> MdiForm::openChildren(QMdiArea::WindowOrder order) const
{
    QList<QMdiSubWindow *> windows = m_area->subWindowList(order);
    windows.removeIf([](const QMdiSubWindow *window) { return window->isHidden(); });
    return windows;
}

void MdiForm::setBackground(const QString &file)
{
    m_area->picture.load(file);
}

void MdiForm::setWindowsMenu(QMenu *menu)
{
    auto *listed = new QActionGroup(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, listed] { listWindows(menu, listed); });
}

void MdiForm::listWindows(QMenu *menu, QActionGroup *listed)
{
    qDeleteAll(listed->actions()); // of the opening before
    const auto add = [menu, listed](const QString &text) { return listed->addAction(menu->addAction(text)); };
    const QList<QMdiSubWindow *> windows = openChildren(QMdiArea::CreationOrder);
    for (qsizetype at = 0; at < windows.size(); ++at) {
        QMdiSubWindow *window = windows[at];
        QAction *action = add(u"&%1 %2"_s.arg(QString::number(at + 1), withoutMnemonic(titleOf(*window))));
        action->setCheckable(true);
        action->setChecked(window == m_area->activeSubWindow());
        connect(action, &QAction::triggered, window, [this, window] { m_area->setActiveSubWindow(window); });
    }
    if (windows.isEmpty())
        add(u"No window is open"_s)->setEnabled(false);
}

void MdiForm::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    guarded([this] { Form_Resize(); });
}

void MdiForm::closeEvent(QCloseEvent *event)
{
    m_area->closeAllSubWindows();
    if (!openChildren(QMdiArea::CreationOrder).isEmpty()) {
        event->ignore();
        return;
    }
    guarded([this] { Form_Unload(); });
    QMainWindow::closeEvent(event);
}

} // namespace desktop
