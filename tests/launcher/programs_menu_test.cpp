#include "launcher/programs_menu.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
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

namespace {

const MessageBox NotRefined{
    u"Data have not been Refined/scaled or Converted.\nClick on the Data menu to convert your "
    "digitized data."_s,
    Icon::Information};
const MessageBox CreateModel{
    u"No models (.CFB files) in this directory.\nDo you want to create a new model (.CFB) file."_s,
    Icon::Question, Buttons::YesNo};

struct Composed
{
    const char *prog;       ///< what the menu composes
    const char *file;       ///< what the system is asked to open
    const char *onDisk;     ///< arguments with the listing on disk
    const char *onDiskWait; ///< and with the pause item checked
    const char *onScreen;
    const char *onScreenWait;
    const char *printed;
    const char *printedWait;
    const char *none;
    const char *noneWait;
};

// All thirteen items for the trial Walk1, under every combination of listing device and pause.
constexpr Composed Items[]{
    {"C:\\Kv\\Errcheck.exe", "C:\\KV\\ERRCHECK.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1",
     "/L WALK1", "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Fourier.exe", "C:\\KV\\FOURIER.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Noise.exe", "C:\\KV\\NOISE.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Kinemati.exe", "C:\\KV\\KINEMATI.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1",
     "/L WALK1", "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Momentum.exe", "C:\\KV\\MOMENTUM.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1",
     "/L WALK1", "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Muscle.exe", "C:\\KV\\MUSCLE.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Energy.exe", "C:\\KV\\ENERGY.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Torque.exe", "C:\\KV\\TORQUE.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Force.exe", "C:\\KV\\FORCE.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Powers.exe", "C:\\KV\\POWERS.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1", "/L WALK1",
     "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Interact.exe", "C:\\KV\\INTERACT.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1",
     "/L WALK1", "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Simulate.exe", "C:\\KV\\SIMULATE.EXE", "WALK1", "/D WALK1", "/T WALK1", "/T /D WALK1",
     "/L WALK1", "/L /D WALK1", "/N WALK1", "/N /D WALK1"},
    {"C:\\Kv\\Interact.exe", "C:\\KV\\INTERACT.EXE", "/C WALK1", "/C /D WALK1", "/T /C WALK1",
     "/T /C /D WALK1", "/L /C WALK1", "/L /C /D WALK1", "/N /C WALK1", "/N /C /D WALK1"},
};

} // namespace

class ProgClick : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        for (const char *program : {"refila", "errcheck", "fourier", "noise", "kinemati", "momentum",
                                    "muscle", "energy", "torque", "force", "powers", "interact", "simulate"})
            addFile(u"C:\\Kv\\"_s + QLatin1String(program) + u".exe"_s);
        addFile(u"C:\\Kv\\graphs\\RUN.GRA"_s);
        machine.environment.variables[u"KINOVRA"_s] = u"C:\\Kv"_s;
        addData({"Walk1.dg", "Walk1.cn"});
        load();
        click(frm.filDatafiles, u"Walk1.dg"_s);
        click(frm.mnuPrompt);
    }

    void expectStart(size_t item, const char *arguments)
    {
        const QString text = QLatin1String(arguments);
        forget();
        click(frm.mnuProg[item]);
        ASSERT_EQ(machine.programs.started.size(), 1U) << item << ' ' << arguments;
        const Start &start = machine.programs.started[0];
        EXPECT_EQ(start.verb, u"open"_s);
        EXPECT_EQ(start.file, QString(QLatin1String(Items[item].file)));
        EXPECT_EQ(start.parameters.text(), text);
        // The trial is the one document: five characters at the end.
        EXPECT_EQ(start.parameters.documents(), (QList<CommandText::Range>{{text.size() - 5, 5}}));
        EXPECT_EQ(start.directory, u"C:\\DATA"_s);
        EXPECT_EQ(start.show, Show::Shown);
        EXPECT_EQ(start.owner, 4711);
        EXPECT_EQ(frm.ProgPath, QString(QLatin1String(Items[item].prog)));
        EXPECT_EQ(frm.lblCommand.Caption.value(), (QLatin1String(Items[item].prog) + u' ' + text).toLower());
        EXPECT_EQ(kinovra.Answer, 0);
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    }
};

TEST_F(ProgClick, composes_the_command_line_for_every_item_device_and_pause)
{
    for (size_t item = 0; item < 13; ++item) {
        const Composed &row = Items[item];
        const std::array<const char *, 4> plain{row.onDisk, row.onScreen, row.printed, row.none};
        const std::array<const char *, 4> waiting{row.onDiskWait, row.onScreenWait, row.printedWait,
                                                  row.noneWait};
        for (size_t device = 0; device < 4; ++device) {
            click(frm.mnuListing[device]);
            expectStart(item, plain[device]);
            click(frm.mnuPause);
            expectStart(item, waiting[device]);
            click(frm.mnuPause);
        }
    }
}

