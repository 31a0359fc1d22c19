#include "platform/runtime/RuntimeError.h"

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

struct ErrorText
{
    int number;
    const char *text;
};

constexpr std::array texts{
    ErrorText{5, "Invalid procedure call or argument"},
    ErrorText{6, "Overflow"},
    ErrorText{7, "Out of memory"},
    ErrorText{9, "Subscript out of range"},
    ErrorText{11, "Division by zero"},
    ErrorText{13, "Type mismatch"},
    ErrorText{52, "Bad file name or number"},
    ErrorText{53, "File not found"},
    ErrorText{54, "Bad file mode"},
    ErrorText{55, "File already open"},
    ErrorText{57, "Device I/O error"},
    ErrorText{58, "File already exists"},
    ErrorText{61, "Disk full"},
    ErrorText{62, "Input past end of file"},
    ErrorText{63, "Bad record number"},
    ErrorText{67, "Too many files"},
    ErrorText{70, "Permission denied"},
    ErrorText{75, "Path/File access error"},
    ErrorText{76, "Path not found"},
    ErrorText{91, "Object variable or With block variable not set"},
    ErrorText{94, "Invalid use of Null"},
    ErrorText{340, "Control array element 'n' doesn't exist"},
    ErrorText{360, "Object already loaded"},
    ErrorText{362, "Can't unload controls created at design time"},
    ErrorText{341, "Invalid control array index"},
    ErrorText{380, "Invalid property value"},
    ErrorText{424, "Object required"},
    ErrorText{438, "Object doesn't support this property or method"},
    ErrorText{461, "Specified format doesn't match format of data"},
    ErrorText{482, "Printer error"},
    ErrorText{35600, "Index out of bounds"},
    ErrorText{35601, "Element not found"},
    ErrorText{35602, "Key is not unique in collection"},
};

} // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, errorText(number)) {}

RuntimeError::RuntimeError(int number, QString description, QString source)
    : m_number(number), m_description(std::move(description)), m_source(std::move(source)),
      m_what(QByteArray::number(number) + ": " + m_description.toUtf8())
{
}

QString errorText(int number)
{
    for (const ErrorText &entry : texts) {
        if (entry.number == number)
            return QString::fromLatin1(entry.text);
    }
    return u"Application-defined or object-defined error"_s;
}

} // namespace runtime
