// The plain controls: Qt's widgets with their given names, and the events that Qt lacks.
#pragma once

#include "platform/desktop/LineView.h"
#include "platform/desktop/Mnemonics.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTabWidget>

namespace desktop {

// A caption, shown as plain text. One that is clickable takes the focus too, so that the keyboard can click it by Space
// or Enter.
class Label : public ControlOf<QLabel>
{
    Q_OBJECT
public:
    Label(QWidget *parent, QAnyStringView name, const QString &caption = {});
    void setClickable();
    // A text that is too wide for its place ends with an ellipsis; it is the tool tip where none is set.
    void setElides() { m_elides = true; }

Q_SIGNALS:
    void Click();

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect textPlace() const;
    // The text without the mark of its letter, which only the label of a box has.
    QString caption() const;
    bool isElided() const;
    void paintElided();

    bool m_clickable = false;
    bool m_elides = false;
};

// One line of text of any length: what is loaded and left alone is given back as it was, with its line breaks too.
class TextBox : public ControlOf<QLineEdit>
{
public:
    TextBox(QWidget *parent, QAnyStringView name);
    // A long text shows its beginning, unless somebody is typing.
    void setText(const QString &text);
    // Shows a * for each character.
    void setMasked();
};

// Several lines with both scroll bars. Tab leaves the box, as it does everywhere in a window of many boxes.
//
// A text that was set and left alone is given back as it was. After an edit the stretches before and behind what has
// changed are; between them each line break is CR LF.
class MultilineTextBox : public ControlOf<QPlainTextEdit>
{
public:
    MultilineTextBox(QWidget *parent, QAnyStringView name);
    QString text() const;
    void setText(const QString &text);
    // Breaks long lines at the box's edge, so that it needs no bar below it.
    void wrapLines();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_loaded; // as it was set
    QString m_shown;  // what the document made of it: one character for each line break
};

// A button with a text, which stays as it was set: the letter that Alt is pressed with is marked where it is drawn.
template <class Button> class ButtonOf : public ControlOf<Button>
{
public:
    using ControlOf<Button>::ControlOf;

protected:
    void initStyleOption(QStyleOptionButton *option) const override
    {
        Button::initStyleOption(option);
        option->text = withMnemonic(option->text, this->shortcut());
    }
};

// Space and Enter press it.
class CommandButton : public ButtonOf<QPushButton>
{
public:
    CommandButton(QWidget *parent, QAnyStringView name, const QString &caption);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

class CheckBox : public ButtonOf<QCheckBox>
{
public:
    CheckBox(QWidget *parent, QAnyStringView name, const QString &caption);
    // 0 unchecked, 1 checked.
    int Value() const { return isChecked() ? 1 : 0; }
};

// One of several choices: of those in the same frame one is on, and there Tab stops; the arrow keys choose another.
// Click tells that this one has come on, whether the user or the program has chosen it.
class OptionButton : public ButtonOf<QRadioButton>
{
    Q_OBJECT
public:
    OptionButton(QWidget *parent, QAnyStringView name);
    bool Value() const { return isChecked(); }
    void setValue(bool value) { setChecked(value); }

Q_SIGNALS:
    void Click();
};

class Frame : public ControlOf<QGroupBox>
{
public:
    Frame(QWidget *parent, QAnyStringView name, const QString &caption);
    // The caption is the label of this one box in it.
    void setBuddy(QWidget *box);
};

// The tabbed dialog. Each page holds one widget, set off from the page's edge; Ctrl with Page Up or Page Down turns
// them.
class TabbedDialog : public ControlOf<QTabWidget>
{
public:
    TabbedDialog(QWidget *parent, QAnyStringView name);
    void addPage(QWidget *content, const QString &caption);

private:
    // Shows the page and moves the focus into its first box.
    void turnTo(int page);
};

// A list of texts of which one can be selected. Assigning a text selects the equal item, without regard to case; a text
// that no item has leaves nothing selected.
class ListBox : public LineView<QListWidget>
{
public:
    ListBox(QWidget *parent, QAnyStringView name, const QStringList &items = {});
    // The selected item's text, the empty text when none is selected.
    QString Text() const;
    void setText(const QString &text);
    // The selected item's place from 0; -1 when none is selected.
    int ListIndex() const;
    // Selects the item at that place from 0, or takes its selection away. Error 380 outside of the list.
    void setSelected(int index, bool selected = true);
    // Draws the list so many items high, at a height that a layout leaves alone.
    void setLines(int lines);
    // Draws the list one line high; the arrow keys and the bar beside it move through the items. A line that is not the
    // choice is muted; the choice, if there is one, is told beside it.
    void setOneLine();

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
};

// A list that drops down and shows the selected item's text meanwhile; at first none is selected. Assigning a text
// selects the equal item, without regard to case.
class ComboBox : public ControlOf<QComboBox>
{
public:
    ComboBox(QWidget *parent, QAnyStringView name);
    // The items come behind those that are there; what is selected stays, nothing too.
    void append(const QStringList &items);
    // The selected item's text, the empty text when none is selected.
    QString Text() const { return currentText(); }
    void setText(const QString &text) { setCurrentIndex(findText(text, Qt::MatchFixedString)); }
    // The selected item's place from 0; -1 when none is selected.
    int ListIndex() const { return currentIndex(); }
};

// A bare area that reports the mouse and can be drawn on while it is painted.
class PictureBox : public ControlOf<QFrame>
{
    Q_OBJECT
public:
    PictureBox(QWidget *parent, QAnyStringView name);

    // Sets a point, in twips, in the colour of texts. What is drawn outside of Paint is wiped by the next painting, so
    // it is not drawn at all.
    void PSet(double x, double y);

Q_SIGNALS:
    // button: the sum of the buttons held down; x and y in twips of this control.
    void MouseMove(int button, float x, float y);
    // The area is empty again and its handler draws.
    void Paint();

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_painting = false;
    QList<QPointF> m_points; // twips
};

} // namespace desktop
