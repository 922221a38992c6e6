#include "browser/current_trial.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MessageBox Unreadable{u"File is empty or unreadable.  Select another file."_s, Icon::Exclamation,
                            Buttons::OKOnly, u"Unreadable File"_s};
const MessageBox UseConvert{u"Use the Convert item in the Data menu to create a .DG file."_s};

} // namespace

class DatafileClick : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addFile(u"C:\\DATA\\run1.dg"_s, "Sprint start, subject 4\r\n0.1 0.2\r\n");
        addFile(u"C:\\DATA\\Walk.Left.DG"_s, "Left side\n");
        addFile(u"C:\\DATA\\kick.1t"_s, "vendor");
        load();
    }
};

TEST_F(DatafileClick, in_an_empty_list_says_so)
{
    machine.files.addDirectory(u"C:\\DATA\\empty"_s);
    click(frm.cmdRefresh);
    open(u"C:\\DATA\\empty"_s);
    const QString before = kinovra.SelectedFile;
    shell::dispatch(panel, frm.filDatafiles.Click);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"No datafiles (*.DG) in this subdirectory."_s, Icon::Information}));
    EXPECT_EQ(kinovra.SelectedFile, before);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
}

TEST_F(DatafileClick, makes_the_file_the_trial)
{
    click(frm.filDatafiles, u"run1.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"run1.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"run1"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1.dg"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Sprint start, subject 4 "_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(DatafileClick, keeps_all_but_the_last_extension_in_the_trial)
{
    click(frm.filDatafiles, u"Walk.Left.DG"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"Walk.Left"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK.LEFT.DG"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Left side "_s);
}

TEST_F(DatafileClick, reads_the_title_in_the_data_directory_whatever_directory_is_current)
{
    machine.files.changeDirectory(u"C:\\KINOVRA"_s);
    click(frm.filDatafiles, u"run1.dg"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Sprint start, subject 4 "_s);
}

TEST_F(DatafileClick, hints_a_novice_at_the_converters_for_other_files)
{
    frm.lblTitle.Caption = u"old"_s;
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_EQ(frm.lblTrial.Caption.value(), u"KICK.1t"_s);
        EXPECT_EQ(frm.lblTitle.Caption.value(), u"old"_s);
    };
    click(frm.filDatafiles, u"kick.1t"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(UseConvert));
    EXPECT_EQ(frm.lblTitle.Caption.value(), u" (unknown)"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"kick"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"KICK.1t"_s);
}

TEST_F(DatafileClick, tells_an_expert_nothing_about_other_files)
{
    click(frm.mnuUser[1]);
    frm.lblTitle.Caption = u"old"_s;
    click(frm.filDatafiles, u"kick.1t"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"old"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"KICK.1t"_s);
}

TEST_F(DatafileClick, reports_an_empty_file)
{
    addFile(u"C:\\DATA\\run1.dg"_s, QByteArray());
    frm.lblTitle.Caption = u"(before)"_s;
    machine.dialogs.whileShown = [&](const MessageBox &) {
        EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1.dg"_s);
        EXPECT_EQ(frm.lblTitle.Caption.value(), u"(before)"_s);
    };
    click(frm.filDatafiles, u"run1.dg"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Unreadable));
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Unreadable or empty file."_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"run1"_s);
}

TEST_F(DatafileClick, reports_a_file_that_has_become_unreadable)
{
    machine.files.forbid(u"C:\\DATA\\run1.dg"_s, ErrorNumber::PermissionDenied);
    machine.dialogs.answers = {platform::OK};
    click(frm.filDatafiles, u"run1.dg"_s);
    // Its name is known all the same: it is no long one.
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Unreadable));
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Unreadable or empty file."_s);
}

TEST_F(DatafileClick, shows_an_empty_first_line_as_one_blank)
{
    addFile(u"C:\\DATA\\run1.dg"_s, "\r\nsecond line\r\n");
    click(frm.filDatafiles, u"run1.dg"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u" "_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

class LongNames : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addFile(u"C:\\DATA\\long trial.dg"_s, "A long one\n");
        addFile(u"C:\\DATA\\long model.cfb"_s, "A model\n");
        addFile(u"C:\\DATA\\other.cfb"_s, "Another\n");
        addFile(u"C:\\DATA\\RUN1.DG"_s, "Run\n");
        machine.files.setShortName(u"C:\\DATA\\long trial.dg"_s, u"LONGTR~1.DG"_s);
        machine.files.setShortName(u"C:\\DATA\\long model.cfb"_s, u"LONGMO~1.CFB"_s);
        machine.files.setShortName(u"C:\\DATA\\RUN1.DG"_s, u"run1.dg"_s);
        load();
    }

    const MessageBox dataQuestion{
        u"Warning.  Data file has a 'long' filename and cannot be used by the Kinovra system.\n\n"
        "Filename is: long trial.dg  Short filename is: LONGTR~1.DG\n\n"
        "Press Yes to continue or No to select a different file."_s,
        Icon::Exclamation, Buttons::YesNo, u"Long Filename Detected"_s};
    const MessageBox modelQuestion{
        u"Warning.  This .CFB File has a 'long' filename and cannot be used by the Kinovra system.\n\n"
        "Filename is: long model.cfb  Short filename is: LONGMO~1.CFB\n\n"
        "Press Yes to continue or No to select a different file."_s,
        Icon::Exclamation, Buttons::YesNo, u"Long Filename Detected"_s};
};

TEST_F(LongNames, are_asked_about)
{
    machine.dialogs.answers = {platform::Yes};
    click(frm.filDatafiles, u"long trial.dg"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(dataQuestion));
    EXPECT_EQ(kinovra.TaskId, 6);
    EXPECT_EQ(kinovra.CurrentTrial, u"long trial"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"LONG TRIAL.dg"_s);
}

