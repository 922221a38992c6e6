#include "averaging/averaging_menu.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using averaging::mnuAverage_Click;
using platform::Buttons;
using platform::CommandText;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MessageBox Question{
    u"No binary data file was selected.  Press Yes to use default (.pj), No to select another file or Cancel to quit."_s,
    Icon::Question, Buttons::YesNoCancel, u"Binary data file not selected"_s};
const MessageBox Hint{u"Select binary data file from Binary output listbox."_s, Icon::None, Buttons::OKOnly,
                      u"Binary data file not selected"_s};

} // namespace

class AveragingMenu : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"TRIAL1.DG", "Trial1.pj", "other.pj"});
        addFile(u"C:\\KINOVRA\\average.exe"_s);
        addFile(u"C:\\KINOVRA\\average.txt"_s, "How to average\r\nx");
        load();
        click(frm.filDatafiles, u"TRIAL1.DG"_s);
        frm.mnuPrompt.Checked = false;
        frm.filBinaries.Visible = false;
        frm.lblBinaries.Visible = false;
        forget();
    }

    static Start average(const CommandText &parameters)
    {
        return {u"open"_s, u"C:\\KINOVRA\\AVERAGE.EXE"_s, parameters, u"C:\\DATA"_s, Show::Shown, 4711};
    }

    bool binariesShown() const { return frm.filBinaries.Visible && frm.lblBinaries.Visible; }
    bool binariesHidden() const { return !frm.filBinaries.Visible && !frm.lblBinaries.Visible; }
};

TEST_F(AveragingMenu, new_average_shows_the_dialog)
{
    kinovra.BinaryFile = u"Trial1.pj"_s;
    mark();
    click(frm.mnuAverage[0]);
    EXPECT_TRUE(newAverage.Visible);
    EXPECT_EQ(kinovra.BinaryFile, u"Trial1.pj"_s);
    EXPECT_EQ(newAverage.txtBinary.Text.value(), u"Trial1.pj"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
    expectMarkedBut({});
}

TEST_F(AveragingMenu, add_runs_the_program_on_the_binary_file)
{
    kinovra.BinaryFile = u"Other.pj"_s;
    mark();
    click(frm.mnuAverage[1]);
    EXPECT_THAT(machine.programs.started, ElementsAre(average(CommandText::document(u"OTHER.PJ"_s))));
    EXPECT_EQ(kinovra.ProgName, u"Average"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Average.exe"_s);
    EXPECT_EQ(frm.Comm, CommandText::document(u"Other.pj"_s));
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(kinovra.TaskId, 42);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\average.exe other.pj"_s);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(kinovra.BinaryFile, u"Other.pj"_s);
    // The listing goes to a file: it is what was selected last.
    expectMarkedBut({u"ProgName"_s, u"SelectedFile"_s, u"ProgPath"_s, u"Comm"_s, u"Answer"_s, u"TaskId"_s,
                     u"lblCommand"_s});
}

TEST_F(AveragingMenu, add_lists_the_file_behind_the_others_without_showing_the_dialog)
{
    kinovra.BinaryFile = u"Other.pj"_s;
    newAverage.comFilenames.AddItem(u"first.pj"_s);
    click(frm.mnuAverage[1]);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), (QStringList{u"first.pj"_s, u"Other.pj"_s}));
    EXPECT_FALSE(newAverage.Visible);
}

TEST_F(AveragingMenu, add_before_the_dialog_was_ever_shown_leaves_no_placeholder)
{
    kinovra.BinaryFile = u"Other.pj"_s;
    click(frm.mnuAverage[1]);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), QStringList{u"Other.pj"_s});
    click(frm.mnuAverage[2]);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), QStringList{u"Other.pj"_s});
}

TEST_F(AveragingMenu, subtract_has_its_switch_and_lists_nothing)
{
    kinovra.BinaryFile = u"Other.pj"_s;
    newAverage.comFilenames.AddItem(u"first.pj"_s);
    click(frm.mnuAverage[3]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(average(u"/S "_s + CommandText::document(u"OTHER.PJ"_s))));
    EXPECT_EQ(kinovra.ProgName, u"Average"_s);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), QStringList{u"first.pj"_s});
}

