// Random numbers that are the same for a seed on every system. The distributions of the standard library are not used,
// since each library may compute them in its own way; only the engine is fixed.
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <iterator>
#include <random>

namespace datafile {

class Random
{
public:
    explicit Random(quint32 seed) : m_engine(seed) {}

    // 0 .. bound - 1.
    int below(int bound) { return int(quint64(m_engine()) * quint64(bound) >> 32); }
    bool percent(int chance) { return below(100) < chance; }
    template <class Range> const auto &oneOf(const Range &range)
    {
        return range[std::size_t(below(int(std::size(range))))];
    }

private:
    std::mt19937 m_engine; // 32 bits at a time
};

} // namespace datafile