TEST_F(ProgClick, keeps_the_case_of_what_it_composes)
{
    click(frm.mnuProg[3]);
    EXPECT_EQ(frm.ProgPath, u"C:\\Kv\\Kinemati.exe"_s);
    EXPECT_EQ(frm.Comm.text(), u"Walk1"_s);
    EXPECT_EQ(kinovra.ProgName, u"Kinemati"_s);
}

TEST_F(ProgClick, names_every_program)
{
    const char *names[]{"Errcheck", "Fourier", "Noise",  "Kinemati", "Momentum", "Muscle",  "Energy",
                        "Torque",   "Force",   "Powers", "Interact", "Simulate", "Interact"};
    for (size_t item = 0; item < 13; ++item) {
        click(frm.mnuProg[item]);
        EXPECT_EQ(kinovra.ProgName, QString(QLatin1String(names[item])));
    }
}

TEST_F(ProgClick, refuses_the_first_four_without_refined_data)
{
    machine.files.remove(u"C:\\DATA\\Walk1.cn"_s);
    for (size_t item = 0; item < 13; ++item) {
        forget();
        kinovra.ProgName = u"before"_s;
        click(frm.mnuProg[item]);
        if (item <= 3) {
            EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotRefined)) << item;
            EXPECT_THAT(machine.programs.started, IsEmpty()) << item;
            EXPECT_EQ(kinovra.Answer, 53) << item;
            EXPECT_EQ(kinovra.ProgName, u"before"_s) << item;
        } else {
            EXPECT_THAT(machine.dialogs.messages, IsEmpty()) << item;
            EXPECT_EQ(machine.programs.started.size(), 1U) << item;
        }
    }
}

TEST_F(ProgClick, reports_a_missing_program)
{
    machine.files.remove(u"C:\\Kv\\kinemati.exe"_s);
    click(frm.mnuProg[3]);
    EXPECT_EQ(kinovra.Answer, 1);
    EXPECT_EQ(messages(),
              QStringList{u"Error opening file: \"C:\\KV\\KINEMATI.EXE\"  (53)\nFile not found"_s});
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(ProgClick, offers_the_listing_of_its_program)
{
    addData({"Kinemati.out"});
    click(frm.mnuPrompt);
    machine.dialogs.answers = {platform::Yes};
    click(frm.mnuProg[3]);
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u"C:\\DATA\\Kinemati.out"_s);
}

TEST_F(ProgClick, of_a_new_simulation_neither_prompts_nor_refreshes)
{
    click(frm.mnuPrompt);
    click(frm.mnuPause);
    addData({"Walk1.sim"});
    click(frm.mnuProg[12]);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u"/C /D WALK1"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(frm.filBinaries.ListCount(), 0);
}

TEST_F(ProgClick, with_an_index_of_its_own_runs_a_program_without_a_name)
{
    launcher::mnuProg_Click(panel, 13);
    EXPECT_EQ(kinovra.ProgName, QString());
    EXPECT_EQ(frm.ProgPath, u"C:\\Kv\\.exe"_s);
    EXPECT_EQ(kinovra.Answer, 1);
    launcher::mnuProg_Click(panel, -1);
    EXPECT_EQ(kinovra.ProgName, QString());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

class ProgsMenu : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"walk1.dg", "walk1.cfb", "run1.cfb"});
        load();
        click(frm.filDatafiles, u"walk1.dg"_s);
        forget();
    }

    void openWith(std::initializer_list<const char *> extensions)
    {
        for (const char *extension : extensions)
            addFile(u"C:\\DATA\\WALK1"_s + QLatin1String(extension));
        openMenu(frm.mnuProgs);
    }

    void checkAll(bool checked)
    {
        for (auto &item : frm.mnuProg)
            item.Checked = checked;
    }

    void enableAll(bool enabled)
    {
        for (auto &item : frm.mnuProg)
            item.Enabled = enabled;
        frm.mnuOptions.Enabled = enabled;
    }

    QString enabled() const
    {
        QString result;
        for (const auto &item : frm.mnuProg)
            result += item.Enabled ? u'x' : u'-';
        return result + (frm.mnuOptions.Enabled ? u'o' : u'-');
    }

    QString checked() const
    {
        QString result;
        for (const auto &item : frm.mnuProg)
            result += item.Checked ? u'x' : u'-';
        return result;
    }

    QString averaging() const
    {
        QString result;
        for (const auto &item : frm.mnuAverage)
            result += item.Enabled ? u'x' : u'-';
        return result;
    }
};

