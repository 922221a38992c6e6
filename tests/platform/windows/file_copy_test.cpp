// A copy under failures of every step: the source stays untouched, the destination is the old file or the new
// one and never anything between, and nothing is left beside them.

#include "platform/runtime_error.h"
#include "platform/windows/file_copy.h"
#include "platform/windows/windows_file_system.h"
#include "printing.h"
#include "scratch_directory.h"
#include "windows_system.h"

#include <QDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using platform::Replacing;
using platform::host::copyWholeFile;
using platform::host::Handle;
using platform::host::SystemCalls;

namespace {

/// Lets one of the calls fail.
class FailingCalls : public SystemCalls
{
public:
    HANDLE create(const std::wstring &path) override
    {
        return fails() ? INVALID_HANDLE_VALUE : SystemCalls::create(path);
    }
    bool write(HANDLE file, const char *bytes, DWORD size, DWORD &written) override
    {
        return !fails() && SystemCalls::write(file, bytes, std::min(size, mostAtOnce), written);
    }
    bool flush(HANDLE file) override { return !fails() && SystemCalls::flush(file); }
    // What cannot be written at last is closed all the same.
    bool close(HANDLE file) override
    {
        SystemCalls::close(file);
        return !fails();
    }
    bool reveal(const std::wstring &path) override { return !fails() && SystemCalls::reveal(path); }
    bool rename(const std::wstring &from, const std::wstring &to, bool replacing) override
    {
        return !fails() && SystemCalls::rename(from, to, replacing);
    }

    int failing = -1; ///< the number of that call
    DWORD error = 0;
    DWORD mostAtOnce = 1U << 30U;
    int made = 0;

private:
    bool fails()
    {
        ::SetLastError(error);
        return made++ == failing;
    }
};

class FileCopy : public testing::Test
{
protected:
    void SetUp() override
    {
        scratch.makeFile("walk1.cfb", fresh);
        scratch.makeFile("walk2.cfb", "old");
    }

    QString at(const QString &name) const { return base + u'\\' + name; }

    // The number of the error, 0 where there is none.
    qint16 copy(const QString &from, const QString &to, SystemCalls &calls,
                Replacing replacing = Replacing::Agreed) const
    {
        return errorOf([&] { copyWholeFile(at(from), at(to), replacing, calls); });
    }
    qint16 copy(const QString &to, SystemCalls &calls, Replacing replacing = Replacing::Agreed) const
    {
        return copy(u"walk1.cfb"_s, to, calls, replacing);
    }

    static qint16 errorOf(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }

