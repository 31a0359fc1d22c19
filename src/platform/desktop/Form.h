// A window: a child inside the frame, or one that stands alone.
//
// Its load handler runs once, at the first touch that loads it: Show, or setting its caption. Public fields set before
// are in place by then. Setting one of its controls loads nothing: who does that from outside calls Load first, so that
// the load handler does not wipe it out later. A failure of the load handler goes to whoever touched the window.
// Closing a child of the frame deletes it, unless it is shared: a shared one loads again at its next touch. A window
// that stands alone belongs to whoever made it.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Mnemonics.h"

#include <QSizeF>
#include <QWidget>

#include <memory>
#include <optional>

namespace desktop {

class Form : public QWidget
{
    Q_OBJECT
public:
    enum class Place { InFrame, Alone };
    // The objectName is the class name.
    Form(Place place, QAnyStringView className);

    QString Tag;

    QString Caption() const { return titleOf(*this); }
    void setCaption(const QString &caption);

    // Runs the load handler unless the window is loaded.
    void Load();
    bool isLoaded() const { return m_state == State::Loaded; }
    void Show();
    void Hide() { hide(); }
    // Closes the window, also before it has ever been shown.
    void Unload();
    // Told by whoever makes it the active window: the frame among its children, the desktop where it stands alone.
    void becomeActive();

    // Twips, with the window's border and title bar.
    double Width() const;
    double Height() const;
    void setSize(double width, double height);
    // The size that was set before the window came into the frame, in pixels.
    std::optional<QSize> presetSize() const { return m_presetSize; }
    // Twips, without border and title bar: the mouse makes a child in the frame no smaller.
    void setUsefulSize(double width, double height) { m_usefulSize = QSizeF(width, height); }
    bool keepsSize() const { return m_keptSize.has_value(); }
    QSize minimumSizeHint() const override;

protected:
    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    // The window has been shown as the active one, or has become it again.
    virtual void Form_Activate() {}
    // The caption that the design gives the window; it loads nothing.
    void setDesignCaption(const QString &caption) { setTitle(*this, caption); }
    void setShared() { m_shared = true; }
    // For the load handler: the window comes up in the middle of the screen.
    void centreOnScreen();
    // Twips, with border and title bar. At each resize the window takes this size again.
    void keepSize(double width, double height);
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    enum class State { Unloaded, Loading, Loaded };
    QWidget *outer() const;
    void takeKeptSize();
    // Puts the focus where work begins: into the first box, list or tree, unless the window has a place of its own.
    void focusFirstBox();

    Place m_place;
    State m_state = State::Unloaded;
    bool m_shared = false;
    std::optional<QSize> m_presetSize;
    std::optional<QSizeF> m_keptSize;   // twips
    std::optional<QSizeF> m_usefulSize; // twips
    DealtLetters m_letters;
};

// Makes a window, hands it what its opener sets, and shows it. A window whose load fails is gone again.
template <class Window, class Prepare> Window *showNew(Prepare &&prepare)
{
    auto window = std::make_unique<Window>();
    prepare(*window);
    window->Show();
    return window.release(); // a child of the frame: closing deletes it
}

template <class Window> Window *showNew()
{
    return showNew<Window>([](Window &) {});
}

} // namespace desktop
