#include "platform/windows/directory_changes.h"

#include "platform/directory_names.h"
#include "platform/windows/drives.h"
#include "platform/windows/host_files.h"
#include "platform/windows/system_error.h"

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

void requireDrive(const QString &absolutePath)
{
    if (!hasDrive(absolutePath.at(0)))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
}

// A directory in which another disk or directory is mounted is itself removed by no one.
[[noreturn]] void raiseLink()
{
    throw RuntimeError(ErrorNumber::PathFileAccess, u"It is a link to another directory"_s);
}

} // namespace

void makeHostDirectory(const CurrentDirectories &current, const QString &path)
{
    const QString absolute = current.absolute(path);
    requireDrive(absolute);
    requirePossibleNames(absolute);
    const DWORD parent = attributesOf(parentOf(absolute));
    if (parent == INVALID_FILE_ATTRIBUTES)
        raiseForDirectory(::GetLastError());
    if (!isDirectory(parent))
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (!endsWithName(path) || attributesOf(absolute) != INVALID_FILE_ATTRIBUTES)
        raiseTaken();
    if (::CreateDirectoryW(systemPath(absolute).c_str(), nullptr) == 0) {
        const DWORD error = ::GetLastError();
        if (error == ERROR_ALREADY_EXISTS)
            raiseTaken();
        raiseForDirectory(error);
    }
}

void removeHostDirectory(const CurrentDirectories &current, const QString &path)
{
    const QString absolute = current.absolute(path);
    requireDrive(absolute);
    requireOwnName(path);
    requirePossibleNames(absolute);
    const DWORD attributes = attributesOf(absolute);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        raiseForDirectory(::GetLastError());
    if (trueSpelling(absolute) != absolute)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (isLink(absolute))
        raiseLink();
    if (!isDirectory(attributes))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It is not a directory"_s);
    // Whatever has taken the name since, this removes nothing but an empty directory.
    if (::RemoveDirectoryW(systemPath(absolute).c_str()) == 0) {
        const DWORD error = ::GetLastError();
        if (error == ERROR_DIR_NOT_EMPTY)
            throw RuntimeError(ErrorNumber::PathFileAccess, u"It is not empty"_s);
        if (error == ERROR_SHARING_VIOLATION || error == ERROR_CURRENT_DIRECTORY)
            throw RuntimeError(ErrorNumber::PathFileAccess, u"The system uses it"_s);
        raiseForDirectory(error);
    }
}

} // namespace platform::host
