// A status bar of panels that keep themselves up to date: keyboard toggles, time and date.
#pragma once

#include "platform/desktop/Control.h"

#include <QLabel>
#include <QStatusBar>

#include <vector>

namespace desktop {

class StatusBar;

class Panel : public QLabel
{
    Q_OBJECT
public:
    enum class Style { Text, CapsLock, NumLock, Insert, Time, Date };
    Panel(StatusBar *bar, Style style, int number);

    // Twips.
    void setPanelWidth(double width);

private:
    void refresh();

    Style m_style;
};

class StatusBar : public DockedBar<QStatusBar>
{
public:
    StatusBar(QWidget *parent, QAnyStringView name);

    // The panels share the width evenly until one is given its own.
    void addPanel(Panel::Style style);
    const std::vector<Panel *> &Panels() const { return m_panels; }
    // Caps Lock, Num Lock, Insert, time and date.
    void addKeyboardAndClockPanels();

private:
    std::vector<Panel *> m_panels;
};

} // namespace desktop
