#include "data/digitized_data.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

class Datafile : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        for (const char *program : {"Refila", "Skelvo", "Renumber"})
            addFile(u"C:\\KINOVRA\\"_s + QLatin1String(program) + u".exe"_s);
        addData({"Walk1.dg", "walk2.dg", "Walk1.ren"});
        load();
        click(frm.filDatafiles, u"Walk1.dg"_s);
        frm.mnuPrompt.Checked = false;
        forget();
    }
};

TEST_F(Datafile, shows_the_data_files_and_leaves_the_choice_among_several)
{
    addData({"walk3.dg"});
    frm.filDatafiles.Visible = false;
    frm.lblDatafiles.Visible = false;
    click(frm.mnuDatafile[0]);
    EXPECT_TRUE(frm.filDatafiles.Visible);
    EXPECT_TRUE(frm.lblDatafiles.Visible);
    EXPECT_EQ(frm.filDatafiles.ListCount(), 3) << "the list was refreshed";
    EXPECT_EQ(kinovra.CurrentTrial, u"Walk1"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK1.dg"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(Datafile, takes_the_only_data_file_up_to_its_first_dot)
{
    machine.files.remove(u"C:\\DATA\\Walk1.dg"_s);
    machine.files.remove(u"C:\\DATA\\walk2.dg"_s);
    addData({"walk.left.1t"});
    machine.files.setShortName(u"C:\\DATA\\walk.left.1t"_s, u"WALKLE~1.1T"_s);
    frm.lblTitle.Caption = u"(before)"_s;
    kinovra.BinaryFile = u"walk.km"_s;
    mark();
    click(frm.mnuDatafile[0]);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s) << "only a click in the list changes it";
    expectMarkedBut({});
    EXPECT_EQ(kinovra.BinaryFile, u"walk.km"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"(before)"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty()) << "nor is it warned of a long name";
}

TEST_F(Datafile, leads_to_another_directory_where_there_is_no_data_file)
{
    addData({"a.cfb", "b.cfb"});
    click(frm.cmdRefresh);
    click(frm.filModels, u"b.cfb"_s);
    forget();
    machine.files.remove(u"C:\\DATA\\Walk1.dg"_s);
    machine.files.remove(u"C:\\DATA\\walk2.dg"_s);
    std::vector<controls::Control *> browsing{&frm.drvDrives, &frm.dirSelect,    &frm.filModels,
                                              &frm.lblModels, &frm.filDatafiles, &frm.lblDatafiles};
    for (controls::Control *control : browsing)
        control->Visible = false;
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_TRUE(frm.filDatafiles.Visible && frm.lblDatafiles.Visible);
        EXPECT_FALSE(frm.drvDrives.Visible) << "the message comes first";
    };
    frm.filModels.Pattern = u"*.*"_s;
    click(frm.mnuDatafile[0]);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"No datafiles in this directory.\nOpen another directory."_s,
                                       Icon::Exclamation}));
    for (controls::Control *control : browsing)
        EXPECT_TRUE(control->Visible);
    EXPECT_EQ(frm.filModels.Pattern, u"*.cfb"_s);
    EXPECT_EQ(frm.filModels.Names.value().toList(), (QStringList{u"a.cfb"_s, u"b.cfb"_s}));
    EXPECT_EQ(frm.filModels.ListIndex, -1);
    EXPECT_EQ(kinovra.CurrentTrial, u"b"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"B"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(Datafile, scales_and_refines_with_every_listing_device)
{
    const char *arguments[]{"WALK1.DG", "/T WALK1.DG", "/L WALK1.DG", "/N WALK1.DG"};
    const char *composed[]{"Walk1.dg", "/T Walk1.dg", "/L Walk1.dg", "/N Walk1.dg"};
    for (size_t device = 0; device < 4; ++device) {
        click(frm.mnuListing[device]);
        forget();
        mark();
        click(frm.mnuDatafile[1]);
        const QString text = QLatin1String(arguments[device]);
        ASSERT_EQ(machine.programs.started.size(), 1U) << device;
        const Start &start = machine.programs.started[0];
        EXPECT_EQ(start.verb, u"open"_s);
        EXPECT_EQ(start.file, u"C:\\KINOVRA\\REFILA.EXE"_s);
        EXPECT_EQ(start.parameters.text(), text);
        EXPECT_EQ(start.parameters.documents(), (QList<CommandText::Range>{{text.size() - 8, 8}}));
        EXPECT_EQ(start.directory, u"C:\\DATA"_s);
        EXPECT_EQ(start.show, Show::Shown);
        EXPECT_EQ(kinovra.ProgName, u"Refila"_s);
        EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Refila.exe"_s);
        EXPECT_EQ(frm.Comm.text(), QString(QLatin1String(composed[device])));
        EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\refila.exe "_s + text.toLower());
        EXPECT_TRUE(frm.lblCommand.Visible);
        EXPECT_EQ(kinovra.TaskId, 0) << "the runner's result, not the value of the start";
        EXPECT_EQ(kinovra.SelectedFile, device == 0 ? u"C:\\DATA\\Refila.out"_s : u"(before)"_s);
        QStringList changed{u"ProgName"_s, u"TaskId"_s, u"ProgPath"_s, u"Comm"_s, u"lblCommand"_s};
        if (device == 0)
            changed.append(u"SelectedFile"_s);
        expectMarkedBut(changed);
    }
}

TEST_F(Datafile, scaling_offers_its_listing)
{
    frm.mnuPrompt.Checked = true;
    addData({"Refila.out"});
    machine.dialogs.answers = {platform::No};
    click(frm.mnuDatafile[1]);
    ASSERT_EQ(machine.dialogs.messages.size(), 1U);
    EXPECT_EQ(machine.dialogs.messages[0].title, u"View output"_s);
    EXPECT_TRUE(machine.dialogs.messages[0].text.contains(u"\nREFILA."_s));
}

TEST_F(Datafile, keeps_the_runners_result_where_the_program_is_missing)
{
    machine.files.remove(u"C:\\KINOVRA\\Refila.exe"_s);
    machine.files.remove(u"C:\\KINOVRA\\Skelvo.exe"_s);
    mark();
    click(frm.mnuDatafile[1]);
    EXPECT_EQ(kinovra.TaskId, 1);
    EXPECT_EQ(kinovra.Answer, -1);
    mark();
    click(frm.mnuDatafile[2]);
    EXPECT_EQ(kinovra.Answer, 1);
    EXPECT_EQ(kinovra.TaskId, -1);
    EXPECT_EQ(messages(),
              (QStringList{u"Error opening file: \"C:\\KINOVRA\\REFILA.EXE\"  (53)\nFile not found"_s,
                           u"Error opening file: \"C:\\KINOVRA\\SKELVO.EXE\"  (53)\nFile not found"_s}));
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(Datafile, animates_through_the_runner_without_a_listing_switch)
{
    for (size_t device = 0; device < 4; ++device) {
        click(frm.mnuListing[device]);
        forget();
        mark();
        frm.mnuPrompt.Checked = true;
        click(frm.mnuDatafile[2]);
        EXPECT_THAT(machine.programs.started, ElementsAre(Start{u"open"_s, u"C:\\KINOVRA\\SKELVO.EXE"_s,
                                                                CommandText::document(u"WALK1.DG"_s),
                                                                u"C:\\DATA"_s, Show::Shown, 4711}));
        EXPECT_THAT(machine.dialogs.messages, IsEmpty()) << "it writes no listing to offer";
        EXPECT_EQ(kinovra.ProgName, u"Skelvo"_s);
        EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Skelvo.exe"_s);
        expectMarkedBut(
            {u"ProgName"_s, u"SelectedFile"_s, u"TaskId"_s, u"Answer"_s, u"ProgPath"_s, u"lblCommand"_s});
        EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\skelvo.exe walk1.dg"_s);
        EXPECT_EQ(kinovra.Answer, 0);
        EXPECT_EQ(kinovra.TaskId, 42) << "the start's own value stays";
        EXPECT_EQ(kinovra.SelectedFile, device == 0 ? u"C:\\DATA\\Skelvo.out"_s : u"Walk1.dg"_s);
    }
}

TEST_F(Datafile, opens_the_data_in_notepad_whatever_the_text_viewer_is)
{
    kinovra.TextViewer = u"C:\\tools\\reader.exe"_s;
    click(frm.mnuListing[1]);
    mark();
    click(frm.mnuDatafile[3]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"Notepad.exe"_s, u" "_s + CommandText::document(u"Walk1.dg"_s),
                                  u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(machine.programs.started[0].text(), u"Notepad.exe Walk1.dg"_s);
    EXPECT_EQ(kinovra.ProgName, u"Notepad"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"Walk1.dg"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"ProgName"_s, u"SelectedFile"_s, u"TaskId"_s});
    EXPECT_THAT(machine.files.tested, IsEmpty());
}

TEST_F(Datafile, renumbers_directly)
{
    click(frm.mnuListing[1]);
    mark();
    click(frm.mnuDatafile[4]);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\WALK1.DG"_s)) << "the program is not tested";
    EXPECT_THAT(machine.programs.started, ElementsAre(Start{QString(), u"C:\\KINOVRA\\Renumber.exe"_s,
                                                            u" "_s + CommandText::document(u"Walk1.dg"_s),
                                                            u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(kinovra.ProgName, u"Renumber"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Renumber.exe"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"Walk1.dg"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\KINOVRA\\Renumber.exe Walk1.dg"_s);
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    expectMarkedBut(
        {u"ProgName"_s, u"SelectedFile"_s, u"TaskId"_s, u"Answer"_s, u"ProgPath"_s, u"lblCommand"_s});
}

TEST_F(Datafile, does_not_renumber_what_is_not_there)
{
    machine.files.remove(u"C:\\DATA\\Walk1.dg"_s);
    mark();
    click(frm.mnuDatafile[4]);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"Error opening file: \"C:\\DATA\\WALK1.DG\"  (53)\nFile not found"_s,
                                       Icon::Exclamation}));
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.Answer, 53);
    expectMarkedBut({u"Answer"_s});
}

TEST_F(Datafile, says_why_renumbering_did_not_start)
{
    machine.programs.failure = u"it was not found"_s;
    click(frm.mnuDatafile[4]);
    EXPECT_EQ(kinovra.TaskId, 0);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Renumber.exe was not started: it was not found."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(Datafile, does_not_ask_for_a_trial)
{
    kinovra.CurrentTrial.clear();
    click(frm.mnuDatafile[1]);
    click(frm.mnuDatafile[2]);
    click(frm.mnuDatafile[3]);
    ASSERT_EQ(machine.programs.started.size(), 3U);
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u".DG"_s);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u".DG"_s);
    EXPECT_EQ(machine.programs.started[2].text(), u"Notepad.exe .dg"_s);
    forget();
    click(frm.mnuDatafile[4]);
    EXPECT_EQ(messages(), QStringList{u"Error opening file: \"C:\\DATA\\.DG\"  (53)\nFile not found"_s});
}

