#include "platform/desktop/Mnemonics.h"

#include "platform/desktop/MdiForm.h"

#include <QAbstractButton>
#include <QHash>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <iterator>
#include <vector>

namespace desktop {

namespace {

// What can have a letter, and how it gets one.
struct Bearer
{
    QString caption;
    QChar letter; // null while it has none
    std::function<void(QChar letter)> take;
    bool givesWay = true; // to one that would go without; a button keeps the letter that people guess
};

constexpr QChar letterMark = u'&';

QChar letterOf(const QKeySequence &key)
{
    const bool withAlt = key.count() == 1 && key[0].keyboardModifiers() == Qt::AltModifier;
    return withAlt ? QChar(char16_t(key[0].key())) : QChar();
}

QKeySequence keyOf(QChar letter)
{
    return letter.isNull() ? QKeySequence() : QKeySequence(Qt::ALT | Qt::Key(letter.unicode()));
}

bool beginsAWord(const QString &text, qsizetype place)
{
    return place == 0 || !text[place - 1].isLetterOrNumber();
}

// Where the letter stands, at the beginning of a word if it can; -1 where it does not stand at all.
qsizetype placeOf(const QString &text, QChar letter)
{
    for (const bool anywhere : {false, true}) {
        for (qsizetype place = 0; place < text.size(); ++place) {
            if (text[place].toUpper() == letter && (anywhere || beginsAWord(text, place)))
                return place;
        }
    }
    return -1;
}

QString marked(QString text, QChar letter)
{
    const qsizetype place = letter.isNull() ? -1 : placeOf(text, letter);
    return place < 0 ? text : text.insert(place, letterMark);
}

// The text without the mark of its letter; doubled marks stay, for they stand for one that is shown.
QString unmarked(QString text)
{
    for (qsizetype place = 0; place + 1 < text.size(); ++place) {
        if (text[place] != letterMark)
            continue;
        if (text[place + 1] != letterMark)
            return text.remove(place, 1);
        ++place;
    }
    return text;
}

enum class Among { FirstLetter, FirstLettersOfWords, AllLetters };

// Those that the caption could have. Letters of other scripts are the keyboard's own.
QList<QChar> lettersFor(const QString &caption, Among among)
{
    QList<QChar> letters;
    const qsizetype end = among == Among::FirstLetter ? qMin<qsizetype>(1, caption.size()) : caption.size();
    for (qsizetype place = 0; place < end; ++place) {
        if (caption[place].isLetterOrNumber() && (among == Among::AllLetters || beginsAWord(caption, place)))
            letters << caption[place].toUpper();
    }
    return letters;
}

// Who has which letter.
class Dealing
{
public:
    explicit Dealing(const QSet<QChar> &reserved)
    {
        for (const QChar letter : reserved)
            m_owners.insert(letter, nullptr);
    }

    void deal(std::vector<Bearer> &bearers)
    {
        std::vector<Bearer *> asking;
        for (Bearer &bearer : bearers) {
            if (bearer.letter.isNull() || m_owners.contains(bearer.letter))
                asking.push_back(&bearer);
            else
                m_owners.insert(bearer.letter, nullptr);
        }
        std::vector<Bearer *> waiting = asking;
        for (const Among among : {Among::FirstLetter, Among::FirstLettersOfWords, Among::AllLetters})
            std::erase_if(waiting, [this, among](Bearer *bearer) { return findFree(*bearer, among); });
        for (Bearer *bearer : waiting) {
            QSet<QChar> asked;
            makeRoom(*bearer, asked);
        }
        for (Bearer *bearer : asking) {
            if (const QChar letter = m_owners.key(bearer); letter != bearer->letter)
                bearer->take(letter);
        }
    }

private:
    bool findFree(Bearer &bearer, Among among)
    {
        for (const QChar letter : lettersFor(bearer.caption, among)) {
            if (!m_owners.contains(letter)) {
                m_owners.insert(letter, &bearer);
                return true;
            }
        }
        return false;
    }

