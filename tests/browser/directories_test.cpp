#include "browser/directories.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

class Directories : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"RUN1.DG", "run1.cfb", "walk.cfb", "run1.km", "Kinemati.out", "run1.plt"});
        addFile(u"C:\\Trials\\Old\\JUMP.DG"_s);
        machine.files.addDrive(u"d: [stick]"_s);
        load();
    }

    void chooseDrive(const QString &text)
    {
        frm.drvDrives.Drive = text;
        shell::dispatch(panel, frm.drvDrives.Change);
    }

    QStringList rows() const
    {
        QStringList result;
        for (int row = 0; row < frm.dirSelect.RowCount(); ++row)
            result.append(QString(frm.dirSelect.RowLevel(row), u'>') + frm.dirSelect.RowText(row));
        return result;
    }
};

TEST_F(Directories, show_ancestors_the_open_directory_and_what_is_below)
{
    open(u"C:\\"_s);
    open(u"C:\\Trials"_s);
    EXPECT_EQ(rows(), (QStringList{u"c:\\"_s, u">Trials"_s, u">>Old"_s}));
    EXPECT_EQ(frm.dirSelect.ListIndex.value(), 1);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\Trials"_s);
}

TEST_F(Directories, opened_become_the_data_directory)
{
    open(u"C:\\"_s);
    open(u"C:\\Trials"_s);
    open(u"C:\\Trials\\Old"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\Trials\\Old"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\Trials\\Old"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\trials\\old"_s);
    EXPECT_EQ(frm.filDatafiles.Names.value().toList(), QStringList{u"JUMP.DG"_s});
    EXPECT_EQ(frm.filModels.ListCount(), 0);
    EXPECT_EQ(frm.filBinaries.ListCount(), 0);
    EXPECT_EQ(frm.filOutputs.ListCount(), 0);
    EXPECT_EQ(frm.filPlots.ListCount(), 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(Directories, opened_forget_the_trial_the_binary_file_and_the_plot)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    click(frm.filBinaries, u"run1.km"_s);
    click(frm.filPlots, u"run1.plt"_s);
    open(u"C:\\"_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(kinovra.CurrentExtension, QString());
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_EQ(frm.SelectedPlot, QString());
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"none"_s);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), -1);
}

TEST_F(Directories, of_four_characters_become_the_data_directory)
{
    addFile(u"C:\\A\\RUN7.DG"_s);
    open(u"C:\\"_s);
    open(u"C:\\A"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\A"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\a"_s);
}

