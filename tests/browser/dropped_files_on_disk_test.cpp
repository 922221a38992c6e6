// Files that are dropped from real directories.

#include "platform/linux/linux_file_system.h"
#include "printing.h"
#include "recording_platform.h"
#include "scratch_directory.h"
#include "shell/connect_rooms.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

class DroppedFileOnDisk : public testing::Test
{
protected:
    void SetUp() override { shell::connectRooms(panel); }

    void TearDown() override { files.changeDirectory(files.adopt("/")); }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna's trials"};
    platform::host::LinuxFileSystem files{QByteArray()};
    support::RecordingSettings settings;
    support::RecordingEnvironment environment;
    support::RecordingPrograms programs;
    support::RecordingDialogs dialogs;
    support::RecordingClock clock;
    support::RecordingRegistry registry;
    platform::Platform platform{settings, environment, files, programs, dialogs, clock, registry};
    shell::Panel panel{platform};
};

} // namespace

TEST_F(DroppedFileOnDisk, is_not_taken_for_its_namesake_in_a_directory_of_another_case)
{
    const QList<QByteArray> directories{"data", "DATA"};
    for (const QByteArray &directory : directories) {
        scratch.makeDirectory(directory);
        scratch.makeFile(directory + "/walk1.dg", "In " + directory + '\n');
    }
    for (const QByteArray &directory : directories + directories) {
        const QString file = files.panelForm(QString::fromUtf8(scratch.path(directory + "/walk1.dg")));
        shell::dispatch(panel, [this, &file] { panel.frm.FileDropped(file); });
        EXPECT_EQ(panel.frm.lblTitle.Caption.value(), u"In %1 "_s.arg(QString::fromUtf8(directory)));
    }
    EXPECT_THAT(dialogs.messages, IsEmpty());
}
