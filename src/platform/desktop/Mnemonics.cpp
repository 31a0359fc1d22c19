#include "platform/desktop/Mnemonics.h"

#include "platform/desktop/MdiForm.h"
#include "platform/runtime/ErrorHandling.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <vector>

namespace desktop {

namespace {

enum class Kind { Button, TabOrMenu, Label };

// What can have a letter, and how it gets one.
struct Bearer
{
    Kind kind;
    QString caption;
    QChar letter; // null while it has none
    std::function<void(QChar letter)> take;
    bool isAsking = false; // in this dealing
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

// The letters that the caption can have. Those of any script count: who reads the caption has a keyboard for it.
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
    Dealing(const std::set<QChar> &reserved, DealtLetters &before) : m_before(before)
    {
        for (const QChar letter : reserved)
            m_owners[letter] = nullptr;
    }

    void deal(std::vector<Bearer> &bearers)
    {
        std::vector<Bearer *> asking;
        for (Bearer &bearer : bearers) {
            bearer.isAsking = bearer.letter.isNull() || !m_owners.emplace(bearer.letter, &bearer).second;
            if (bearer.isAsking)
                asking.push_back(&bearer);
        }
        std::erase_if(asking, [this](Bearer *bearer) { return findItsOwn(*bearer); });
        findFree(asking, lettersOfTheAbsent(bearers));
        std::erase_if(asking, [this](const Bearer *bearer) { return isLabelFromBefore(*bearer); });
        findFree(asking, {});
        for (Bearer *bearer : asking) {
            std::set<QChar> asked;
            makeRoom(*bearer, asked);
        }
        for (Bearer &bearer : bearers)
            handOut(bearer);
    }

private:
    // Null when it has none.
    QChar letterWith(const Bearer &bearer) const
    {
        const auto owned = std::ranges::find(m_owners, &bearer, [](const auto &each) { return each.second; });
        return owned == m_owners.end() ? QChar() : owned->first;
    }

    void handOut(Bearer &bearer)
    {
        const QChar letter = letterWith(bearer);
        if (letter != bearer.letter)
            bearer.take(letter);
        m_before[bearer.caption] = {letter, bearer.kind != Kind::Label};
    }

    // A label that has had no letter so far goes on without: one given to it now might have to be taken away again,
    // while it shows, for a button or tab that comes back.
    bool isLabelFromBefore(const Bearer &bearer) const
    {
        return bearer.kind == Kind::Label && m_before.contains(bearer.caption);
    }

    std::set<QChar> lettersOfTheAbsent(const std::vector<Bearer> &present) const
    {
        std::set<QChar> letters;
        for (const auto &[caption, dealt] : m_before) {
            if (dealt.isKept && std::ranges::find(present, caption, &Bearer::caption) == present.end())
                letters.insert(dealt.letter);
        }
        return letters;
    }

    bool findItsOwn(Bearer &bearer)
    {
        const auto dealt = m_before.find(bearer.caption);
        return dealt != m_before.end() && !dealt->second.letter.isNull() &&
               m_owners.emplace(dealt->second.letter, &bearer).second;
    }

    // Leaves those that found none.
    void findFree(std::vector<Bearer *> &asking, const std::set<QChar> &without)
    {
        for (const Among among : {Among::FirstLetter, Among::FirstLettersOfWords, Among::AllLetters})
            std::erase_if(asking, [&](Bearer *bearer) { return findFree(*bearer, among, without); });
    }

    bool findFree(Bearer &bearer, Among among, const std::set<QChar> &without)
    {
        for (const QChar letter : lettersFor(bearer.caption, among)) {
            if (!without.contains(letter) && m_owners.emplace(letter, &bearer).second)
                return true;
        }
        return false;
    }

    // A button does not give up the first letter of one of its words: people try that one first.
    static bool givesWay(const Bearer &owner, QChar letter, const Bearer &asking)
    {
        if (!owner.isAsking)
            return owner.kind == Kind::Label && asking.kind != Kind::Label;
        return owner.kind != Kind::Button || !lettersFor(owner.caption, Among::FirstLettersOfWords).contains(letter);
    }