    Handle kept(const QString &name, DWORD access, DWORD sharing) const
    {
        return Handle(::CreateFileW(support::longForm(at(name)).c_str(), access, sharing, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    }

    DWORD attributes(const QString &name) const
    {
        return ::GetFileAttributesW(support::longForm(at(name)).c_str());
    }

    QStringList names() const
    {
        return QDir(base).entryList(
            QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    const QByteArray fresh = QByteArray("0123456789").repeated(20'000);
    support::ScratchDirectory scratch{"models"};
    QString base = QString::fromUtf8(scratch.path()).replace(u'/', u'\\');
};

// Create, four pieces, flush, close, reveal, rename.
constexpr int Steps = 9;

} // namespace

TEST_F(FileCopy, takes_these_steps)
{
    FailingCalls calls;
    EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 0);
    EXPECT_EQ(calls.made, Steps);
    EXPECT_EQ(scratch.read("walk2.cfb"), fresh);
    EXPECT_EQ(scratch.read("walk1.cfb"), fresh);
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

TEST_F(FileCopy, leaves_the_old_file_or_none_where_a_step_fails)
{
    const std::pair<DWORD, qint16> errors[]{{ERROR_DISK_FULL, 61},        {1295, 61},
                                            {ERROR_FILE_TOO_LARGE, 61},   {ERROR_ACCESS_DENIED, 70},
                                            {ERROR_WRITE_PROTECT, 70},    {ERROR_SHARING_VIOLATION, 55},
                                            {ERROR_USER_MAPPED_FILE, 55}, {ERROR_IO_DEVICE, 57},
                                            {ERROR_NOT_READY, 71},        {ERROR_NETNAME_DELETED, 68},
                                            {ERROR_BAD_NETPATH, 76},      {ERROR_TOO_MANY_OPEN_FILES, 67},
                                            {ERROR_INVALID_HANDLE, 75}};
    for (const auto &[error, number] : errors) {
        for (int step = 0; step < Steps; ++step) {
            FailingCalls calls;
            calls.failing = step;
            calls.error = error;
            // The right to replace it was there before: it is open.
            const bool isOpen = error == ERROR_ACCESS_DENIED && step == Steps - 1;
            EXPECT_EQ(copy(u"walk2.cfb"_s, calls), isOpen ? 55 : number) << error << " in step " << step;
            EXPECT_EQ(scratch.read("walk2.cfb"), "old") << error << " in step " << step;
            calls.made = 0;
            EXPECT_EQ(copy(u"walk3.cfb"_s, calls, Replacing::Refused), number)
                << error << " in step " << step;
            EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s})) << error << " in step " << step;
        }
    }
    EXPECT_EQ(scratch.read("walk1.cfb"), fresh);
}

TEST_F(FileCopy, goes_on_after_short_writes)
{
    for (DWORD most : {1'000U, 4'095U, 65'535U}) {
        FailingCalls calls;
        calls.mostAtOnce = most;
        EXPECT_EQ(copy(u"walk3.cfb"_s, calls), 0);
        EXPECT_EQ(scratch.read("walk3.cfb"), fresh);
    }
}

TEST_F(FileCopy, fails_where_nothing_more_is_written)
{
    class StuckCalls : public SystemCalls
    {
    public:
        bool write(HANDLE, const char *, DWORD, DWORD &written) override
        {
            written = 0;
            return true;
        }
    } calls;
    EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 57);
    EXPECT_EQ(scratch.read("walk2.cfb"), "old");
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

TEST_F(FileCopy, is_whole_where_the_file_system_knows_no_flushing)
{
    class PoorCalls : public SystemCalls
    {
    public:
        bool flush(HANDLE) override
        {
            ::SetLastError(flushError);
            return false;
        }
        DWORD flushError = 0;
    } calls;
    for (DWORD error : {DWORD(ERROR_INVALID_FUNCTION), DWORD(ERROR_NOT_SUPPORTED)}) {
        scratch.makeFile("walk2.cfb", "old");
        calls.flushError = error;
        EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 0) << error;
        EXPECT_EQ(scratch.read("walk2.cfb"), fresh) << error;
    }
}

TEST_F(FileCopy, closes_what_it_opens)
{
    FailingCalls calls;
    copy(u"walk2.cfb"_s, calls);
    const int before = support::openHandles();
    for (int step = -1; step < Steps; ++step) {
        calls.made = 0;
        calls.failing = step;
        calls.error = ERROR_DISK_FULL;
        copy(u"walk2.cfb"_s, calls);
    }
    EXPECT_LE(support::openHandles(), before);
}

TEST_F(FileCopy, does_not_replace_what_has_come_meanwhile)
{
    class ComesMeanwhile : public SystemCalls
    {
    public:
        explicit ComesMeanwhile(const support::ScratchDirectory &directory) : scratch(directory) {}
        bool flush(HANDLE file) override
        {
            scratch.makeFile("walk3.cfb", "from another program");
            return SystemCalls::flush(file);
        }
        const support::ScratchDirectory &scratch;
    } calls(scratch);
    for (Replacing replacing : {Replacing::Refused, Replacing::Agreed}) {
        scratch.remove("walk3.cfb");
        EXPECT_EQ(copy(u"walk3.cfb"_s, calls, replacing), 58) << "there was nothing to agree about";
        EXPECT_EQ(scratch.read("walk3.cfb"), "from another program");
        EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s, u"walk3.cfb"_s}));
    }
}