TEST_F(Directories, opened_make_their_drive_current)
{
    machine.files.changeDrive(u"d:"_s);
    ASSERT_EQ(machine.files.currentDirectory(), u"D:\\"_s);
    open(u"C:\\"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\"_s);
}

TEST_F(Directories, at_a_root_give_the_drives_text_as_data_directory)
{
    addFile(u"C:\\ROOT.DG"_s);
    open(u"C:\\"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\"_s);
    EXPECT_EQ(kinovra.DataDir, u"c: [data]"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c: [data]"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\"_s);
    EXPECT_EQ(frm.filDatafiles.Names.value().toList(), QStringList{u"ROOT.DG"_s});
    click(frm.filDatafiles, u"ROOT.DG"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"x "_s);
}

TEST_F(Directories, with_one_model_choose_it_at_once)
{
    addFile(u"C:\\One\\Squat.cfb"_s, "Model of a lifter\n");
    addFile(u"C:\\One\\RUN9.DG"_s);
    open(u"C:\\"_s);
    frm.lblTitle.Caption = u"(before)"_s;
    open(u"C:\\One"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"Squat.cfb"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"Squat"_s);
    EXPECT_EQ(kinovra.CurrentExtension, QString());
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"SQUAT"_s);
    EXPECT_EQ(frm.filModels.FileName(), u"Squat.cfb"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"(before)"_s) << "only a click reads the title";
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(Directories, ask_about_a_single_model_with_a_long_name)
{
    addFile(u"C:\\One\\my model.cfb"_s);
    machine.files.setShortName(u"C:\\One\\my model.cfb"_s, u"MYMODE~1.CFB"_s);
    open(u"C:\\"_s);
    for (controls::Control *control : std::initializer_list<controls::Control *>{
             &frm.filModels, &frm.lblModels, &frm.filDatafiles, &frm.lblDatafiles, &frm.filOutputs,
             &frm.lblOutputs, &frm.filPlots, &frm.lblPlots})
        control->Visible = false;
    machine.dialogs.answers = {platform::No};
    open(u"C:\\One"_s);
    EXPECT_EQ(messages(),
              QStringList{u"Warning.  This .CFB File has a 'long' filename and cannot be used by the "
                          "Kinovra system.\n\nFilename is: my model.cfb  Short filename is: "
                          "MYMODE~1.CFB\n\nPress Yes to continue or No to select a different file."_s});
    EXPECT_EQ(kinovra.SelectedFile, u"my model.cfb"_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"none"_s);
    // No ends the handler: the models are shown, the other lists stay hidden.
    EXPECT_TRUE(frm.filModels.Visible);
    EXPECT_TRUE(frm.lblModels.Visible);
    EXPECT_FALSE(frm.filDatafiles.Visible);
    EXPECT_FALSE(frm.lblOutputs.Visible);
    EXPECT_FALSE(frm.filPlots.Visible);
}

TEST_F(Directories, with_a_single_model_with_a_long_name_choose_it_on_yes)
{
    addFile(u"C:\\One\\my model.cfb"_s, "Title\n");
    machine.files.setShortName(u"C:\\One\\my model.cfb"_s, u"MYMODE~1.CFB"_s);
    open(u"C:\\"_s);
    frm.filDatafiles.Visible = false;
    frm.lblPlots.Visible = false;
    machine.dialogs.answers = {platform::Yes};
    open(u"C:\\One"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"my model"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"MY MODEL"_s);
    EXPECT_EQ(frm.filModels.ListIndex.value(), 0);
    EXPECT_TRUE(frm.filDatafiles.Visible);
    EXPECT_TRUE(frm.lblPlots.Visible);
}

TEST_F(Directories, show_the_lists_that_were_hidden)
{
    const std::initializer_list<controls::Control *> lists{
        &frm.filModels,  &frm.lblModels,  &frm.filDatafiles, &frm.lblDatafiles,
        &frm.filOutputs, &frm.lblOutputs, &frm.filPlots,     &frm.lblPlots};
    for (controls::Control *control : lists)
        control->Visible = false;
    frm.filBinaries.Visible = false;
    open(u"C:\\"_s);
    for (controls::Control *control : lists)
        EXPECT_TRUE(control->Visible);
    EXPECT_FALSE(frm.filBinaries.Visible);
}

TEST_F(Directories, are_read_once_when_they_are_opened)
{
    open(u"C:\\"_s);
    machine.files.directoriesRead = 0;
    machine.files.directoriesReadAnew = 0;
    open(u"C:\\Trials"_s);
    // Once for the directory list and once for all file lists; the host serves the second from the first.
    EXPECT_EQ(machine.files.directoriesRead, 2);
    EXPECT_EQ(machine.files.directoriesReadAnew, 1);
}

TEST_F(Directories, opened_again_keep_the_trial)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    open(u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);
}

TEST_F(Directories, opened_by_a_command_always_run_the_handler)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    browser::openDirectory(panel, u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"none"_s);
}

TEST_F(Directories, that_have_vanished_are_reported_and_leave_the_data_directory)
{
    open(u"C:\\"_s);
    machine.files.remove(u"C:\\Trials"_s);
    open(u"C:\\Trials"_s);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"There was a problem finding a path.  Error was Path not found"_s,
                                       Icon::Exclamation}));
    EXPECT_EQ(kinovra.DataDir, u"c: [data]"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\"_s);
}

TEST_F(Directories, that_cannot_become_current_are_reported)
{
    open(u"C:\\"_s);
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"changeDirectory")
            throw platform::RuntimeError(ErrorNumber::PermissionDenied);
    };
    open(u"C:\\Trials"_s);
    EXPECT_EQ(messages(), QStringList{u"There was a problem finding a path.  Error was Permission denied"_s});
    // The data directory stays as it was last set.
    EXPECT_EQ(kinovra.DataDir, u"C:\\Trials"_s);
}

