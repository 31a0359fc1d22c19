// Work that blocks the windows until it is done: the wait pointer stands for as long, and the frame's status bar says
// how far it is, as "Searching 120 of 1,000".
//
// One object stands for the work, from its beginning to its end or failure. The text is a message over the bar's
// panels, whose own texts stay. It is painted at once and nothing else is handled meanwhile, so that no click reaches a
// window whose handler is still running. Painting is rare, so that it takes well under a hundredth of the work; short
// work gets none.
#pragma once

#include <QString>

#include <chrono>

namespace desktop {

class LongWork
{
public:
    // What is done, in front of the numbers, and how many pieces there are. Work of one piece needs neither.
    explicit LongWork(const QString &what = {}, qsizetype total = 0);
    ~LongWork();
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;

    // The work is at this piece, counted from 1. Shown unless the last text came only just before.
    void at(qsizetype piece);
    // For a piece that takes long by itself: shown in any case.
    void showAt(qsizetype piece);

    // How long a text stands at least, and how long the work takes before the first one. A test sets it to 0.
    static inline std::chrono::milliseconds interval{200};

private:
    QString m_what;
    qsizetype m_total;
    std::chrono::steady_clock::time_point m_next; // when the next text may come
    bool m_shown = false;
};

} // namespace desktop
