#include "launcher/companions.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::CommandText;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;
using Written = support::RecordingSettings::Written;

class Companions : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"my walk.dg"});
        load();
    }

    Start direct(const QString &program, const CommandText &parameters) const
    {
        return {QString(), u"C:\\KINOVRA\\"_s + program, parameters, u"C:\\DATA"_s, Show::Normal};
    }

    const MessageBox question{u"Press Yes to view Reduced Forces file (.rf), No to open Ondex2 or Cancel"_s,
                              Icon::Question, Buttons::YesNoCancel, u"View .RF file or open Ondex2?"_s};
};

TEST_F(Companions, start_without_a_file_where_there_is_no_trial)
{
    click(frm.cmdForces);
    click(frm.cmdSkelvo);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct(u"forces.exe"_s, u" ;"_s), direct(u"skelvo98.exe"_s, u" ;"_s)));
    EXPECT_EQ(kinovra.TaskId, 52);
}

TEST_F(Companions, start_on_the_trials_file)
{
    click(frm.filDatafiles, u"my walk.dg"_s);
    click(frm.cmdForces);
    click(frm.cmdSkelvo);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct(u"forces.exe"_s, u" "_s + CommandText::document(u"my walk.rf"_s)),
                            direct(u"skelvo98.exe"_s, u" "_s + CommandText::document(u"my walk.dg"_s))));
}

TEST_F(Companions, find_the_data_directory_in_the_settings)
{
    std::vector<size_t> writtenBefore;
    machine.programs.whileStarting = [&] { writtenBefore.push_back(machine.settings.written.size()); };
    click(frm.cmdForces);
    click(frm.cmdSkelvo);
    EXPECT_THAT(writtenBefore, ElementsAre(1U, 2U));
    const Written written{u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s};
    EXPECT_THAT(machine.settings.written, ElementsAre(written, written));
}

TEST_F(Companions, signal_processing_finds_it_in_its_own_settings_alone)
{
    size_t writtenBefore = 0;
    machine.programs.whileStarting = [&] { writtenBefore = machine.settings.written.size(); };
    click(frm.cmdOndex);
    EXPECT_EQ(writtenBefore, 1U);
    EXPECT_THAT(machine.settings.written,
                ElementsAre(Written{u"Ondex2"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s}));
    EXPECT_FALSE(machine.settings.values.contains(u"Kinovra/Startup/Datadir"_s));
}

TEST_F(Companions, signal_processing_starts_without_a_file_after_the_tests_own_message)
{
    click(frm.filDatafiles, u"my walk.dg"_s);
    click(frm.cmdOndex);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Error opening file: \"C:\\DATA\\MY WALK.RF\"  (53)\nFile not found"_s,
                               Icon::Exclamation}));
    EXPECT_THAT(machine.programs.started, ElementsAre(direct(u"ondex2.exe"_s, u" ;"_s)));
    EXPECT_EQ(kinovra.Answer, 53);
}

TEST_F(Companions, signal_processing_asks_about_the_force_file)
{
    addData({"my walk.rf"});
    click(frm.filDatafiles, u"my walk.dg"_s);
    machine.dialogs.answers = {platform::Yes, platform::No, platform::Cancel};

    click(frm.cmdOndex);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct(u"ondex2.exe"_s, u" "_s + CommandText::document(u"my walk.rf"_s))));
    forget();
    click(frm.cmdOndex);
    EXPECT_THAT(machine.programs.started, ElementsAre(direct(u"ondex2.exe"_s, u" ;"_s)));
    forget();
    click(frm.cmdOndex);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.TaskId, 2);
}

TEST_F(Companions, say_in_the_status_bar_alone_that_they_did_not_start)
{
    machine.programs.failure = u"it was not found"_s;
    click(frm.cmdForces);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"forces.exe was not started: it was not found."_s);
    EXPECT_EQ(kinovra.TaskId, 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(Companions, are_not_started_when_the_window_is_closed_meanwhile)
{
    addData({"my walk.rf"});
    click(frm.filDatafiles, u"my walk.dg"_s);
    machine.dialogs.answers = {platform::Yes};
    machine.dialogs.whileShown = [&](const MessageBox &) { panel.unloading = true; };
    click(frm.cmdOndex);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

class ForcePlateMenu : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"Walk 1.dg", "Walk 1.rf"});
        for (const char *program : {"fpanalyz.exe", "fphist.exe", "fpsig.exe"})
            addFile(u"C:\\KINOVRA\\"_s + QLatin1String(program));
        load();
        frm.mnuPrompt.Checked = false;
    }

    void chooseTrial()
    {
        click(frm.filDatafiles, u"Walk 1.dg"_s);
        forget();
        mark();
    }
};

