#include "browser/dropped_files.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::ErrorNumber;
using testing::IsEmpty;

namespace {

class DroppedFile : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"run.cfb", "jump.cfb"});
        addFile(u"C:\\DATA\\walk1.dg"_s, "A walk\n");
        addFile(u"C:\\Trials\\jump1.dg"_s, "A jump\n");
        addFile(u"C:\\Trials\\one.cfb"_s, "One model\n");
        addFile(u"C:\\Trials\\two.cfb"_s, "Two models\n");
        addFile(u"d:\\lift.dg"_s, "A lift\n");
        machine.files.addDrive(u"d: [stick]"_s);
        load();
    }

    void drop(const QString &path)
    {
        shell::dispatch(panel, [this, path] { frm.FileDropped(path); });
    }

    QString said() const { return frm.StatusBar1.Panel1.value(); }
};

} // namespace

TEST_F(DroppedFile, of_the_data_directory_is_chosen_as_by_a_click)
{
    drop(u"C:\\DATA\\walk1.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK1.dg"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"A walk "_s);
    EXPECT_EQ(frm.filDatafiles.FileName(), u"walk1.dg"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(DroppedFile, keeps_what_is_chosen_in_the_same_directory)
{
    kinovra.BinaryFile = u"run.km"_s;
    drop(u"C:\\DATA\\walk1.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"run.km"_s);
}

TEST_F(DroppedFile, that_is_new_is_found)
{
    addFile(u"C:\\DATA\\new.dg"_s, "New\n");
    drop(u"C:\\DATA\\new.dg"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"New "_s);
    addFile(u"C:\\DATA\\new.cfb"_s, "New model\n");
    drop(u"C:\\DATA\\new.cfb"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"New model "_s);
}

TEST_F(DroppedFile, of_another_directory_opens_that_first)
{
    drop(u"C:\\Trials\\jump1.dg"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\Trials"_s);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\Trials"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\trials"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"jump1"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"A jump "_s);
}

TEST_F(DroppedFile, of_another_drive_chooses_that_drive)
{
    drop(u"d:\\lift.dg"_s);
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"d: [stick]"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"d:\\"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"lift"_s);
}

TEST_F(DroppedFile, of_a_drive_that_has_come_since_the_start_chooses_that_drive)
{
    machine.files.addDrive(u"e: [new]"_s);
    addFile(u"e:\\lift.dg"_s, "A lift\n");
    drop(u"e:\\lift.dg"_s);
    EXPECT_EQ(frm.drvDrives.Drive.value(), u"e: [new]"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"lift"_s);
}

TEST_F(DroppedFile, that_is_a_model_is_chosen_as_one)
{
    drop(u"C:\\Trials\\two.cfb"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"two"_s);
    EXPECT_EQ(frm.filModels.FileName(), u"two.cfb"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Two models "_s);
    EXPECT_EQ(kinovra.CurrentExtension, QString());
}

TEST_F(DroppedFile, shows_the_list_that_it_is_in)
{
    for (controls::FileList *list : {&frm.filDatafiles, &frm.filModels})
        list->Visible = false;
    for (controls::Label *label : {&frm.lblDatafiles, &frm.lblModels})
        label->Visible = false;
    drop(u"C:\\DATA\\walk1.dg"_s);
    EXPECT_TRUE(frm.filDatafiles.Visible);
    EXPECT_TRUE(frm.lblDatafiles.Visible);
    EXPECT_FALSE(frm.filModels.Visible);
    drop(u"C:\\DATA\\run.cfb"_s);
    EXPECT_TRUE(frm.filModels.Visible);
    EXPECT_TRUE(frm.lblModels.Visible);
}

TEST_F(DroppedFile, with_a_long_name_is_asked_about)
{
    addFile(u"C:\\DATA\\a long name.dg"_s);
    machine.files.setShortName(u"C:\\DATA\\a long name.dg"_s, u"ALONGN~1.DG"_s);
    machine.dialogs.answers = {platform::No};
    drop(u"C:\\DATA\\a long name.dg"_s);
    ASSERT_EQ(machine.dialogs.messages.size(), 1U);
    EXPECT_EQ(machine.dialogs.messages[0].title, u"Long Filename Detected"_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
}

TEST_F(DroppedFile, of_another_kind_is_told_and_nothing_changes)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    for (const char *name : {"notes.txt", "dg", "cfb", "walk1.km", "walk1.", ".dgx"}) {
        frm.StatusBar1.Panel1 = QString();
        addFile(u"C:\\Trials\\"_s + QLatin1String(name));
        drop(u"C:\\Trials\\"_s + QLatin1String(name));
        EXPECT_EQ(said(), QLatin1String(name) + u" is neither a data file nor a model."_s);
        EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
        EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
    }
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(DroppedFile, that_is_gone_meanwhile_is_told)
{
    drop(u"C:\\Trials\\gone.dg"_s);
    EXPECT_EQ(said(), u"gone.dg is not in the list."_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
}

TEST_F(DroppedFile, is_not_taken_for_its_namesake_where_its_directory_cannot_become_current)
{
    addFile(u"C:\\Trials\\walk1.dg"_s, "Another walk\n");
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"changeDirectory")
            throw platform::RuntimeError(ErrorNumber::PermissionDenied);
    };
    machine.dialogs.answers = {platform::OK};
    drop(u"C:\\Trials\\walk1.dg"_s);
    machine.files.beforeCall = nullptr;
    EXPECT_EQ(messages(), QStringList{u"There was a problem finding a path.  Error was Permission denied"_s});
    EXPECT_EQ(kinovra.CurrentTrial, QString());
}

TEST_F(DroppedFile, is_not_taken_for_its_namesake_where_its_directory_cannot_be_opened)
{
    machine.dialogs.answers = {platform::OK};
    drop(u"C:\\Gone\\walk1.dg"_s);
    EXPECT_EQ(messages(), QStringList{u"There was a problem finding a path.  Error was Path not found"_s});
    EXPECT_EQ(kinovra.CurrentTrial, QString());
}

TEST_F(DroppedFile, from_a_directory_that_cannot_be_opened_is_told)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    machine.dialogs.answers = {platform::OK};
    drop(u"d:\\Gone\\lift.dg"_s);
    EXPECT_EQ(messages(), QStringList{u"There was a problem finding a path.  Error was Path not found"_s});
    EXPECT_EQ(frm.drvDrives.Drive.value().left(2), u"c:"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\DATA"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
}