TEST_F(FileCopy, leaves_other_copies_that_are_on_their_way)
{
    const QByteArray first = ".kinovra-" + QByteArray::number(qint64(::GetCurrentProcessId())) + "-0";
    scratch.makeFile(first, "of another computer");
    SystemCalls calls;
    EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 0);
    EXPECT_EQ(scratch.read("walk2.cfb"), fresh);
    EXPECT_EQ(scratch.read(first), "of another computer");
}

TEST_F(FileCopy, gives_up_where_it_cannot_begin)
{
    class NoBeginning : public SystemCalls
    {
    public:
        HANDLE create(const std::wstring &) override
        {
            ::SetLastError(error);
            return INVALID_HANDLE_VALUE;
        }
        DWORD error = ERROR_FILE_EXISTS;
    } calls;
    EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 58) << "every name beside it is taken";
    calls.error = ERROR_FILE_NOT_FOUND;
    EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 76) << "its directory is missing";
    EXPECT_EQ(scratch.read("walk2.cfb"), "old");
}

TEST_F(FileCopy, is_hidden_and_no_model_until_it_is_whole)
{
    class WatchingCalls : public SystemCalls
    {
    public:
        bool flush(HANDLE file) override
        {
            wchar_t path[1000];
            ::GetFinalPathNameByHandleW(file, path, 1000, 0);
            name = QString::fromWCharArray(path).section(u'\\', -1);
            isHidden = (::GetFileAttributesW(path) & FILE_ATTRIBUTE_HIDDEN) != 0;
            return SystemCalls::flush(file);
        }
        QString name;
        bool isHidden = false;
    } calls;
    EXPECT_EQ(copy(u"walk3.cfb"_s, calls), 0);
    EXPECT_TRUE(calls.isHidden);
    EXPECT_TRUE(calls.name.startsWith(u".kinovra-")) << calls.name.toStdString();
    EXPECT_FALSE(calls.name.endsWith(u".cfb", Qt::CaseInsensitive));
    EXPECT_EQ(attributes(u"walk3.cfb"_s) & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM), 0U);
}