TEST_F(ForcePlateMenu, runs_its_programs_on_the_reduced_force_file)
{
    struct Row
    {
        const char *program;
        const char *upper;
        const char *switches;
    };
    const Row table[]{{"FPAnalyz", "FPANALYZ", "/F/I "},
                      {"FPHist", "FPHIST", "/A/C "},
                      {"FPSig", "FPSIG", "/A/C/D/2 "},
                      {"FPSig", "FPSIG", "/A/C/D/3 "}};
    chooseTrial();
    // It takes no listing switch.
    kinovra.ListingSwitch = u"/T "_s;
    for (size_t i = 0; i < 4; ++i) {
        const Row &row = table[i];
        forget();
        mark();
        click(frm.mnuForce[i]);
        EXPECT_EQ(kinovra.ProgName, QString(QLatin1String(row.program)));
        EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\%1.exe"_s.arg(QLatin1String(row.program)));
        EXPECT_EQ(frm.Comm, CommandText(row.switches) + CommandText::document(u"Walk 1.rf"_s));
        EXPECT_THAT(machine.programs.started,
                    ElementsAre(Start{u"open"_s, u"C:\\KINOVRA\\%1.EXE"_s.arg(QLatin1String(row.upper)),
                                      CommandText(row.switches) + CommandText::document(u"WALK 1.RF"_s),
                                      u"C:\\DATA"_s, Show::Shown, 4711}));
        EXPECT_EQ(kinovra.Answer, 0);
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        expectMarkedBut({u"ProgName"_s, u"ProgPath"_s, u"Comm"_s, u"TaskId"_s, u"Answer"_s, u"lblCommand"_s});
    }
}

TEST_F(ForcePlateMenu, offers_no_listing)
{
    chooseTrial();
    frm.mnuPrompt.Checked = true;
    addData({"FPHist.out"});
    click(frm.mnuForce[1]);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.programs.started.size(), 1U);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1));
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\FPHist.out"_s);
}

TEST_F(ForcePlateMenu, needs_a_trial_and_its_forces_before_anything_else)
{
    mark();
    for (int index : {0, 4}) {
        launcher::mnuForce_Click(panel, index);
        EXPECT_THAT(
            machine.dialogs.messages,
            ElementsAre(MessageBox{u"Select a trial from the Select trial menu."_s, Icon::Exclamation}));
        EXPECT_THAT(machine.files.tested, IsEmpty());
        forget();
    }
    expectMarkedBut({});

    machine.files.remove(u"C:\\DATA\\Walk 1.rf"_s);
    chooseTrial();
    for (int index : {0, 4}) {
        launcher::mnuForce_Click(panel, index);
        EXPECT_THAT(machine.dialogs.messages,
                    ElementsAre(MessageBox{u"No force data files (.rf) were found for this trial.\n"
                                           "Trial is: Walk 1"_s,
                                           Icon::Exclamation}));
        EXPECT_EQ(kinovra.Answer, 53);
        EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\WALK 1.RF"_s));
        forget();
    }
    expectMarkedBut({u"Answer"_s});
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(ForcePlateMenu, has_four_items)
{
    chooseTrial();
    for (int index : {-1, 4}) {
        launcher::mnuForce_Click(panel, index);
        EXPECT_THAT(machine.dialogs.messages,
                    ElementsAre(MessageBox{u"Invalid case in mnuForce."_s, Icon::Exclamation}));
        forget();
    }
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({u"Answer"_s});
}

TEST_F(ForcePlateMenu, leaves_a_missing_program_to_the_runner)
{
    chooseTrial();
    machine.files.remove(u"C:\\KINOVRA\\fphist.exe"_s);
    click(frm.mnuForce[1]);
    EXPECT_EQ(messages(),
              QStringList(u"Error opening file: \"C:\\KINOVRA\\FPHIST.EXE\"  (53)\nFile not found"_s));
    EXPECT_EQ(kinovra.Answer, 1);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

class AnimateMenu : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"-my walk.dg"});
        load();
    }

    void chooseTrial()
    {
        click(frm.filDatafiles, u"-my walk.dg"_s);
        forget();
        mark();
    }
};