TEST_F(Datafile, knows_no_other_item)
{
    mark();
    for (int index : {-1, 5}) {
        shell::dispatch(panel, [this, index] { data::mnuDatafile_Click(panel, index); });
    }
    const MessageBox error{u"Program select error in Datafile menu."_s, Icon::Exclamation};
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(error, error));
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({});
}

namespace {

// Which files there are, and what the Data menu then offers, "x" for what is greyed out: the five items, then
// the conversions.
struct DataMenuRow
{
    const char *files;
    const char *enabled;
};

constexpr DataMenuRow DataMenu[]{
    {"", "0xxxx 012x456"},
    {".dg", "0x23x 012x456"},
    {".cn", "0xxxx 012x456"},
    {".ren", "0xxxx 012x456"},
    {".cda", "0xxxx 0123456"},
    {".dg .cn", "0123x 012x456"},
    {".dg .ren", "0x234 012x456"},
    {".dg .cda", "0x23x 0123456"},
    {".cn .ren", "0xxxx 012x456"},
    {".cn .cda", "0xxxx 0123456"},
    {".ren .cda", "0xxxx 0123456"},
    {".dg .cn .ren", "01234 012x456"},
    {".dg .cn .cda", "0123x 0123456"},
    {".dg .ren .cda", "0x234 0123456"},
    {".cn .ren .cda", "0xxxx 0123456"},
    {".dg .cn .ren .cda", "01234 0123456"},
};

} // namespace