    // Takes a letter from somebody who can have another one instead.
    bool makeRoom(Bearer &bearer, std::set<QChar> &asked)
    {
        for (const QChar letter : lettersFor(bearer.caption, Among::AllLetters)) {
            if (!asked.insert(letter).second)
                continue;
            const auto taken = m_owners.find(letter);
            Bearer *owner = taken == m_owners.end() ? nullptr : taken->second;
            const bool isMenus = taken != m_owners.end() && !owner;
            if (isMenus || (owner && (!givesWay(*owner, letter, bearer) || !makeRoom(*owner, asked))))
                continue;
            m_owners[letter] = &bearer;
            return true;
        }
        return false;
    }

    DealtLetters &m_before;
    // Null: reserved for a menu. A std::map raises std::bad_alloc when memory is refused; Qt's hash ends the process.
    std::map<QChar, Bearer *> m_owners;
};

template <class Owner>
Bearer bearerOf(Kind kind, Owner &owner, const QString &text, void (Owner::*setText)(const QString &))
{
    return {kind, captionOf(text), letterOf(QKeySequence::mnemonic(text)),
            [&owner, text, setText](QChar letter) { (owner.*setText)(marked(unmarked(text), letter)); }};
}

Bearer bearerOf(QAbstractButton &button)
{
    return {Kind::Button, captionOf(button.text()), letterOf(button.shortcut()), [&button](QChar letter) {
                button.setShortcut(keyOf(letter));
                button.update();
            }};
}

Bearer bearerOf(QTabBar &bar, int tab)
{
    const QString text = bar.tabText(tab);
    return {Kind::TabOrMenu, captionOf(text), letterOf(QKeySequence::mnemonic(text)),
            [&bar, tab, text](QChar letter) { bar.setTabText(tab, marked(unmarked(text), letter)); }};
}

std::vector<Bearer> bearersOf(const QList<QAction *> &actions)
{
    std::vector<Bearer> bearers;
    for (QAction *action : actions) {
        if (action->isVisible() && !action->isSeparator())
            bearers.push_back(bearerOf(Kind::TabOrMenu, *action, action->text(), &QAction::setText));
    }
    return bearers;
}

std::set<QChar> lettersOf(const QMenuBar &bar)
{
    std::set<QChar> letters;
    for (const Bearer &menu : bearersOf(bar.actions()))
        letters.insert(menu.letter);
    return letters;
}

// Bars and buttons first, for they have one word each.
std::vector<Bearer> bearersIn(const QWidget &window)
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
            bearers.push_back(bearerOf(Kind::Label, *label, label->text(), &QLabel::setText));
    }
    for (QGroupBox *frame : window.findChildren<QGroupBox *>()) {
        if (frame->isVisibleTo(&window) && frame->focusProxy())
            bearers.push_back(bearerOf(Kind::Label, *frame, frame->title(), &QGroupBox::setTitle));
    }
    return bearers;
}

// For the items of one menu, or the menus of one bar.
void dealAmong(const QWidget &items)
{
    runtime::everyStep([&items] {
        std::vector<Bearer> bearers = bearersOf(items.actions());
        DealtLetters before;
        Dealing({}, before).deal(bearers);
    });
}

} // namespace

void dealMnemonics(QWidget &window, DealtLetters &before)
{
    runtime::everyStep([&] {
        std::vector<Bearer> bearers = bearersIn(window);
        const MdiForm *frame = MdiForm::frame();
        const bool isInFrame = frame && frame->isAncestorOf(&window);
        Dealing(isInFrame ? lettersOf(*frame->menuBar()) : std::set<QChar>(), before).deal(bearers);
    });
}

void dealMnemonics(QMenu &menu)
{
    dealAmong(menu);
}

void dealMnemonics(QMenuBar &bar)
{
    dealAmong(bar);
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
