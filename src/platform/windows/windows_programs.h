#pragma once

#include "platform/programs.h"
#include "platform/windows/process_watch.h"
#include "platform/windows/system_starts.h"
#include "platform/windows/windows_file_system.h"

namespace platform::host {

/// Starts programs with the exact command line that was composed, and lets the system open documents, folders
/// and addresses. Every program is started by its full path; names that today's system lacks have their
/// successors.
class WindowsPrograms : public Programs
{
public:
    explicit WindowsPrograms(WindowsFileSystem &files);
    ~WindowsPrograms() override;
    WindowsPrograms(const WindowsPrograms &) = delete;
    WindowsPrograms &operator=(const WindowsPrograms &) = delete;

    StartResult start(const Start &start) override;

private:
    Started begin(const Start &start);
    Started startProgram(const Start &start, const QString &directory) const;
    Started openDocument(const Start &start, const QString &directory) const;
    Started openFilm(const Start &start, const QString &directory) const;

    WindowsFileSystem &files_;
    ProcessWatch watch_;
    double lastValue_ = 32;
    bool leavesSystemParts_ = false; ///< the parts that open documents were made ready here
};

} // namespace platform::host