    // Takes a letter from somebody who can have another one instead.
    bool makeRoom(Bearer &bearer, QSet<QChar> &asked)
    {
        for (const QChar letter : lettersFor(bearer.caption, Among::AllLetters)) {
            if (asked.contains(letter))
                continue;
            asked.insert(letter);
            Bearer *owner = m_owners.value(letter);
            if (m_owners.contains(letter) && (!owner || !owner->givesWay || !makeRoom(*owner, asked)))
                continue;
            m_owners.insert(letter, &bearer);
            return true;
        }
        return false;
    }

    QHash<QChar, Bearer *> m_owners; // null: reserved, or somebody's from before, and not to be taken away
};

template <class Owner> Bearer bearerOf(Owner &owner, const QString &text, void (Owner::*setText)(const QString &))
{
    return {captionOf(text), letterOf(QKeySequence::mnemonic(text)),
            [&owner, text, setText](QChar letter) { (owner.*setText)(marked(unmarked(text), letter)); }};
}

Bearer bearerOf(QAbstractButton &button)
{
    return {button.text(), letterOf(button.shortcut()),
            [&button](QChar letter) {
                button.setShortcut(keyOf(letter));
                button.update();
            },
            false};
}

Bearer bearerOf(QTabBar &bar, int tab)
{
    const QString text = bar.tabText(tab);
    return {captionOf(text), letterOf(QKeySequence::mnemonic(text)),
            [&bar, tab, text](QChar letter) { bar.setTabText(tab, marked(unmarked(text), letter)); }};
}

std::vector<Bearer> bearersOf(const QList<QAction *> &actions)
{
    std::vector<Bearer> bearers;
    for (QAction *action : actions) {
        if (action->isVisible() && !action->isSeparator())
            bearers.push_back(bearerOf(*action, action->text(), &QAction::setText));
    }
    return bearers;
}

QSet<QChar> lettersOf(const QMenuBar &bar)
{
    QSet<QChar> letters;
    for (const Bearer &menu : bearersOf(bar.actions()))
        letters << menu.letter;
    return letters;
}

} // namespace

// Bars and buttons first, for they have one word each.
void dealMnemonics(QWidget &window)
{
    std::vector<Bearer> bearers;
    for (const QMenuBar *bar : window.findChildren<QMenuBar *>())
        std::ranges::move(bearersOf(bar->actions()), std::back_inserter(bearers));
    for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        if (button->isVisibleTo(&window) && !button->text().isEmpty() && !qobject_cast<QToolButton *>(button))
            bearers.push_back(bearerOf(*button));
    }
    for (QTabBar *bar : window.findChildren<QTabBar *>()) {
        for (int tab = 0; bar->isVisibleTo(&window) && tab < bar->count(); ++tab)
            bearers.push_back(bearerOf(*bar, tab));
    }
    for (QLabel *label : window.findChildren<QLabel *>()) {
        if (label->isVisibleTo(&window) && label->buddy())
            bearers.push_back(bearerOf(*label, label->text(), &QLabel::setText));
    }
    const MdiForm *frame = MdiForm::frame();
    Dealing(frame && frame->isAncestorOf(&window) ? lettersOf(*frame->menuBar()) : QSet<QChar>()).deal(bearers);
}

void dealMnemonics(QMenu &menu)
{
    std::vector<Bearer> items = bearersOf(menu.actions());
    Dealing({}).deal(items);
}

void dealMnemonics(QMenuBar &bar)
{
    std::vector<Bearer> menus = bearersOf(bar.actions());
    Dealing({}).deal(menus);
}

QString withMnemonic(const QString &text, const QKeySequence &shortcut)
{
    return QKeySequence::mnemonic(text).isEmpty() ? marked(text, letterOf(shortcut)) : text;
}

QString captionOf(const QString &text)
{
    return unmarked(text).replace(QLatin1String("&&"), QLatin1String("&"));
}

} // namespace desktop
