#pragma once

#include "platform/windows/windows_programs.h"
#include "scratch_directory.h"
#include "windows_system.h"

#include <QString>
#include <gtest/gtest.h>

#include <vector>

namespace platform_tests {

/// What the echo program was started with.
struct Echo
{
    QString number;
    QString commandLine;
    QString directory;
    QString show;
    bool hasConsole = false;
};

struct Ended
{
    double value = 0;
    platform::Ending ending;
};

/// Starts real programs in a scratch directory with an awkward name.
class WindowsStarts : public testing::Test
{
protected:
    WindowsStarts();

    /// Puts a copy of the echo program, or of another program of the tests, at `name`.
    void install(const QString &name, const QString &program = QStringLiteral("echo_process.exe")) const;

    QString at(const QString &name) const { return base + u'\\' + name; }
    platform::Start open(const QString &file, const platform::CommandText &parameters = {}) const;
    /// The same without a verb.
    platform::Start direct(const QString &file, const platform::CommandText &parameters = {}) const;
    platform::Start document(const QString &name) const;

    /// Starts, once more where Wine has lost the process: one of some thousands does not come up there.
    platform::StartResult startUnlessLost(const platform::Start &start);
    /// Starts and waits for the end; what the echo program recorded, once.
    Echo run(const platform::Start &start);
    void waitForEnds(size_t count);
    /// Everything that was recorded.
    std::vector<Echo> records() const;
    /// Expects that this start fails, that it says so, and that nothing ran.
    void expectFailure(const platform::Start &start, const QString &why, double value);

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna & Bob's \xC3\xA4 data"};
    QString base = QString::fromUtf8(scratch.path()).replace(u'/', u'\\');
    support::SystemVariable echoFile{QStringLiteral("ECHO_FILE"), base + QStringLiteral("\\record")};
    platform::host::WindowsFileSystem files;
    platform::host::WindowsPrograms programs{files};
    std::vector<Ended> ends;
    platform::StartResult result;
    int lost = 0;
};

} // namespace platform_tests
