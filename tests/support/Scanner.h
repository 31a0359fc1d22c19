// The search through a file's bytes with its steps made public, and a slow scan byte by byte to compare it with.
#pragma once

#include "library/ClsBinaryFunctions.h"

#include <tuple>

class Scanner : public ClsBinaryFunctions
{
public:
    using ClsBinaryFunctions::FileHandle;
    using ClsBinaryFunctions::FileLength;
    using ClsBinaryFunctions::Found;
    using ClsBinaryFunctions::MatchPosition;
    using ClsBinaryFunctions::OneChar;
    using ClsBinaryFunctions::Pattern;
    using ClsBinaryFunctions::PrepareSearchText;
    using ClsBinaryFunctions::ReadPosition;
    using ClsBinaryFunctions::ScanAnyCase;
    using ClsBinaryFunctions::ScanExactCase;
    using ClsBinaryFunctions::ScanFile;

    bool isExact() const { return Check1Value == 1; }

    // How a scan ends: the bytes read, or with a hit its place; the place of the hit or -1; the character read last.
    using Outcome = std::tuple<qint32, qint32, char16_t>;
    // One byte at a time: the byte that ends a failed attempt is not tried again, and no attempt begins where the text
    // would reach the last byte.
    Outcome byTheRule(QByteArrayView file, qint32 read = 0) const
    {
        const runtime::CodePage &characters =
            isExact() ? runtime::ansiCharacters() : runtime::ansiUpperCaseCharacters();
        char16_t last = 0;
        while (read < file.size() - Pattern.size()) {
            qsizetype index = 0;
            for (; index < Pattern.size(); ++index) {
                last = characters[uchar(file[read++])];
                if (Pattern[index] != QChar(last))
                    break;
            }
            if (index == Pattern.size())
                return {read - qint32(index), read - qint32(index), last};
        }
        return {read, -1, last};
    }
};