TEST_F(Directories, that_cannot_become_current_leave_the_trial)
{
    machine.files.addDirectory(u"C:\\DATA\\Below"_s);
    click(frm.cmdRefresh);
    for (const QString &failing : {u"changeDrive"_s, u"changeDirectory"_s}) {
        browser::openDirectory(panel, u"C:\\DATA"_s);
        click(frm.filDatafiles, u"RUN1.DG"_s);
        click(frm.filBinaries, u"run1.km"_s);
        forget();
        machine.files.beforeCall = [&](const QString &call) {
            if (call == failing)
                throw platform::RuntimeError(ErrorNumber::PermissionDenied);
        };
        open(u"C:\\DATA\\Below"_s);
        machine.files.beforeCall = {};
        EXPECT_EQ(messages(),
                  QStringList{u"There was a problem finding a path.  Error was Permission denied"_s});
        EXPECT_EQ(kinovra.DataDir, u"C:\\DATA\\Below"_s);
        EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);
        EXPECT_EQ(kinovra.CurrentExtension, u"DG"_s);
        EXPECT_EQ(kinovra.BinaryFile, u"run1.km"_s);
        EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1.DG"_s);
        EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\data"_s);
        EXPECT_EQ(frm.filDatafiles.Path(), u"C:\\DATA"_s);
    }
}

TEST_F(Directories, impossible_rows_do_nothing)
{
    browser::openRow(panel, -1);
    browser::openRow(panel, 99);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(Directories, follow_the_chosen_drive)
{
    addFile(u"D:\\Stick\\RUN5.DG"_s);
    machine.files.changeDirectory(u"D:\\Stick"_s);
    chooseDrive(u"d: [stick]"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"D:\\Stick"_s);
    EXPECT_EQ(kinovra.DataDir, u"D:\\Stick"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"D:\\Stick"_s);
    EXPECT_EQ(frm.filDatafiles.Names.value().toList(), QStringList{u"RUN5.DG"_s});
}

TEST_F(Directories, at_the_root_of_a_chosen_drive_give_its_text)
{
    addFile(u"D:\\RUN5.DG"_s);
    chooseDrive(u"d: [stick]"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"D:\\"_s);
    EXPECT_EQ(kinovra.DataDir, u"d: [stick]"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"D:\\"_s);
    EXPECT_EQ(frm.filDatafiles.Names.value().toList(), QStringList{u"RUN5.DG"_s});
}

TEST_F(Directories, of_a_drive_that_is_not_ready_are_reported_and_the_old_drive_comes_back)
{
    machine.files.forbid(u"D:\\"_s, ErrorNumber::DiskNotReady);
    chooseDrive(u"d: [stick]"_s);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"There was a drive problem.\nError was: Disk not ready"_s,
                                       Icon::Exclamation}));
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"c: [data]"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
}

TEST_F(Directories, of_a_drive_that_cannot_become_current_are_reported_by_path_and_by_drive)
{
    addFile(u"D:\\RUN5.DG"_s);
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"changeDirectory")
            throw platform::RuntimeError(ErrorNumber::PathNotFound);
    };
    chooseDrive(u"d: [stick]"_s);
    EXPECT_EQ(messages(), (QStringList{u"There was a problem finding a path.  Error was Path not found"_s,
                                       u"There was a drive problem.\nError was: Path not found"_s}));
}

TEST_F(Directories, of_a_drive_that_was_pulled_out_are_reported)
{
    machine.files.removeDrive(u'D');
    chooseDrive(u"d: [stick]"_s);
    EXPECT_EQ(messages(), QStringList{u"There was a drive problem.\nError was: Device unavailable"_s});
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"c: [data]"_s);
}

TEST_F(Directories, opened_take_back_what_was_said_of_the_one_before)
{
    frm.StatusBar1.Panel1 = u"Kinemati.out is ready."_s;
    open(u"C:\\"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}

TEST_F(Directories, opened_say_that_no_binary_file_is_chosen_any_more)
{
    click(frm.filBinaries, u"run1.km"_s);
    open(u"C:\\"_s);
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"No binary file is chosen now."_s);
    frm.StatusBar1.Panel1 = QString();
    open(u"C:\\Trials"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}
