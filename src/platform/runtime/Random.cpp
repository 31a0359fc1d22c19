#include "platform/runtime/Random.h"

#include "platform/runtime/Clock.h"

#include <QtGlobal>

#include <bit>
#include <cmath>

namespace runtime {

namespace {

constexpr quint32 stateMask = 0xffffff;
constexpr double stateCount = 0x1000000;

quint32 &state()
{
    static quint32 bits = 0x50000;
    return bits;
}

float numberOfState()
{
    return float(state() / stateCount); // 24 bits fit a float without rounding
}

void mix(quint32 bits)
{
    const quint32 middle = (bits ^ (bits >> 16)) & 0xffff;
    state() = (state() & 0xff) | (middle << 8);
}

} // namespace

float Rnd()
{
    state() = (state() * 1140671485U + 12820163U) & stateMask;
    return numberOfState();
}

float Rnd(float number)
{
    if (number == 0.0F)
        return numberOfState();
    if (number < 0.0F) {
        const auto bits = std::bit_cast<quint32>(number);
        state() = (bits + (bits >> 24)) & stateMask;
    }
    return Rnd();
}

void Randomize(double number)
{
    mix(quint32(std::bit_cast<quint64>(number) >> 32));
}

void Randomize()
{
    mix(std::bit_cast<quint32>(float(Timer())));
}

// In doubles: a product of floats could round up to the count itself and point behind the last place.
int randomPlace(int count)
{
    return int(std::floor(double(Rnd()) * count + 1));
}

} // namespace runtime