TEST_F(LongNames, refused_change_nothing_but_the_selected_file)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    machine.dialogs.answers = {platform::No};
    click(frm.filDatafiles, u"long trial.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"long trial.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"DG"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1.DG"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Run "_s);
    EXPECT_EQ(kinovra.TaskId, 7);
}

TEST_F(LongNames, that_differ_in_case_alone_are_short)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(LongNames, of_models_are_asked_about_too)
{
    machine.dialogs.answers = {platform::Yes};
    click(frm.filModels, u"long model.cfb"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(modelQuestion));
    EXPECT_EQ(kinovra.CurrentTrial, u"long model"_s);
}

TEST_F(LongNames, of_models_refused_change_nothing_but_the_selected_file)
{
    click(frm.filModels, u"other.cfb"_s);
    forget();
    machine.dialogs.answers = {platform::No};
    click(frm.filModels, u"long model.cfb"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"long model.cfb"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"other"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Another "_s);
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(LongNames, of_a_file_that_is_gone_have_no_short_form)
{
    machine.files.remove(u"C:\\DATA\\RUN1.DG"_s);
    machine.dialogs.answers = {platform::No};
    click(frm.filDatafiles, u"RUN1.DG"_s);
    EXPECT_EQ(messages(),
              QStringList{u"Warning.  Data file has a 'long' filename and cannot be used by the Kinovra "
                          "system.\n\nFilename is: RUN1.DG  Short filename is: \n\n"
                          "Press Yes to continue or No to select a different file."_s});
}

TEST_F(LongNames, end_silently_where_the_window_is_closed_meanwhile)
{
    machine.dialogs.answers = {platform::Yes};
    machine.dialogs.whileShown = [&](const MessageBox &) { shell::dispatch(panel, frm.Unload); };
    click(frm.filModels, u"long model.cfb"_s);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    EXPECT_EQ(messages().size(), 1);
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

class ModelClick : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addFile(u"C:\\DATA\\walk.cfb"_s, "Model of a walker\r\nsegments\r\n");
        addFile(u"C:\\DATA\\run.cfb"_s, "Model of a runner\n");
        load();
    }
};

TEST_F(ModelClick, in_an_empty_list_says_so)
{
    machine.files.addDirectory(u"C:\\DATA\\empty"_s);
    click(frm.cmdRefresh);
    open(u"C:\\DATA\\empty"_s);
    shell::dispatch(panel, frm.filModels.Click);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"No models (.CFB) in this subdirectory."_s, Icon::Information}));
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(ModelClick, chooses_the_trial_of_the_same_name)
{
    kinovra.CurrentExtension = u"dg"_s;
    click(frm.filModels, u"walk.cfb"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"walk.cfb"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"Model of a walker "_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ModelClick, stores_the_data_directory)
{
    click(frm.filModels, u"walk.cfb"_s);
    using Written = support::RecordingSettings::Written;
    EXPECT_THAT(machine.settings.written,
                ElementsAre(Written{u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s}));
}

TEST_F(ModelClick, stores_the_data_directory_before_it_reads_the_title)
{
    addFile(u"C:\\DATA\\walk.cfb"_s, QByteArray());
    size_t writtenBefore = 0;
    machine.files.beforeCall = [&](const QString &call) {
        if (call == u"firstLine")
            writtenBefore = machine.settings.written.size();
    };
    click(frm.filModels, u"walk.cfb"_s);
    EXPECT_EQ(writtenBefore, 1U);
    using Written = support::RecordingSettings::Written;
    EXPECT_THAT(machine.settings.written,
                ElementsAre(Written{u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s}));
}

TEST_F(ModelClick, shows_that_a_model_is_empty_or_unreadable)
{
    addFile(u"C:\\DATA\\walk.cfb"_s, QByteArray());
    click(frm.filModels, u"walk.cfb"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u" Unreadable or empty file."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.CurrentTrial, u"walk"_s);
}

TEST_F(ModelClick, shows_that_a_model_may_not_be_read)
{
    click(frm.filModels, u"run.cfb"_s);
    forget();
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"firstLine")
            throw platform::RuntimeError(ErrorNumber::PermissionDenied);
    };
    click(frm.filModels, u"walk.cfb"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u" Unreadable or empty file."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

class TestTrialTest : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        for (controls::Control *control : browsing)
            control->Visible = false;
    }

    std::vector<controls::Control *> browsing{&frm.filDatafiles, &frm.lblDatafiles, &frm.filModels,
                                              &frm.lblModels,    &frm.drvDrives,    &frm.dirSelect};
};

TEST_F(TestTrialTest, without_a_trial_says_so_and_shows_where_to_choose_one)
{
    machine.dialogs.whileShown = [&](const MessageBox &) { EXPECT_FALSE(frm.filDatafiles.Visible); };
    EXPECT_TRUE(browser::TestTrial(panel));
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Select a trial from the Data or Model menus first."_s, Icon::Exclamation}));
    for (controls::Control *control : browsing)
        EXPECT_TRUE(control->Visible);
}

TEST_F(TestTrialTest, shows_the_six_controls_in_order)
{
    std::vector<controls::Control *> shown;
    std::vector<QPropertyNotifier> watches;
    watches.reserve(browsing.size());
    for (controls::Control *control : browsing)
        watches.push_back(control->Visible.addNotifier([&shown, control] { shown.push_back(control); }));
    browser::TestTrial(panel);
    EXPECT_EQ(shown, browsing);
}

TEST_F(TestTrialTest, with_a_trial_is_silent)
{
    kinovra.CurrentTrial = u"WALK1"_s;
    EXPECT_FALSE(browser::TestTrial(panel));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    for (controls::Control *control : browsing)
        EXPECT_FALSE(control->Visible);
}
