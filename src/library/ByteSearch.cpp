#include "library/ByteSearch.h"

#include <algorithm>
#include <bit>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace {

using Wanted = ByteSearch::Wanted;

qsizetype plainNext(const uchar *bytes, qsizetype from, qsizetype to, const Wanted &wanted)
{
    while (from < to && !(wanted.first[bytes[from]] && wanted.second[bytes[from + 1]]))
        ++from;
    return from;
}

// The vector ways compare as many places at once as a register has bytes: each byte with the wanted first ones and the
// byte behind it with the wanted second ones. A bit of `found` stands for a place; the lowest one is the nearest. The
// places that do not fill a register are left to the plain way.
#ifdef __x86_64__

// Every processor of this architecture can do this.
qsizetype sse2Next(const uchar *bytes, qsizetype from, qsizetype to, const Wanted &wanted)
{
    const __m128i firstA = _mm_set1_epi8(char(wanted.firstBytes[0]));
    const __m128i firstB = _mm_set1_epi8(char(wanted.firstBytes[1]));
    const __m128i secondA = _mm_set1_epi8(char(wanted.secondBytes[0]));
    const __m128i secondB = _mm_set1_epi8(char(wanted.secondBytes[1]));
    const __m128i anySecond = _mm_set1_epi8(wanted.isAnySecond ? -1 : 0);
    for (constexpr qsizetype width = sizeof(__m128i); to - from >= width; from += width) {
        const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes + from));
        const __m128i behind = _mm_loadu_si128(reinterpret_cast<const __m128i *>(bytes + from + 1));
        const __m128i isFirst = _mm_or_si128(_mm_cmpeq_epi8(here, firstA), _mm_cmpeq_epi8(here, firstB));
        const __m128i isSecond = _mm_or_si128(_mm_cmpeq_epi8(behind, secondA), _mm_cmpeq_epi8(behind, secondB));
        const __m128i both = _mm_and_si128(isFirst, _mm_or_si128(isSecond, anySecond));
        if (const auto found = unsigned(_mm_movemask_epi8(both)); found != 0)
            return from + std::countr_zero(found);
    }
    return plainNext(bytes, from, to, wanted);
}

[[gnu::target("avx2")]] qsizetype avx2Next(const uchar *bytes, qsizetype from, qsizetype to, const Wanted &wanted)
{
    const __m256i firstA = _mm256_set1_epi8(char(wanted.firstBytes[0]));
    const __m256i firstB = _mm256_set1_epi8(char(wanted.firstBytes[1]));
    const __m256i secondA = _mm256_set1_epi8(char(wanted.secondBytes[0]));
    const __m256i secondB = _mm256_set1_epi8(char(wanted.secondBytes[1]));
    const __m256i anySecond = _mm256_set1_epi8(wanted.isAnySecond ? -1 : 0);
    for (constexpr qsizetype width = sizeof(__m256i); to - from >= width; from += width) {
        const __m256i here = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(bytes + from));
        const __m256i behind = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(bytes + from + 1));
        const __m256i isFirst = _mm256_or_si256(_mm256_cmpeq_epi8(here, firstA), _mm256_cmpeq_epi8(here, firstB));
        const __m256i isSecond =
            _mm256_or_si256(_mm256_cmpeq_epi8(behind, secondA), _mm256_cmpeq_epi8(behind, secondB));
        const __m256i both = _mm256_and_si256(isFirst, _mm256_or_si256(isSecond, anySecond));
        if (const auto found = unsigned(_mm256_movemask_epi8(both)); found != 0)
            return from + std::countr_zero(found);
    }
    return plainNext(bytes, from, to, wanted);
}

#endif

qsizetype count(const ByteSet &set)
{
    return std::count(set.begin(), set.end(), true);
}

// The bytes of a set of one or two, a single one twice.
std::array<uchar, 2> bytesOf(const ByteSet &set)
{
    std::array<uchar, 2> bytes{};
    bytes[0] = uchar(std::find(set.begin(), set.end(), true) - set.begin());
    bytes[1] = uchar(set.rend() - std::find(set.rbegin(), set.rend(), true) - 1);
    return bytes;
}

} // namespace

const std::vector<ByteSearch::Way> &ByteSearch::ways()
{
    static const std::vector<Way> known = [] {
        std::vector<Way> ways;
#ifdef __x86_64__
        if (__builtin_cpu_supports("avx2"))
            ways.push_back(avx2Next);
        ways.push_back(sse2Next);
#endif
        ways.push_back(plainNext);
        return ways;
    }();
    return known;
}

ByteSearch::ByteSearch(const ByteSet &first, const ByteSet &second) : ByteSearch(first, second, ways().front()) {}

ByteSearch::ByteSearch(const ByteSet &first, const ByteSet &second, Way way)
    : m_wanted{.first = first, .second = second}, m_way(way)
{
    const auto fits = [](qsizetype bytes) { return bytes == 1 || bytes == 2; };
    m_wanted.isAnySecond = count(second) == qsizetype(second.size());
    if (!fits(count(first)) || !(fits(count(second)) || m_wanted.isAnySecond)) {
        m_way = plainNext;
        return;
    }
    m_wanted.firstBytes = bytesOf(first);
    m_wanted.secondBytes = bytesOf(second);
}

qsizetype ByteSearch::next(QByteArrayView bytes, qsizetype from, qsizetype to) const
{
    return m_way(reinterpret_cast<const uchar *>(bytes.data()), from, to, m_wanted);
}