TEST_F(ProgsMenu, enables_items_by_the_trials_files)
{
    // Items 0 to 12 and the control options. "Create A New Simulation" is never touched.
    struct Row
    {
        std::vector<const char *> files;
        const char *enabled;
    };
    const Row table[]{
        {{}, "------------xo"},
        {{".cn"}, "xxxx--------xo"},
        {{".ks"}, "------------xo"},
        {{".km"}, "----xxxxx---xo"},
        {{".cn", ".km"}, "xxxxxxxxx---xo"},
        {{".km", ".fo"}, "----xxxxxx--xo"},
        {{".km", ".jp"}, "----xxxxxx--xo"},
        {{".fo", ".jp"}, "------------xo"},
        {{".sim"}, "----------xxxo"},
        {{".cn", ".km", ".fo", ".sim"}, "xxxxxxxxxxxxxo"},
    };
    for (const Row &row : table) {
        for (const char *file : row.files)
            addFile(u"C:\\DATA\\WALK1"_s + QLatin1String(file));
        for (bool before : {false, true}) {
            enableAll(before);
            frm.mnuProg[12].Enabled = true;
            openMenu(frm.mnuProgs);
            EXPECT_EQ(enabled(), QString(QLatin1String(row.enabled)));
        }
        for (const char *file : row.files)
            machine.files.remove(u"C:\\DATA\\WALK1"_s + QLatin1String(file));
    }
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ProgsMenu, never_touches_the_new_simulation)
{
    frm.mnuProg[12].Enabled = false;
    frm.mnuProg[12].Checked = true;
    openWith({".cn", ".km", ".fo", ".sim"});
    EXPECT_FALSE(frm.mnuProg[12].Enabled);
    EXPECT_TRUE(frm.mnuProg[12].Checked);
}

TEST_F(ProgsMenu, without_a_model_of_the_trial_disables_all_but_the_new_simulation)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    enableAll(true);
    openWith({".cn", ".km", ".fo", ".sim"});
    EXPECT_EQ(enabled(), u"------------x-"_s);
}

TEST_F(ProgsMenu, checks_the_programs_that_have_results)
{
    struct Row
    {
        const char *file;
        const char *checked;
    };
    const Row table[]{
        {".fr", "-x-----------"},  {".ns", "--x----------"},  {".cut", "--x----------"},
        {".ks", "---x---------"},  {".km", "---x---------"},  {".mm", "----x--------"},
        {".mu", "-----x-------"},  {".en", "------x------"},  {".tq", "-------x-----"},
        {".fo", "--------x----"},  {".jp", "--------x----"},  {".ps", "---------x---"},
        {".pj", "---------x---"},  {".sim", "----------x--"}, {".sn", "-----------x-"},
        {".out", "-------------"}, {".cn", "-------------"},
    };
    for (const Row &row : table) {
        addFile(u"C:\\DATA\\WALK1"_s + QLatin1String(row.file));
        for (bool before : {false, true}) {
            checkAll(before);
            frm.mnuProg[0].Checked = false;
            frm.mnuProg[12].Checked = false;
            openMenu(frm.mnuProgs);
            EXPECT_EQ(checked(), QString(QLatin1String(row.checked))) << row.file;
        }
        machine.files.remove(u"C:\\DATA\\WALK1"_s + QLatin1String(row.file));
    }
}

TEST_F(ProgsMenu, checks_and_clears_nothing_of_the_error_check)
{
    frm.mnuProg[0].Checked = true;
    openMenu(frm.mnuProgs);
    EXPECT_TRUE(frm.mnuProg[0].Checked);
}

TEST_F(ProgsMenu, without_a_model_of_the_trial_leaves_the_marks_of_kinematics_and_interact)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    checkAll(true);
    openMenu(frm.mnuProgs);
    EXPECT_EQ(checked(), u"x--x------x-x"_s);
    checkAll(false);
    openWith({".ks", ".km", ".sim", ".fr", ".sn"});
    EXPECT_EQ(checked(), u"-x---------x-"_s);
}

TEST_F(ProgsMenu, leaves_force_unchecked_and_powers_disabled_without_force_results)
{
    openWith({".km"});
    EXPECT_FALSE(frm.mnuProg[8].Checked);
    EXPECT_FALSE(frm.mnuProg[9].Enabled);
    for (size_t item = 4; item <= 8; ++item)
        EXPECT_TRUE(frm.mnuProg[item].Enabled);
}

TEST_F(ProgsMenu, asks_for_nothing_where_there_are_models)
{
    EXPECT_FALSE(frm.mnuProgs.AsksOnOpening());
    openMenu(frm.mnuProgs);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK1.dg"_s);
}

