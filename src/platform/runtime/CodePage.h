// The single-byte code page by which bytes of a file are read as characters: Windows-1252, what most of the files that
// members hand in were written with. Its five unused bytes are the control characters of the same number.
//
// Upper case stays within the page: a letter whose capital is not on it (ß, µ, ƒ) keeps its form, and so does a
// character that is not on it itself.
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