class DataMenuOpening : public support::PanelFixture
{
protected:
    static constexpr const char *All = ".dg .cn .ren .cda";

    void SetUp() override { load(); }

    QString enabled() const { return enabledOf(frm.mnuDatafile) + u' ' + enabledOf(frm.mnuConvert); }
};

TEST_F(DataMenuOpening, greys_out_what_cannot_run)
{
    kinovra.CurrentTrial = u"WALK1"_s;
    for (const DataMenuRow &row : DataMenu) {
        // From every state that another trial may have left.
        for (bool before : {true, false}) {
            for (size_t i = 1; i < 5; ++i)
                frm.mnuDatafile[i].Enabled = before;
            frm.mnuConvert[3].Enabled = before;
            haveOnly(u"WALK1"_s, All, row.files);
            openMenu(frm.mnuDatafiles);
            EXPECT_EQ(enabled(), QString(QLatin1String(row.enabled))) << row.files;
        }
    }
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(DataMenuOpening, keeps_the_last_tests_result)
{
    kinovra.CurrentTrial = u"walk1"_s;
    haveOnly(u"walk1"_s, All, ".dg .cn .ren");
    const QStringList four{u"C:\\DATA\\WALK1.DG"_s, u"C:\\DATA\\WALK1.CN"_s, u"C:\\DATA\\WALK1.REN"_s,
                           u"C:\\DATA\\WALK1.CDA"_s};
    openMenu(frm.mnuDatafiles);
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_EQ(machine.files.tested, four);
    haveOnly(u"walk1"_s, All, ".cda");
    forget();
    mark();
    openMenu(frm.mnuDatafiles);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(machine.files.tested, four) << "also where the data are missing";
    expectMarkedBut({u"Answer"_s});
}

TEST_F(DataMenuOpening, greys_out_all_commands_but_the_selection_without_a_trial)
{
    openMenu(frm.mnuDatafiles);
    EXPECT_EQ(enabled(), u"0xxxx 012x456"_s);
}
