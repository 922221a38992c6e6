#pragma once

#include <QString>

#include <exception>

namespace platform {

/// The classic numbers of the run-time errors that the machine can raise.
enum class ErrorNumber : qint16 {
    InvalidProcedureCall = 5,
    BadFileName = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceError = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    TooManyFiles = 67,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
    Cancelled = 32755
};

/// The classic text of an error number, such as "File not found".
QString describe(ErrorNumber number);

/// The text of an error as it stands behind a colon: it begins with a small letter.
QString withinSentence(const QString &description);

/// What every call of the platform raises when it fails. A command catches it exactly where it has an error
/// handler of its own; the dispatcher catches the rest.
class RuntimeError : public std::exception
{
public:
    explicit RuntimeError(ErrorNumber number) : RuntimeError(number, describe(number)) {}
    RuntimeError(ErrorNumber number, const QString &description);

    const char *what() const noexcept override { return text_.constData(); }

    qint16 Number;
    QString Description;

private:
    QByteArray text_;
};

} // namespace platform
