// Where in a file two neighbouring bytes stand that may begin a phrase: the first byte is one of a set, and so is the
// one behind it.
//
// The search takes 16 or 32 bytes a step where the processor can compare that many at once. Looking for two bytes
// together makes places so rare, even of a common letter, that the caller's own comparison costs nothing beside.
#pragma once

#include <QByteArrayView>

#include <array>
#include <vector>

// By byte.
using ByteSet = std::array<bool, 256>;

class ByteSearch
{
public:
    // The fastest way that this processor offers.
    ByteSearch(const ByteSet &first, const ByteSet &second);

    bool isFirst(char byte) const { return m_wanted.first[uchar(byte)]; }
    // The first place from `from` on and before `to` where both bytes stand; `to` without one. Requires
    // from <= to < bytes.size(): the byte at `to` is read.
    qsizetype next(QByteArrayView bytes, qsizetype from, qsizetype to) const;

    // The vector ways compare with single bytes: at most two for each set, as an upper and a lower case letter. A set
    // of all bytes needs no comparison.
    struct Wanted
    {
        ByteSet first;
        ByteSet second;
        std::array<uchar, 2> firstBytes{};
        std::array<uchar, 2> secondBytes{};
        bool isAnySecond = false;
    };
    using Way = qsizetype (*)(const uchar *bytes, qsizetype from, qsizetype to, const Wanted &wanted);
    // The ways that this processor can go, the fastest first and the plain one last: all of them find the same.
    static const std::vector<Way> &ways();
    // For tests, which compare the ways.
    ByteSearch(const ByteSet &first, const ByteSet &second, Way way);

private:
    Wanted m_wanted;
    Way m_way;
};
