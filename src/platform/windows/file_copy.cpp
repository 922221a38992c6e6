#include "platform/windows/file_copy.h"

#include "platform/path_language.h"
#include "platform/windows/host_files.h"
#include "platform/windows/system_error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace platform::host {

HANDLE SystemCalls::create(const std::wstring &path)
{
    return ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr);
}

bool SystemCalls::write(HANDLE file, const char *bytes, DWORD size, DWORD &written)
{
    return ::WriteFile(file, bytes, size, &written, nullptr) != 0;
}

bool SystemCalls::flush(HANDLE file)
{
    return ::FlushFileBuffers(file) != 0;
}

bool SystemCalls::close(HANDLE file)
{
    return ::CloseHandle(file) != 0;
}

bool SystemCalls::reveal(const std::wstring &path)
{
    return ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL) != 0;
}

bool SystemCalls::rename(const std::wstring &from, const std::wstring &to, bool replacing)
{
    const DWORD flags = MOVEFILE_WRITE_THROUGH | (replacing ? DWORD(MOVEFILE_REPLACE_EXISTING) : 0U);
    return ::MoveFileExW(from.c_str(), to.c_str(), flags) != 0;
}

namespace {

// So says a share that cannot do what was asked.
bool isUnsupported(DWORD systemError)
{
    return systemError == ERROR_INVALID_FUNCTION || systemError == ERROR_NOT_SUPPORTED
           || systemError == ERROR_INVALID_PARAMETER;
}

/// The copy while it is written, beside its destination. Unless it has taken the destination's name it is
/// removed.
class CopyBeside
{
public:
    CopyBeside(SystemCalls &calls, const QString &destination) : calls_(calls)
    {
        // No model by its extension either: no list shows what a killed panel leaves behind.
        const QString start = u".kinovra-%1-"_s.arg(::GetCurrentProcessId());
        constexpr int MostNames = 1000;
        for (int number = 0; number < MostNames; ++number) {
            path_ = systemPath(joinPath(parentOf(destination), start + QString::number(number)));
            file_ = calls.create(path_);
            if (file_ != INVALID_HANDLE_VALUE)
                return;
            if (::GetLastError() != ERROR_FILE_EXISTS)
                break;
        }
        raiseForDirectory(::GetLastError());
    }
    ~CopyBeside()
    {
        if (file_ != INVALID_HANDLE_VALUE)
            calls_.close(file_);
        if (!path_.empty())
            ::DeleteFileW(path_.c_str());
    }
    CopyBeside(const CopyBeside &) = delete;
    CopyBeside &operator=(const CopyBeside &) = delete;

    void write(const QByteArray &bytes)
    {
        for (qsizetype done = 0; done < bytes.size();) {
            DWORD written = 0;
            if (!calls_.write(file_, bytes.constData() + done, static_cast<DWORD>(bytes.size() - done),
                              written))
                raise(::GetLastError());
            if (written == 0)
                raise(ERROR_WRITE_FAULT);
            done += static_cast<qsizetype>(written);
        }
    }

    // Writing has succeeded only when the file is closed: a share may tell a full disk only then.
    void finish()
    {
        if (!calls_.flush(file_) && !isUnsupported(::GetLastError()))
            raise(::GetLastError());
        if (!calls_.close(std::exchange(file_, INVALID_HANDLE_VALUE)))
            raise(::GetLastError());
        if (!calls_.reveal(path_))
            raise(::GetLastError());
    }

    void become(const QString &destination, bool replacing)
    {
        if (!calls_.rename(path_, systemPath(destination), replacing))
            raiseForRenaming(::GetLastError(), replacing);
        path_.clear();
    }

private:
    // Whoever shares the removal of a file keeps it from being replaced all the same. The rights were there.
    [[noreturn]] static void raiseForRenaming(DWORD error, bool replacing)
    {
        raise(replacing && error == ERROR_ACCESS_DENIED ? DWORD(ERROR_SHARING_VIOLATION) : error);
    }

    SystemCalls &calls_;
    std::wstring path_;
    HANDLE file_ = INVALID_HANDLE_VALUE;
};

// The system would say only that access is denied to a file that another program keeps open.
void requireReplaceable(const QString &path)
{
    constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(::CreateFileW(systemPath(path).c_str(), GENERIC_WRITE | DELETE, ShareAll, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isValid())
        raise(::GetLastError());
    if (::GetFileType(file.get()) != FILE_TYPE_DISK)
        throw RuntimeError(ErrorNumber::PathFileAccess);
}

// Whether there is a file to be replaced.
bool isReplacing(const QString &path, Replacing replacing)
{
    const DWORD attributes = attributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD error = ::GetLastError();
        if (error == ERROR_FILE_NOT_FOUND)
            return false;
        raise(error);
    }
    if (isDirectory(attributes))
        throw RuntimeError(ErrorNumber::PathFileAccess);
    if (replacing == Replacing::Refused)
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
        throw RuntimeError(ErrorNumber::PermissionDenied);
    requireReplaceable(path);
    return true;
}

} // namespace

void copyWholeFile(const QString &from, const QString &to, Replacing replacing, SystemCalls &calls)
{
    constexpr qsizetype BufferSize = 64 * qsizetype(1024);

    Handle source = openForReading(from);
    requirePossibleNames(to);
    const bool isReplaced = isReplacing(to, replacing);
    CopyBeside copy(calls, to);
    for (QByteArray bytes = readFrom(source, BufferSize); !bytes.isEmpty();
         bytes = readFrom(source, BufferSize))
        copy.write(bytes);
    // A file can be replaced by a copy of itself.
    source = Handle();
    copy.finish();
    copy.become(to, isReplaced);
}

} // namespace platform::host