TEST_F(FileCopy, does_not_replace_what_its_owner_has_protected)
{
    SystemCalls calls;
    ::SetFileAttributesW(support::longForm(at(u"walk2.cfb"_s)).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 70);
    EXPECT_EQ(scratch.read("walk2.cfb"), "old");
    EXPECT_NE(attributes(u"walk2.cfb"_s) & FILE_ATTRIBUTE_READONLY, 0U);
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

TEST_F(FileCopy, may_be_that_of_a_protected_file)
{
    SystemCalls calls;
    ::SetFileAttributesW(support::longForm(at(u"walk1.cfb"_s)).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(copy(u"walk3.cfb"_s, calls), 0);
    EXPECT_EQ(scratch.read("walk3.cfb"), fresh);
    EXPECT_EQ(attributes(u"walk3.cfb"_s) & FILE_ATTRIBUTE_READONLY, 0U) << "the copy is to be edited";
}

TEST_F(FileCopy, does_not_replace_what_another_program_keeps_open)
{
    SystemCalls calls;
    for (DWORD sharing : {0U, 1U, 3U}) {
        for (DWORD access : {DWORD(GENERIC_READ), DWORD(GENERIC_WRITE)}) {
            const Handle keeping = kept(u"walk2.cfb"_s, access, sharing);
            ASSERT_TRUE(keeping.isValid());
            EXPECT_EQ(copy(u"walk2.cfb"_s, calls), 55) << sharing << ' ' << access;
        }
        EXPECT_EQ(scratch.read("walk2.cfb"), "old");
    }
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

// Who shares even its removal may see it go, but need not.
TEST_F(FileCopy, replaces_what_another_program_shares_or_says_that_it_is_open)
{
    SystemCalls calls;
    const Handle keeping =
        kept(u"walk2.cfb"_s, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    const qint16 error = copy(u"walk2.cfb"_s, calls);
    EXPECT_TRUE(error == 0 || error == 55) << error;
    EXPECT_EQ(scratch.read("walk2.cfb"), error == 0 ? fresh : QByteArray("old"));
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

TEST_F(FileCopy, reads_what_another_program_lets_it_read)
{
    SystemCalls calls;
    {
        const Handle keeping = kept(u"walk1.cfb"_s, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ);
        EXPECT_EQ(copy(u"walk3.cfb"_s, calls), 0);
    }
    const Handle keeping = kept(u"walk1.cfb"_s, GENERIC_READ, 0);
    EXPECT_EQ(copy(u"walk4.cfb"_s, calls), 70);
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s, u"walk3.cfb"_s}));
}

TEST_F(FileCopy, refuses_what_is_no_file)
{
    scratch.makeDirectory("folder.cfb");
    SystemCalls calls;
    EXPECT_EQ(copy(u"folder.cfb"_s, calls), 75);
    EXPECT_EQ(copy(u"folder.cfb"_s, u"walk3.cfb"_s, calls), 75);
    EXPECT_EQ(copy(u"missing.cfb"_s, u"walk3.cfb"_s, calls), 53);
    EXPECT_EQ(copy(u"nowhere\\walk1.cfb"_s, u"walk3.cfb"_s, calls), 76);
    EXPECT_EQ(copy(u"nowhere\\walk3.cfb"_s, calls), 76);
    EXPECT_EQ(copy(u"wa*k.cfb"_s, calls), 52);
    EXPECT_EQ(names(), (QStringList{u"folder.cfb"_s, u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

// No other program could open them, or remove them.
TEST_F(FileCopy, makes_no_file_that_is_called_like_a_device)
{
    SystemCalls calls;
    for (const QString &name : {u"CON"_s, u"nul.cfb"_s, u"Com1.cfb"_s, u"LPT³.cfb"_s, u"..."_s, u"   "_s})
        EXPECT_EQ(copy(name, calls, Replacing::Refused), 52) << name.toStdString();
    for (const QString &name : {u"..."_s, u"   "_s})
        ::DeleteFileW(support::longForm(at(name)).c_str());
    EXPECT_EQ(names(), (QStringList{u"walk1.cfb"_s, u"walk2.cfb"_s}));
}

TEST_F(FileCopy, goes_through_the_file_systems_own_calls)
{
    auto owned = std::make_unique<FailingCalls>();
    FailingCalls &calls = *owned;
    const support::KeptDirectory directory;
    platform::host::WindowsFileSystem files(std::move(owned));
    const auto copyFile = [&](const QString &to, Replacing replacing) {
        return errorOf([&] { files.copyFile(at(u"WALK1.CFB"_s), at(to), replacing); });
    };
    EXPECT_EQ(copyFile(u"WALK2.cfb"_s, Replacing::Refused), 58);
    EXPECT_EQ(calls.made, 0) << "nothing is begun that cannot be ended";
    EXPECT_EQ(copyFile(u"WALK2.CFB"_s, Replacing::Agreed), 0);
    EXPECT_EQ(copyFile(u"Walk3.Cfb"_s, Replacing::Refused), 0);
    EXPECT_EQ(names(), (QStringList{u"Walk3.Cfb"_s, u"walk1.cfb"_s, u"walk2.cfb"_s}));
    EXPECT_EQ(scratch.read("walk2.cfb"), fresh);
    EXPECT_EQ(errorOf([&] { files.copyFile(at(u"walk2.cfb"_s), at(u"WALK2.CFB"_s), Replacing::Agreed); }), 0);
    EXPECT_EQ(scratch.read("walk2.cfb"), fresh) << "onto itself";
}
