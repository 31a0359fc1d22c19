// The run-time's random generator: 24 bits of state, the same sequence in every process until it is reseeded. Good
// enough to pick a tip. It also makes the first passwords of new users, which they are to change.
//
// A test fixes the sequence by Rnd(-1); Randomize without a number takes the clock of Clock.h.
#pragma once

namespace runtime {

// The next number, at least 0 and below 1.
float Rnd();
// Below 0: begins the sequence that belongs to the argument; 0: the last number again; above 0: the next one.
float Rnd(float number);

// Mixes the number into the state, of which the lowest 8 bits stay.
void Randomize(double number);
// The same with the seconds since midnight.
void Randomize();

// Int(Rnd * count + 1): a whole number from 1 to count, and 1 when there is nothing to count.
int randomPlace(int count);

} // namespace runtime
