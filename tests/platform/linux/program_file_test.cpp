#include "platform/linux/program_file.h"
#include "scratch_directory.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using platform::host::interpreterOf;
using platform::host::ProgramKind;
using platform::host::programKind;
using platform::host::programKindOf;

namespace {

// A Windows or DOS program of 512 bytes whose new header is at 0x80.
QByteArray executable(const QByteArray &signature, char subsystem)
{
    QByteArray result(512, '\0');
    result.replace(0, 2, "MZ");
    result[0x3C] = '\x80';
    result.replace(0x80, signature.size(), signature);
    result[0x80 + 24 + 68] = subsystem;
    return result;
}

} // namespace

TEST(ProgramKind, is_what_the_header_says)
{
    EXPECT_EQ(programKind(QByteArray("\x7F"
                                     "ELF\x02\x01\x01")),
              ProgramKind::Native);
    EXPECT_EQ(programKind(QByteArray("#!/usr/bin/env python3\n")), ProgramKind::Native);
    EXPECT_EQ(programKind(executable(QByteArray("PE\0\0", 4), 3)), ProgramKind::WindowsConsole);
    EXPECT_EQ(programKind(executable(QByteArray("PE\0\0", 4), 2)), ProgramKind::WindowsGui);
    EXPECT_EQ(programKind(executable("NE", 0)), ProgramKind::WindowsGui);
    EXPECT_EQ(programKind(executable("LE", 0)), ProgramKind::Dos);
    EXPECT_EQ(programKind(executable("", 0)), ProgramKind::Dos);
    EXPECT_EQ(programKind(QByteArray("MZ")), ProgramKind::Dos);
}

TEST(ProgramKind, of_other_files_is_unknown)
{
    EXPECT_EQ(programKind(QByteArray()), ProgramKind::Unknown);
    EXPECT_EQ(programKind(QByteArray("Kinematics of WALK1\n")), ProgramKind::Unknown);
    EXPECT_EQ(programKind(QByteArray("%PDF-1.4")), ProgramKind::Unknown);
}

TEST(ProgramKind, survives_a_header_that_points_nowhere)
{
    QByteArray wild = executable(QByteArray("PE\0\0", 4), 3);
    wild.replace(0x3C, 4, QByteArray("\xFF\xFF\xFF\xFF"));
    EXPECT_EQ(programKind(wild), ProgramKind::Dos);
    wild.replace(0x3C, 4, QByteArray("\xFE\x01\x00\x00", 4)); // the last two bytes of the file
    EXPECT_EQ(programKind(wild), ProgramKind::Dos);
    EXPECT_EQ(programKind(executable(QByteArray("PE\0\0", 4), 3).first(0x90)), ProgramKind::WindowsGui);
}

TEST(ProgramKind, is_read_from_files_without_waiting)
{
    const support::ScratchDirectory scratch;
    scratch.makeFile("script", "#!/bin/true\n");
    scratch.makePipe("pipe");
    scratch.makeDirectory("folder");
    EXPECT_EQ(programKindOf(scratch.path("script")), ProgramKind::Native);
    EXPECT_EQ(programKindOf(scratch.path("pipe")), ProgramKind::Unknown);
    EXPECT_EQ(programKindOf(scratch.path("folder")), ProgramKind::Unknown);
    EXPECT_EQ(programKindOf(scratch.path("missing")), ProgramKind::Unknown);
}

TEST(ProgramKind, of_what_cannot_be_read_is_unknown)
{
    const support::ScratchDirectory scratch;
    scratch.makeFile("script", "#!/bin/true\n");
    ::chmod(scratch.path("script").constData(), 0);
    {
        const support::WithoutPrivileges nobody;
        EXPECT_EQ(programKindOf(scratch.path("script")), ProgramKind::Unknown);
    }
    // The process's own memory, of which nothing lies at its beginning.
    EXPECT_EQ(programKindOf("/proc/self/mem"), ProgramKind::Unknown);
}

TEST(Interpreter, is_the_first_word_of_a_scripts_first_line)
{
    const support::ScratchDirectory scratch;
    const auto interpreter = [&scratch](const QByteArray &content) {
        scratch.makeFile("program", content);
        return interpreterOf(scratch.path("program"));
    };
    EXPECT_EQ(interpreter("#!/bin/sh\nexit 0\n"), QByteArray("/bin/sh"));
    EXPECT_EQ(interpreter("#!/bin/sh"), QByteArray("/bin/sh"));
    EXPECT_EQ(interpreter("#!/usr/bin/env python3 -x\nimport sys\n"), QByteArray("/usr/bin/env"));
    EXPECT_EQ(interpreter("#! \t/bin/sh\t-e\n"), QByteArray("/bin/sh"));
    EXPECT_EQ(interpreter("#!/bin/sh\r\n"), QByteArray("/bin/sh\r"));
    EXPECT_EQ(interpreter(QByteArray("#!/bin/sh\0 -e\n", 15)), QByteArray("/bin/sh"));
    EXPECT_EQ(interpreter("#!perl\n"), QByteArray("perl"));
    EXPECT_EQ(interpreter("#!\n/bin/sh\n"), QByteArray());
    EXPECT_EQ(interpreter("#!"), QByteArray());
    EXPECT_EQ(interpreter("MZ\n"), QByteArray());
}