TEST_F(AnimateMenu, starts_skelvo_on_the_trials_file)
{
    chooseTrial();
    const char *extensions[]{".dg", ".cn", ".km", ".sn", "", ""};
    for (int index : {0, 1, 2, 3, 4, -1}) {
        const QString file = u"-my walk"_s + QLatin1String(extensions[index < 0 ? 5 : index]);
        forget();
        mark();
        launcher::mnuSkelvo_Click(panel, index);
        EXPECT_THAT(machine.programs.started,
                    ElementsAre(Start{QString(), u"C:\\KINOVRA\\Skelvo.exe"_s,
                                      u" "_s + CommandText::document(file), u"C:\\DATA"_s, Show::Shown}));
        EXPECT_EQ(kinovra.ProgName, u"Skelvo"_s);
        EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Skelvo.exe"_s);
        EXPECT_EQ(kinovra.SelectedFile, file);
        EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\skelvo.exe "_s + file);
        EXPECT_TRUE(frm.lblCommand.Visible);
        EXPECT_EQ(kinovra.TaskId, machine.programs.nextTask - 1);
        QStringList changed{u"ProgName"_s, u"ProgPath"_s, u"SelectedFile"_s, u"TaskId"_s, u"lblCommand"_s};
        if (index == 2)
            changed.append(u"Answer"_s);
        expectMarkedBut(changed);
    }
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(AnimateMenu, hands_over_filtered_data_with_their_segments)
{
    addData({"-my walk.ks"});
    chooseTrial();
    click(frm.mnuSkelvo[2]);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\-MY WALK.KS"_s));
    EXPECT_EQ(kinovra.Answer, 0);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    const Start &start = machine.programs.started[0];
    EXPECT_EQ(start.text(), u"C:\\KINOVRA\\Skelvo.exe  /g -my walk.km"_s);
    EXPECT_EQ(start.parameters.arguments(), (QStringList{u"/g"_s, u"-my walk.km"_s}));
    EXPECT_EQ(kinovra.SelectedFile, u" /g -my walk.km"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\skelvo.exe  /g -my walk.km"_s);

    machine.files.remove(u"C:\\DATA\\-my walk.ks"_s);
    forget();
    click(frm.mnuSkelvo[2]);
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_EQ(machine.programs.started.at(0).text(), u"C:\\KINOVRA\\Skelvo.exe -my walk.km"_s);
}

TEST_F(AnimateMenu, asks_for_segments_with_filtered_data_only)
{
    addData({"-my walk.ks"});
    chooseTrial();
    for (size_t i : {0, 1, 3}) {
        forget();
        click(frm.mnuSkelvo[i]);
        EXPECT_THAT(machine.files.tested, IsEmpty());
        EXPECT_FALSE(machine.programs.started.at(0).text().contains(u"/g"_s));
    }
}

TEST_F(AnimateMenu, enables_what_the_trial_has_when_it_opens)
{
    chooseTrial();
    struct Row
    {
        const char *present;
        const char *enabled;
    };
    const Row table[]{
        {"", "xxxx"},        {".dg", "0xxx"},         {".cn", "x1xx"},         {".dg .cn", "01xx"},
        {".km", "xx2x"},     {".dg .km", "0x2x"},     {".cn .km", "x12x"},     {".dg .cn .km", "012x"},
        {".sn", "xxx3"},     {".dg .sn", "0xx3"},     {".cn .sn", "x1x3"},     {".dg .cn .sn", "01x3"},
        {".km .sn", "xx23"}, {".dg .km .sn", "0x23"}, {".cn .km .sn", "x123"}, {".dg .cn .km .sn", "0123"}};
    for (const Row &row : table) {
        haveOnly(u"-my walk"_s, ".dg .cn .km .sn", row.present);
        openMenu(frm.mnuImages);
        EXPECT_EQ(enabledOf(frm.mnuSkelvo), QString(QLatin1String(row.enabled))) << row.present;
    }
    forget();
    openMenu(frm.mnuImages);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\-MY WALK.DG"_s, u"C:\\DATA\\-MY WALK.CN"_s,
                                                  u"C:\\DATA\\-MY WALK.KM"_s, u"C:\\DATA\\-MY WALK.SN"_s));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({});
}

TEST_F(AnimateMenu, asks_for_a_trial_first_and_stays_closed)
{
    EXPECT_TRUE(frm.mnuImages.AsksOnOpening());
    EXPECT_FALSE(frm.mnuImages.OpensAfterAsking);
    for (auto &item : frm.mnuSkelvo)
        item.Enabled = true;
    frm.filDatafiles.Visible = false;
    mark();
    openMenu(frm.mnuImages);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Select a trial from the Data or Model menus first."_s, Icon::Exclamation}));
    EXPECT_EQ(enabledOf(frm.mnuSkelvo), u"0123"_s);
    EXPECT_TRUE(frm.filDatafiles.Visible);
    EXPECT_THAT(machine.files.tested, IsEmpty());
    expectMarkedBut({});
    chooseTrial();
    EXPECT_FALSE(frm.mnuImages.AsksOnOpening());
}

TEST_F(AnimateMenu, offers_nothing_to_a_user_who_passes_along_without_a_trial)
{
    mark();
    shell::dispatch(panel, frm.mnuImages.Passed);
    EXPECT_EQ(enabledOf(frm.mnuSkelvo), u"xxxx"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({});
    chooseTrial();
    openMenu(frm.mnuImages);
    EXPECT_EQ(enabledOf(frm.mnuSkelvo), u"0xxx"_s);
}