TEST_F(ProgsMenu, tests_each_file_silently_in_upper_case)
{
    machine.files.tested.clear();
    openMenu(frm.mnuProgs);
    EXPECT_EQ(machine.files.tested,
              (QStringList{u"C:\\DATA\\AVERAGE.SSS"_s, u"C:\\DATA\\WALK1.CFB"_s, u"C:\\DATA\\WALK1.CN"_s,
                           u"C:\\DATA\\WALK1.KS"_s, u"C:\\DATA\\WALK1.KM"_s, u"C:\\DATA\\WALK1.SIM"_s,
                           u"C:\\DATA\\WALK1.FR"_s, u"C:\\DATA\\WALK1.NS"_s, u"C:\\DATA\\WALK1.CUT"_s,
                           u"C:\\DATA\\WALK1.MM"_s, u"C:\\DATA\\WALK1.MU"_s, u"C:\\DATA\\WALK1.EN"_s,
                           u"C:\\DATA\\WALK1.TQ"_s, u"C:\\DATA\\WALK1.FO"_s, u"C:\\DATA\\WALK1.JP"_s,
                           u"C:\\DATA\\WALK1.PS"_s, u"C:\\DATA\\WALK1.PJ"_s, u"C:\\DATA\\WALK1.SN"_s}));
}

TEST_F(ProgsMenu, enables_averaging_by_the_binary_file_and_the_running_average)
{
    struct Row
    {
        const char *binary;
        bool average;
        const char *enabled;
    };
    // New, add, recompute, subtract; help and options are always there.
    const Row table[]{
        {"", false, "----xx"},
        {"", true, "--x-xx"},
        {"run1.km", false, "x---xx"},
        {"run1.km", true, "xxxxxx"},
    };
    for (const Row &row : table) {
        kinovra.BinaryFile = QLatin1String(row.binary);
        if (row.average)
            addFile(u"C:\\DATA\\Average.SSS"_s);
        else
            machine.files.remove(u"C:\\DATA\\Average.SSS"_s);
        for (bool before : {false, true}) {
            for (auto *menu : {&frm.mnuProgs, &frm.mnuAverages}) {
                for (size_t item = 0; item < 4; ++item)
                    frm.mnuAverage[item].Enabled = before;
                openMenu(*menu);
                EXPECT_EQ(averaging(), QString(QLatin1String(row.enabled)));
            }
        }
    }
}

class ProgsMenuModels : public ProgsMenu
{
protected:
    void SetUp() override
    {
        addData({"walk1.dg", "run1.dg"});
        load();
        click(frm.filDatafiles, u"walk1.dg"_s);
        forget();
    }
};

TEST_F(ProgsMenuModels, that_are_none_ask_for_a_new_one)
{
    EXPECT_TRUE(frm.mnuProgs.AsksOnOpening());
    addFile(u"C:\\DATA\\Average.SSS"_s);
    frm.mnuProg[5].Enabled = true;
    frm.mnuProg[5].Checked = true;
    frm.mnuProg[1].Checked = true;
    const QString enabledBefore = enabled();
    machine.dialogs.answers = {platform::No};
    openMenu(frm.mnuProgs);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(CreateModel));
    EXPECT_EQ(kinovra.Answer, 7);
    // The program items keep their states and marks; the averaging items come first and are set.
    EXPECT_EQ(enabled(), enabledBefore);
    EXPECT_EQ(checked(), u"-x---x-------"_s);
    EXPECT_EQ(averaging(), u"--x-xx"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(ProgsMenuModels, are_created_in_notepad_on_yes_and_the_states_follow)
{
    frm.mnuProg[1].Checked = true;
    enableAll(true);
    machine.dialogs.answers = {platform::Yes};
    openMenu(frm.mnuProgs);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"Notepad.exe"_s, u" "_s + CommandText::document(u"walk1.cfb"_s),
                                  u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(machine.programs.started[0].text(), u"Notepad.exe walk1.cfb"_s);
    EXPECT_EQ(kinovra.ProgName, u"Notepad.exe"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"walk1.cfb"_s);
    EXPECT_EQ(kinovra.Answer, 6);
    EXPECT_EQ(enabled(), u"------------x-"_s);
    EXPECT_FALSE(frm.mnuProg[1].Checked);
}

TEST_F(ProgsMenuModels, that_are_one_become_the_trial)
{
    addData({"Jump.left.cfb"});
    click(frm.cmdRefresh);
    openMenu(frm.mnuProgs);
    EXPECT_EQ(kinovra.CurrentTrial, u"Jump"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"JUMP"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"The trial is now JUMP, the only model of this directory."_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ProgsMenuModels, that_are_one_of_the_trials_own_name_change_nothing_to_be_seen)
{
    addData({"WALK1.CFB"});
    click(frm.cmdRefresh);
    openMenu(frm.mnuProgs);
    EXPECT_EQ(kinovra.CurrentTrial, u"WALK1"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK1.dg"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}
