// The single-byte code page by which bytes of a file are read as characters: Windows-1252, what most of the files that
// members hand in were written with. Its five unused bytes are the control characters of the same number.
//
// Upper case is its own: a letter whose capital it does not have (ß, µ, ƒ) stays as it is, and so does a character
// outside of it.
#pragma once

#include <QString>

#include <array>

namespace runtime {

// The character of each byte.
using CodePage = std::array<char16_t, 256>;
const CodePage &ansiCharacters();
// The same, each in upper case.
const CodePage &ansiUpperCaseCharacters();

QString ansiUpperCase(QString text);

} // namespace runtime
