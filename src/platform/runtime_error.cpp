#include "platform/runtime_error.h"

#include "platform/letter_case.h"

using namespace Qt::StringLiterals;

namespace platform {

QString describe(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return u"Invalid procedure call"_s;
    case ErrorNumber::BadFileName:
        return u"Bad file name or number"_s;
    case ErrorNumber::FileNotFound:
        return u"File not found"_s;
    case ErrorNumber::FileAlreadyOpen:
        return u"File already open"_s;
    case ErrorNumber::DeviceError:
        return u"Device I/O error"_s;
    case ErrorNumber::FileAlreadyExists:
        return u"File already exists"_s;
    case ErrorNumber::DiskFull:
        return u"Disk full"_s;
    case ErrorNumber::InputPastEnd:
        return u"Input past end of file"_s;
    case ErrorNumber::TooManyFiles:
        return u"Too many files"_s;
    case ErrorNumber::DeviceUnavailable:
        return u"Device unavailable"_s;
    case ErrorNumber::PermissionDenied:
        return u"Permission denied"_s;
    case ErrorNumber::DiskNotReady:
        return u"Disk not ready"_s;
    case ErrorNumber::PathFileAccess:
        return u"Path/File access error"_s;
    case ErrorNumber::PathNotFound:
        return u"Path not found"_s;
    case ErrorNumber::Cancelled:
        return u"Cancel was selected"_s;
    }
    return u"Unknown error"_s;
}

QString withinSentence(const QString &description)
{
    return LCase(description.left(1)) + description.mid(1);
}

RuntimeError::RuntimeError(ErrorNumber number, const QString &description)
    : Number(static_cast<qint16>(number)), Description(description), text_(description.toUtf8())
{}

} // namespace platform
