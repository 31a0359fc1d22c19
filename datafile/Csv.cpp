#include "datafile/Csv.h"

#include "platform/runtime/CodePage.h"
#include "platform/runtime/RuntimeError.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

bool beginsLikeFormula(QStringView text)
{
    return !text.isEmpty() && u"=+-@\t\r"_s.contains(text.at(0));
}

// How many apostrophes stand before a text that begins like a formula; -1 before any other text.
qsizetype apostrophesBeforeFormula(const QString &text)
{
    qsizetype count = 0;
    while (count < text.size() && text.at(count) == u'\'')
        ++count;
    return beginsLikeFormula(QStringView(text).mid(count)) ? count : -1;
}

[[noreturn]] void refuseRow(qsizetype row, const QString &reason)
{
    throw runtime::RuntimeError(runtime::TypeMismatch, u"row %1: %2"_s.arg(row).arg(reason));
}

struct Encoding
{
    QString name;
    qsizetype markSize; // bytes at the beginning that tell the encoding
    QStringConverter::Encoding converter;
};

// Western letters have a zero byte in UTF-16, and no other encoding has any.
Encoding encodingOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\xef\xbb\xbf"))
        return {u"utf-8"_s, 3, QStringConverter::Utf8};
    if (bytes.startsWith("\xff\xfe"))
        return {u"utf-16"_s, 2, QStringConverter::Utf16LE};
    if (bytes.startsWith("\xfe\xff"))
        return {u"utf-16"_s, 2, QStringConverter::Utf16BE};
    if (bytes.size() >= 2 && bytes.at(0) != 0 && bytes.at(1) == 0)
        return {u"utf-16"_s, 0, QStringConverter::Utf16LE};
    if (bytes.size() >= 2 && bytes.at(0) == 0 && bytes.at(1) != 0)
        return {u"utf-16"_s, 0, QStringConverter::Utf16BE};
    return bytes.isValidUtf8() ? Encoding{u"utf-8"_s, 0, QStringConverter::Utf8}
                               : Encoding{u"windows-1252"_s, 0, QStringConverter::Latin1};
}

Encoding namedEncoding(const QString &name, const QByteArray &bytes)
{
    Encoding found = encodingOf(bytes);
    if (name.isEmpty() || name == found.name)
        return found;
    if (name == u"utf-8"_s)
        return {name, 0, QStringConverter::Utf8};
    if (name == u"utf-16"_s)
        return {name, 0, QStringConverter::Utf16LE};
    return {u"windows-1252"_s, 0, QStringConverter::Latin1};
}

QString decoded(const QByteArray &bytes, const Encoding &encoding)
{
    const QByteArrayView content = QByteArrayView(bytes).sliced(encoding.markSize);
    QString text;
    if (encoding.converter == QStringConverter::Latin1) {
        text.reserve(content.size());
        for (const char byte : content)
            text += QChar(runtime::ansiCharacters()[quint8(byte)]);
        return text;
    }
    QStringDecoder decoder(encoding.converter, QStringConverter::Flag::Stateless);
    text = decoder.decode(content);
    if (decoder.hasError() || !text.isValidUtf16()) { // the decoder lets half a surrogate pair pass
        const QList<uint> characters = text.toUcs4(); // which becomes a replacement character here
        const auto fault = std::find(characters.begin(), characters.end(), uint(QChar::ReplacementCharacter));
        refuseRow(1 + std::count(characters.begin(), fault, uint('\n')),
                  u"has bytes that are no %1"_s.arg(encoding.name));
    }
    return text;
}

QChar mostFrequentSeparator(const QString &text)
{
    QList<QChar> separators{u',', u';', u'\t'};
    QList<int> counts(separators.size());
    bool isQuoted = false;
    for (const QChar sign : text) {
        if (sign == u'"')
            isQuoted = !isQuoted;
        if (!isQuoted && (sign == u'\n' || sign == u'\r'))
            break;
        if (const qsizetype i = separators.indexOf(sign); !isQuoted && i >= 0)
            ++counts[i];
    }
    return separators.at(std::max_element(counts.begin(), counts.end()) - counts.begin());
}

