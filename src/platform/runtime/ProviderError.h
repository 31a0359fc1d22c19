// The errors of the store's provider and of the data objects, with their numbers and texts.
//
// The data objects' errors have a small number each. The provider's numbers are result codes that several errors share:
// their texts tell them apart.
#pragma once

#include "platform/runtime/RuntimeError.h"

namespace provider {

// The provider's numbers.
inline constexpr int Unspecified = -2147467259;      // 80004005: files, keys, locks
inline constexpr int SyntaxError = -2147217900;      // 80040e14: the statement's text
inline constexpr int NoSuchTable = -2147217865;      // 80040e37
inline constexpr int NoSuchColumn = -2147217904;     // 80040e10: an unknown name counts as a parameter without value
inline constexpr int CriteriaMismatch = -2147217913; // 80040e07
inline constexpr int InvalidType = -2147217872;      // 80040e30: the type of a new column
inline constexpr int DuplicateColumn = -2147217858;  // 80040e3e
inline constexpr int DuplicateTable = -2147217857;   // 80040e3f
inline constexpr int DatabaseExists = -2147217897;   // 80040e17
inline constexpr int DataOverflow = -2147217833;     // 80040e57
inline constexpr int MultipleStep = -2147217887;     // 80040e21: a value that a field refuses

// The data objects' numbers.
inline constexpr int WrongArguments = 3001;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int NotAllowedInContext = 3219;
inline constexpr int NotUpdatable = 3251;
inline constexpr int NoSuchItem = 3265;
inline constexpr int AlreadyInCollection = 3367;
inline constexpr int ObjectClosed = 3704;
inline constexpr int ObjectOpen = 3705;
inline constexpr int NoProvider = 3706;
inline constexpr int NoConnection = 3709;

// The provider, as its errors name their source.
QString source();
// An error of the provider.
runtime::RuntimeError error(int number, const QString &text);
// The error for a Null in a field ("Table.Field") that has to have a value.
runtime::RuntimeError requiredField(const QString &field);
// An error of the data objects; the text is that of its number.
runtime::RuntimeError objectError(int number, const char *source);

} // namespace provider
