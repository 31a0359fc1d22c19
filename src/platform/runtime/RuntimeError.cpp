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
    ErrorText{InvalidProcedureCall, "Invalid procedure call or argument"},
    ErrorText{Overflow, "Overflow"},
    ErrorText{OutOfMemory, "Out of memory"},
    ErrorText{SubscriptOutOfRange, "Subscript out of range"},
    ErrorText{DivisionByZero, "Division by zero"},
    ErrorText{TypeMismatch, "Type mismatch"},
    ErrorText{BadFileNumber, "Bad file name or number"},
    ErrorText{FileNotFound, "File not found"},
    ErrorText{BadFileMode, "Bad file mode"},
    ErrorText{FileAlreadyOpen, "File already open"},
    ErrorText{DeviceError, "Device I/O error"},
    ErrorText{DiskFull, "Disk full"},
    ErrorText{BadRecordNumber, "Bad record number"},
    ErrorText{TooManyFiles, "Too many files"},
    ErrorText{PermissionDenied, "Permission denied"},
    ErrorText{PathFileAccess, "Path/File access error"},
    ErrorText{PathNotFound, "Path not found"},
    ErrorText{ObjectNotSet, "Object variable or With block variable not set"},
    ErrorText{InvalidUseOfNull, "Invalid use of Null"},
    ErrorText{NoSuchControlElement, "Control array element 'n' doesn't exist"},
    ErrorText{AlreadyLoaded, "Object already loaded"},
    ErrorText{CannotUnload, "Can't unload controls created at design time"},
    ErrorText{InvalidPropertyValue, "Invalid property value"},
    ErrorText{ObjectRequired, "Object required"},
    ErrorText{PropertyNotSupported, "Object doesn't support this property or method"},
    ErrorText{WrongDataFormat, "Specified format doesn't match format of data"},
    ErrorText{PrinterError, "Printer error"},
    ErrorText{IndexOutOfBounds, "Index out of bounds"},
    ErrorText{KeyNotUnique, "Key is not unique in collection"},
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