// Reads cell by cell; the place stands behind the cell afterwards.
class CsvReader
{
public:
    CsvReader(const QString &text, QChar separator) : m_text(text), m_separator(separator) {}

    QList<CsvRow> rows()
    {
        QList<CsvRow> rows;
        while (m_place < m_text.size()) {
            CsvRow row{cell(rows.size() + 1)};
            while (m_place < m_text.size() && m_text.at(m_place) == m_separator) {
                ++m_place;
                row << cell(rows.size() + 1);
            }
            passLineEnd();
            rows << row;
        }
        while (!rows.isEmpty() && rows.last().size() == 1 && rows.last().first().isNull())
            rows.removeLast();
        return rows;
    }

private:
    bool isAtEnd() const
    {
        return m_place >= m_text.size() || m_text.at(m_place) == m_separator || m_text.at(m_place) == u'\n' ||
               m_text.at(m_place) == u'\r';
    }

    CsvCell cell(qsizetype row)
    {
        if (m_place < m_text.size() && m_text.at(m_place) == u'"')
            return quotedCell(row);
        const qsizetype begin = m_place;
        while (!isAtEnd())
            ++m_place;
        return {m_text.mid(begin, m_place - begin), false};
    }

    CsvCell quotedCell(qsizetype row)
    {
        CsvCell cell{{}, true};
        for (++m_place;; ++m_place) {
            const qsizetype quote = m_text.indexOf(u'"', m_place);
            if (quote < 0)
                refuseRow(row, u"has a quote that is never closed"_s);
            cell.text += QStringView(m_text).mid(m_place, quote - m_place);
            m_place = quote + 1;
            if (m_place >= m_text.size() || m_text.at(m_place) != u'"')
                break;
            cell.text += u'"'; // two quotes stand for one
        }
        if (!isAtEnd())
            refuseRow(row, u"has text behind the quote that closes a cell"_s);
        return cell;
    }

    // CR LF, LF or CR.
    void passLineEnd()
    {
        if (QStringView(m_text).mid(m_place).startsWith(u"\r\n"_s))
            ++m_place;
        ++m_place;
    }

    const QString &m_text;
    QChar m_separator;
    qsizetype m_place = 0;
};

} // namespace

QString withoutFormula(const QString &text)
{
    return apostrophesBeforeFormula(text) >= 0 ? u'\'' + text : text;
}

QString withFormula(const QString &cell)
{
    return apostrophesBeforeFormula(cell) > 0 ? cell.mid(1) : cell;
}

QByteArray csvLine(const QList<std::optional<QString>> &cells)
{
    QByteArrayList line;
    for (const std::optional<QString> &text : cells) {
        QByteArray cell = text ? text->toUtf8() : QByteArray();
        const bool needsQuotes = std::any_of(cell.cbegin(), cell.cend(), [](char sign) {
            return sign == ',' || sign == ';' || sign == '"' || sign == '\n' || sign == '\r' || sign == '\t';
        });
        if (needsQuotes || (text && cell.isEmpty()))
            cell = '"' + cell.replace("\"", "\"\"") + '"';
        line << cell;
    }
    return line.join(',') + "\r\n";
}

CsvFile readCsv(const QByteArray &bytes, const CsvForm &form)
{
    const Encoding encoding = namedEncoding(form.encoding, bytes);
    QString text = decoded(bytes, encoding);
    CsvFile file;
    file.form = {encoding.name, form.separator};
    if (text.startsWith(u"sep="_s) && text.size() > 4) { // a first line by which some spreadsheets tell the separator
        if (file.form.separator.isNull())
            file.form.separator = text.at(4);
        static const QRegularExpression line(u"^[^\r\n]*(\r\n|\r|\n|$)"_s);
        text.remove(line);
    }
    if (file.form.separator.isNull())
        file.form.separator = mostFrequentSeparator(text);
    file.rows = CsvReader(text, file.form.separator).rows();
    return file;
}

} // namespace datafile
