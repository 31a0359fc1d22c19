// The one class of exceptions that handlers meet: a failure of the run-time, of the data store or of a control, known
// by its number.
//
// Numbers of the run-time are small (6, 13, 94 ...), those of the data objects lie from 3001 to 3709, those of
// lists and trees from 35600 on, those of the store's provider are large negative numbers. The description is the text
// that the user sees in the report.
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace runtime {

// The run-time's own errors that this system raises. Any number may be thrown; these have a name.
enum ErrorNumber : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNumber = 52,
    FileNotFound = 53,
    BadFileMode = 54,
    FileAlreadyOpen = 55,
    DeviceError = 57,
    DiskFull = 61,
    BadRecordNumber = 63,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    NoSuchControlElement = 340,
    AlreadyLoaded = 360,
    CannotUnload = 362,
    InvalidPropertyValue = 380,
    ObjectRequired = 424,
    PropertyNotSupported = 438,
    WrongDataFormat = 461,
    PrinterError = 482,
    IndexOutOfBounds = 35600,
    KeyNotUnique = 35602,
};

class RuntimeError : public std::exception
{
public:
    // The description is the run-time's text for the number.
    explicit RuntimeError(int number);
    RuntimeError(int number, QString description, QString source = {});

    int number() const noexcept { return m_number; }
    const QString &description() const noexcept { return m_description; }
    const QString &source() const noexcept { return m_source; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_description;
    QString m_source;
    QByteArray m_what;
};

// The run-time's text for one of its numbers, "Application-defined or object-defined error" for any other.
QString errorText(int number);

} // namespace runtime