TEST_F(AveragingMenu, both_carry_the_switch_of_the_listing_device)
{
    const char *switches[]{"", "/T ", "/L ", "/N "};
    const int devices[]{0, 1, 2, 3};
    for (const int device : devices) {
        click(frm.mnuListing[static_cast<size_t>(device)]);
        kinovra.BinaryFile = u"TRIAL1.pj"_s;
        click(frm.mnuAverage[1]);
        EXPECT_EQ(frm.Comm.text(), QLatin1String(switches[device]) + u"TRIAL1.pj"_s);
        click(frm.mnuAverage[3]);
        EXPECT_EQ(frm.Comm.text(), QLatin1String(switches[device]) + u"/S TRIAL1.pj"_s);
    }
}

TEST_F(AveragingMenu, yes_takes_the_trials_own_binary_file)
{
    machine.dialogs.answers = {platform::Yes};
    click(frm.mnuAverage[1]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Question));
    EXPECT_EQ(kinovra.BinaryFile, u"TRIAL1.pj"_s);
    EXPECT_THAT(machine.programs.started, ElementsAre(average(CommandText::document(u"TRIAL1.PJ"_s))));
    EXPECT_EQ(newAverage.comFilenames.Items.value(), QStringList{u"TRIAL1.pj"_s});
    EXPECT_TRUE(binariesHidden());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"The binary file is TRIAL1.pj now."_s);
}

TEST_F(AveragingMenu, the_answer_to_the_question_is_kept_until_the_start)
{
    double duringStart = 0;
    machine.programs.whileStarting = [&] { duringStart = kinovra.TaskId; };
    machine.dialogs.answers = {platform::Yes};
    click(frm.mnuAverage[3]);
    EXPECT_EQ(duringStart, 6);
    EXPECT_EQ(kinovra.TaskId, 42);
}

TEST_F(AveragingMenu, no_and_cancel_show_where_to_choose_a_file)
{
    for (const int item : {1, 3}) {
        for (const platform::Answer answer : {platform::No, platform::Cancel}) {
            frm.filBinaries.Visible = false;
            frm.lblBinaries.Visible = false;
            forget();
            mark();
            machine.dialogs.answers = {answer, platform::OK};
            machine.dialogs.whileShown = [this](const MessageBox &) { EXPECT_TRUE(binariesHidden()); };
            click(frm.mnuAverage[static_cast<size_t>(item)]);
            EXPECT_THAT(machine.dialogs.messages, ElementsAre(Question, Hint));
            EXPECT_TRUE(binariesShown());
            EXPECT_EQ(kinovra.TaskId, answer);
            EXPECT_EQ(kinovra.BinaryFile, QString());
            EXPECT_EQ(newAverage.comFilenames.ListCount(), 0);
            EXPECT_THAT(machine.programs.started, IsEmpty());
            expectMarkedBut({u"TaskId"_s});
        }
    }
}

TEST_F(AveragingMenu, a_missing_program_is_told_of)
{
    machine.files.remove(u"C:\\KINOVRA\\average.exe"_s);
    kinovra.BinaryFile = u"Other.pj"_s;
    click(frm.mnuAverage[1]);
    EXPECT_EQ(messages(),
              QStringList{u"Error opening file: \"C:\\KINOVRA\\AVERAGE.EXE\"  (53)\nFile not found"_s});
    EXPECT_EQ(kinovra.Answer, 1);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(AveragingMenu, compute_forgets_the_binary_file)
{
    kinovra.BinaryFile = u"Other.pj"_s;
    mark();
    click(frm.mnuAverage[2]);
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_TRUE(newAverage.Visible);
    EXPECT_EQ(newAverage.txtBinary.Text.value(), u"Average.av"_s);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), QStringList{u"Not Available"_s});
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"No binary file is chosen now."_s);
    expectMarkedBut({});
}

TEST_F(AveragingMenu, compute_says_nothing_where_no_file_was_chosen)
{
    frm.StatusBar1.Panel1 = u"Kinemati.out is ready."_s;
    click(frm.mnuAverage[2]);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Kinemati.out is ready."_s);
}

