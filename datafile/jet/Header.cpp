#include "datafile/jet/Header.h"

#include <QByteArray>
#include <QtEndian>

#include <array>
#include <cstring>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

constexpr qsizetype versionAt = 0x14;
constexpr qsizetype maskedAt = 0x18; // 128 bytes from here on are masked, with the same key in every file
constexpr qsizetype maskedSize = 128;
constexpr qsizetype pageKeyAt = 0x3e;
constexpr qsizetype passwordAt = 0x42;
constexpr qsizetype passwordSize = 40;
constexpr qsizetype creationAt = 0x72;

// The cipher RC4, which undoes itself.
void mask(QByteArray &bytes, qsizetype at, qsizetype size)
{
    constexpr std::array<quint8, 4> key{0xc7, 0xda, 0x39, 0x6b};
    std::array<quint8, 256> state;
    std::iota(state.begin(), state.end(), quint8(0));
    quint8 j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = quint8(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    quint8 i = 0;
    j = 0;
    for (qsizetype k = at; k < at + size; ++k) {
        i = quint8(i + 1);
        j = quint8(j + state[i]);
        std::swap(state[i], state[j]);
        bytes[k] = char(quint8(bytes[k]) ^ state[quint8(state[i] + state[j])]);
    }
}

// Masked a second time, with the day on which the file was made.
QString passwordOf(const QByteArray &unmasked)
{
    const auto creation = qFromLittleEndian<double>(unmasked.constData() + creationAt);
    const bool isDay = creation > -1e9 && creation < 1e9;
    const auto day = qToLittleEndian(isDay ? qint32(creation) : 0);
    std::array<char, sizeof day> key{};
    std::memcpy(key.data(), &day, sizeof day);
    QString password;
    for (qsizetype i = 0; i < passwordSize; i += 2) {
        const auto byte = [&](qsizetype k) { return quint8(unmasked[passwordAt + k] ^ key[std::size_t(k % 4)]); };
        const char16_t unit = char16_t(byte(i) | byte(i + 1) << 8);
        if (unit == 0)
            break;
        password += QChar(unit);
    }
    return password;
}

} // namespace

QString refusalOf(QByteArrayView firstPage, qint64 size, const QString &password)
{
    const QByteArrayView name = firstPage.sliced(qMin<qsizetype>(4, firstPage.size()));
    if (!firstPage.startsWith(QByteArrayView("\0\1\0\0", 4)) || !name.startsWith("Standard ")) {
        if (firstPage.startsWith("SQLite format 3"))
            return u"is an SQLite file, perhaps a data file of this version, and no Jet file"_s;
        return u"is no Jet file"_s;
    }
    if (firstPage.size() < pageSize)
        return u"is truncated: its first page is not whole"_s;
    if (!name.startsWith(QByteArrayView("Standard Jet DB\0", 16)) || firstPage[versionAt] > 1)
        return u"is of a later format than Jet 4; save it in the format of 2000 or of 2002-2003 first"_s;
    if (firstPage[versionAt] != 1)
        return u"is of the format Jet 3; convert it to the format of 2000 first"_s;
    if (size % pageSize != 0 || size < 3 * pageSize)
        return u"is truncated: it does not end with a whole page"_s;
    QByteArray unmasked = firstPage.toByteArray();
    mask(unmasked, maskedAt, maskedSize);
    if (qFromLittleEndian<quint32>(unmasked.constData() + pageKeyAt) != 0)
        return u"is encrypted; decode it with the program that made it first"_s;
    const QString needed = passwordOf(unmasked);
    if (!needed.isEmpty() && needed != password)
        return password.isEmpty() ? u"has a database password; give it with --password"_s
                                  : u"has another database password"_s;
    return {};
}

} // namespace jet
