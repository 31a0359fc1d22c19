#include "platform/runtime/Regional.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

// Some regional time forms set the AM/PM mark off with a narrow no-break space; a user types a plain blank.
QString withPlainBlanks(QString text)
{
    return text.replace(QChar(0x202f), u' ').replace(QChar(0xa0), u' ');
}

QString formOf(const QList<FormPiece> &pieces)
{
    QString form;
    for (const FormPiece &piece : pieces) {
        if (!piece.field.isEmpty())
            form += piece.text;
        else if (!piece.text.isEmpty())
            form += u'\'' + QString(piece.text).replace(u'\'', u"''"_s) + u'\'';
    }
    return form;
}

bool hasField(const QList<FormPiece> &pieces, QStringView field)
{
    return std::any_of(pieces.cbegin(), pieces.cend(),
                       [field](const FormPiece &piece) { return piece.field == field; });
}

// Without the zone, and without the comma, brackets or blanks that part it from the time.
QList<FormPiece> withoutZone(QList<FormPiece> pieces)
{
    pieces.removeIf([](const FormPiece &piece) { return piece.field == u"t"; });
    const auto parts = [](QChar character) { return character.isSpace() || u",()[]"_s.contains(character); };
    QString &first = pieces.first().text;
    while (!first.isEmpty() && parts(first.front()))
        first.remove(0, 1);
    QString &last = pieces.last().text;
    while (!last.isEmpty() && parts(last.back()))
        last.chop(1);
    return pieces;
}

QList<FormPiece> withSeconds(QList<FormPiece> pieces, const QLocale &locale)
{
    if (hasField(pieces, u"s"))
        return pieces;
    for (qsizetype at = 2; at < pieces.size(); ++at) {
        const QString parting = pieces[at - 1].text;
        if (pieces[at].field == u"m" && pieces[at - 2].field == u"h" && parting.size() == 1 && parting[0].isPunct()) {
            pieces.insert(at + 1, {u"s"_s, u"ss"_s});
            pieces.insert(at + 1, {QString(), parting});
            return pieces;
        }
    }
    return withoutZone(piecesOf(locale.timeFormat(QLocale::LongFormat)));
}

} // namespace

QLocale regional()
{
    const QLocale locale;
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

QString shortDateForm()
{
    QString form = regional().dateFormat(QLocale::ShortFormat);
    if (!form.contains(u"yyyy"))
        form.replace(u"yy"_s, u"yyyy"_s);
    return form;
}

QString longTimeForm()
{
    return formOf(withSeconds(piecesOf(shortTimeForm()), regional()));
}

QString shortTimeForm()
{
    return formOf(piecesOf(regional().timeFormat(QLocale::ShortFormat)));
}

QString shortDateText(QDate day)
{
    return regional().toString(day, shortDateForm());
}

QString longTimeText(QTime time)
{
    return withPlainBlanks(regional().toString(time, longTimeForm()));
}

QString shortTimeText(QTime time)
{
    return withPlainBlanks(regional().toString(time, shortTimeForm()));
}

QString plainlyTyped(QStringView text)
{
    QString plain;
    plain.reserve(text.size());
    for (const char32_t character : text.toUcs4()) {
        const QChar::Category category = QChar::category(character);
        if (category == QChar::Other_Format)
            continue;
        if (category == QChar::Number_DecimalDigit)
            plain += QChar(u'0' + QChar::digitValue(character));
        else if (QChar::isSpace(character))
            plain += u' ';
        else if (character == U'\u2212') // the minus sign of typesetting
            plain += u'-';
        else if (character == U'\u2019')
            plain += u'\'';
        else if (character == U'\u066b') // the decimal and the thousands sign of Arabic
            plain += u'.';
        else if (character == U'\u066c')
            plain += u',';
        else
            plain += QChar::fromUcs4(character);
    }
    return plain;
}

// QLocale words a few forms with "B", the part of the day in which an hour lies, but writes no such part: the half of
// the day stands for it.
QList<FormPiece> piecesOf(const QString &form)
{
    QList<FormPiece> pieces;
    const auto addText = [&pieces](QChar character) {
        if (pieces.isEmpty() || !pieces.last().field.isEmpty())
            pieces.append(FormPiece());
        pieces.last().text += character;
    };
    bool quoted = false;
    for (qsizetype at = 0; at < form.size(); ++at) {
        const QChar letter = form[at];
        if (letter == u'\'') {
            if (at + 1 < form.size() && form[at + 1] == u'\'') // two of them are one
                addText(form[at++]);
            else
                quoted = !quoted;
        } else if (quoted || !u"yMdHhmstAaB"_s.contains(letter)) {
            addText(letter);
        } else if (u"AaB"_s.contains(letter)) {
            pieces.append({u"AP"_s, u"AP"_s});
            at += at + 1 < form.size() && form[at + 1].toUpper() == u'P' ? 1 : 0;
        } else if (const QString field = letter == u'H' ? u"h"_s : QString(letter);
                   !pieces.isEmpty() && pieces.last().field == field) {
            pieces.last().text += letter;
        } else {
            pieces.append({field, letter});
        }
    }
    return pieces;
}

} // namespace runtime