TEST_F(AveragingMenu, help_shows_the_text)
{
    mark();
    click(frm.mnuAverage[4]);
    EXPECT_TRUE(viewer.Visible);
    EXPECT_EQ(kinovra.ViewerFile, u"C:\\KINOVRA\\average.txt"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(viewer.txtViewer.Text.value(), u"How to average\n"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
    expectMarkedBut({u"ViewerFile"_s, u"Answer"_s});
}

TEST_F(AveragingMenu, help_that_is_missing_goes_on_with_adding)
{
    machine.files.remove(u"C:\\KINOVRA\\average.txt"_s);
    kinovra.BinaryFile = u"Other.pj"_s;
    mark();
    click(frm.mnuAverage[4]);
    EXPECT_EQ(messages(),
              QStringList{u"Error opening file: \"C:\\KINOVRA\\AVERAGE.TXT\"  (53)\nFile not found"_s});
    EXPECT_THAT(machine.programs.started, ElementsAre(average(CommandText::document(u"OTHER.PJ"_s))));
    EXPECT_EQ(newAverage.comFilenames.ListCount(), 0);
    EXPECT_FALSE(viewer.Visible);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(kinovra.ViewerFile, u"(before)"_s);
}

TEST_F(AveragingMenu, help_that_is_missing_asks_for_a_binary_file_as_adding_does)
{
    machine.files.remove(u"C:\\KINOVRA\\average.txt"_s);
    machine.dialogs.answers = {platform::OK, platform::No, platform::OK};
    click(frm.mnuAverage[4]);
    ASSERT_EQ(machine.dialogs.messages.size(), 3U);
    EXPECT_EQ(machine.dialogs.messages[1], Question);
    EXPECT_EQ(machine.dialogs.messages[2], Hint);
    EXPECT_TRUE(binariesShown());
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(AveragingMenu, program_options_pass_exactly_their_switch)
{
    click(frm.mnuListing[1]);
    mark();
    kinovra.ProgName = u"Kinemati"_s;
    click(frm.mnuAverage[5]);
    EXPECT_THAT(machine.programs.started, ElementsAre(average(u" /?"_s)));
    EXPECT_EQ(kinovra.ProgName, u"Kinemati"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\average.exe  /?"_s);
    kinovra.ProgName = u"(before)"_s;
    expectMarkedBut({u"Answer"_s, u"TaskId"_s, u"lblCommand"_s});
}

TEST_F(AveragingMenu, program_options_offer_the_listing_of_the_program_before)
{
    addData({"Kinemati.out"});
    kinovra.ProgName = u"Kinemati"_s;
    frm.mnuPrompt.Checked = true;
    machine.dialogs.answers = {platform::No};
    click(frm.mnuAverage[5]);
    EXPECT_EQ(messages(),
              QStringList{u"Do you want to view the output produced by the program, \nKINEMATI.  If so, "
                          "click Yes to view the output?"_s});
}

TEST_F(AveragingMenu, adding_offers_the_programs_listing)
{
    kinovra.BinaryFile = u"Other.pj"_s;
    frm.mnuPrompt.Checked = true;
    machine.dialogs.answers = {platform::No};
    click(frm.mnuAverage[1]);
    EXPECT_EQ(messages(),
              QStringList{u"Do you want to view the output produced by the program, \nAVERAGE.  If so, "
                          "click Yes to view the output?"_s});
    EXPECT_EQ(machine.clock.pauses, std::vector<double>{1});
}

TEST_F(AveragingMenu, any_other_index_adds_without_listing)
{
    for (const int index : {-1, 6, 99}) {
        forget();
        kinovra.BinaryFile = u"Other.pj"_s;
        shell::dispatch(panel, [&] { mnuAverage_Click(panel, index); });
        EXPECT_THAT(machine.programs.started, ElementsAre(average(CommandText::document(u"OTHER.PJ"_s))));
        EXPECT_EQ(newAverage.comFilenames.ListCount(), 0);
    }
}

TEST_F(AveragingMenu, a_file_that_the_user_chooses_meanwhile_is_not_announced)
{
    machine.dialogs.answers = {platform::Yes, platform::No};
    frm.mnuPrompt.Checked = true;
    machine.clock.duringPause(0.5, [this] { click(frm.filBinaries, u"other.pj"_s); });
    click(frm.mnuAverage[1]);
    EXPECT_EQ(kinovra.BinaryFile, u"other.pj"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}

TEST_F(AveragingMenu, a_start_that_fails_is_told_beside_the_file)
{
    machine.programs.failure = u"it is not a program"_s;
    machine.dialogs.answers = {platform::Yes};
    click(frm.mnuAverage[1]);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"AVERAGE.EXE was not started: it is not a program. The binary file is TRIAL1.pj now."_s);
}
