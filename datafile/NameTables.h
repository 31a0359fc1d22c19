// The names and words of which generated organisations are made.
#pragma once

#include <span>

namespace datafile {

struct Surname
{
    const char *text;
    int weight; // how often it occurs beside the others
};

struct Town
{
    const char *city;
    const char *state;
    const char *zipBegins; // three digits
};

std::span<const Surname> surnames(); // at least one for each letter
std::span<const char *const> firstNames();
std::span<const char *const> streets();
std::span<const Town> towns();
std::span<const char *const> employers();
std::span<const char *const> interests();
std::span<const char *const> eventNames();
std::span<const char *const> fileStems();
std::span<const char *const> words();

} // namespace datafile
