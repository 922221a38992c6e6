#include "graph_menu_fixture.h"
#include "platform/argument_forms.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using graph_tests::GraphMenu;
using graph_tests::NameRow;
using graph_tests::OddNames;
using platform::CommandText;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// The five graph options that are checked, in menu order, and what they put at the front of the arguments.
struct OptionsRow
{
    const char *checked;
    const char *switches;
};

constexpr OptionsRow GraphOptionStates[]{
    {"-----", "/C "}, {"----x", "/C /B "}, {"---x-", "/C /D "}, {"---xx", "/C /D /B "},
    {"--x--", "/C "}, {"--x-x", "/C /B "}, {"--xx-", "/C /D "}, {"--xxx", "/C /D /B "},
    {"-x---", ""},    {"-x--x", "/B "},    {"-x-x-", "/D "},    {"-x-xx", "/D /B "},
    {"-xx--", ""},    {"-xx-x", "/B "},    {"-xxx-", "/D "},    {"-xxxx", "/D /B "},
    {"x----", "/M "}, {"x---x", "/M /B "}, {"x--x-", "/M /D "}, {"x--xx", "/M /D /B "},
    {"x-x--", "/M "}, {"x-x-x", "/M /B "}, {"x-xx-", "/M /D "}, {"x-xxx", "/M /D /B "},
    {"xx---", "/M "}, {"xx--x", "/M /B "}, {"xx-x-", "/M /D "}, {"xx-xx", "/M /D /B "},
    {"xxx--", "/M "}, {"xxx-x", "/M /B "}, {"xxxx-", "/M /D "}, {"xxxxx", "/M /D /B "}};

/// Which devices were picked since the start, in order, "l" for listings and "g" for graphics, and the
/// switches that they leave.
struct DevicesRow
{
    const char *picked;
    const char *switches;
};

constexpr DevicesRow DeviceChoices[]{
    {"", "/A /Z "},  {"g0", "/A "},       {"g1", ""},         {"g2", ""},         {"g3", ""},
    {"l0", ""},      {"l1", "/T "},       {"l2", "/L "},      {"l3", "/N "},      {"l0g0", "/A "},
    {"l0g1", ""},    {"l0g2", ""},        {"l0g3", ""},       {"l1g0", "/T /A "}, {"l1g1", "/T "},
    {"l1g2", "/T "}, {"l1g3", "/T "},     {"l2g0", "/L /A "}, {"l2g1", "/L "},    {"l2g2", "/L "},
    {"l2g3", "/L "}, {"l3g0", "/N /A "},  {"l3g1", "/N "},    {"l3g2", "/N "},    {"l3g3", "/N "},
    {"g0l0", ""},    {"g1l0", ""},        {"g2l0", ""},       {"g3l0", ""},       {"g0l1", "/T "},
    {"g1l1", "/T "}, {"g2l1", "/T "},     {"g3l1", "/T "},    {"g0l2", "/L "},    {"g1l2", "/L "},
    {"g2l2", "/L "}, {"g3l2", "/L "},     {"g0l3", "/N "},    {"g1l3", "/N "},    {"g2l3", "/N "},
    {"g3l3", "/N "}, {"g0l1g0", "/T /A "}};

/// A trial or graph type with a name that programs and shells might misread, and as programs get it.

} // namespace

class GraphCreation : public GraphMenu
{
protected:
    // As at the start.
    void forgetDevices()
    {
        kinovra.ListingSwitch.clear();
        frm.GraphicsSwitch = u"/A /Z "_s;
    }

    void pick(const QString &devices)
    {
        forgetDevices();
        for (qsizetype i = 0; i + 1 < devices.size(); i += 2) {
            const auto item = static_cast<size_t>(devices[i + 1].digitValue());
            click(devices[i] == u'l' ? frm.mnuListing[item] : frm.mnuGraphics[item]);
        }
    }

    void check(const QString &options)
    {
        for (qsizetype i = 0; i < options.size(); ++i)
            frm.mnuGraphOptions[static_cast<size_t>(i)].Checked = options[i] == u'x';
    }

    // Expects one run of the graph program on the trial Run1.
    void expectRun(const QString &switches, const QString &type, const QString &upperType)
    {
        const QList<CommandText::Range> documents{{switches.size(), 4}, {switches.size() + 5, type.size()}};
        EXPECT_EQ(frm.Comm.text(), switches + u"Run1 "_s + type);
        EXPECT_EQ(frm.Comm.documents(), documents);
        EXPECT_EQ(frm.lblCommand.Caption.value(),
                  (u"c:\\kinovra\\graph.exe "_s + switches + u"run1 "_s + type).toLower());
        ASSERT_EQ(machine.programs.started.size(), 1U);
        const Start &start = machine.programs.started[0];
        EXPECT_EQ(start.parameters.text(), switches + u"RUN1 "_s + upperType);
        EXPECT_EQ(start.parameters.documents(), documents);
        EXPECT_EQ(start.file, u"C:\\KINOVRA\\GRAPH.EXE"_s);
    }

    void withoutType()
    {
        frm.CurrentGRA.clear();
        machine.dialogs.answers = {platform::No};
    }

    QStringList argumentsOfProgram() const
    {
        return machine.programs.started.empty()
                   ? QStringList()
                   : platform::nativeArguments(u"graph"_s, machine.programs.started[0]);
    }
};

TEST_F(GraphCreation, runs_the_graph_program_on_trial_and_type)
{
    frm.lblCommand.Visible = false;
    QStringList shown;
    const auto watch =
        frm.lblCommand.Caption.onValueChanged([&] { shown.append(frm.lblCommand.Caption.value()); });
    mark();
    choose(Create);
    EXPECT_EQ(kinovra.ProgName, u"Graph"_s);
    EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\Graph.exe"_s);
    EXPECT_EQ(frm.Comm, u"/C /A /Z "_s + CommandText::document(u"Run1"_s) + u" "_s
                            + CommandText::document(u"Stick.gra"_s));
    EXPECT_EQ(shown, (QStringList{u"(before)"_s, u"/C /A /Z Run1 Stick.gra"_s,
                                  u"c:\\kinovra\\graph.exe /c /a /z run1 stick.gra"_s}));
    EXPECT_TRUE(frm.lblCommand.Visible);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\KINOVRA\\GRAPH.EXE"_s));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{u"open"_s, u"C:\\KINOVRA\\GRAPH.EXE"_s,
                                  u"/C /A /Z "_s + CommandText::document(u"RUN1"_s) + u" "_s
                                      + CommandText::document(u"STICK.GRA"_s),
                                  u"C:\\DATA"_s, Show::Shown, 4711}));
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u"/C /A /Z RUN1 STICK.GRA"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"Run1"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(kinovra.TaskId, 42);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Graph.out"_s);
    EXPECT_EQ(machine.clock.pendingRuns, 1);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({u"ProgName"_s, u"SelectedFile"_s, u"TaskId"_s, u"Answer"_s, u"ProgPath"_s, u"Comm"_s,
                     u"lblCommand"_s});
}

TEST_F(GraphCreation, is_what_the_button_does)
{
    click(frm.cmdGraph);
    expectRun(u"/C /A /Z "_s, u"Stick.gra"_s, u"STICK.GRA"_s);
    EXPECT_EQ(machine.clock.pendingRuns, 1);
    forget();
    kinovra.CurrentTrial.clear();
    click(frm.cmdGraph);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noTrial));
}

TEST_F(GraphCreation, has_the_arguments_of_all_options_and_devices)
{
    static_assert(std::size(GraphOptionStates) == 32 && std::size(DeviceChoices) == 42);
    for (const DevicesRow &devices : DeviceChoices) {
        pick(text(devices.picked));
        for (const OptionsRow &options : GraphOptionStates) {
            SCOPED_TRACE(options.checked + (' ' + std::string(devices.picked)));
            const QString switches = text(options.switches) + text(devices.switches);
            check(text(options.checked));

            frm.CurrentGRA = u"Stick.gra"_s;
            forget();
            choose(Create);
            expectRun(switches, u"Stick.gra"_s, u"STICK.GRA"_s);
            EXPECT_THAT(machine.dialogs.messages, IsEmpty());

            withoutType();
            forget();
            choose(Create);
            expectRun(switches, QString(), QString());
            EXPECT_THAT(machine.dialogs.messages, ElementsAre(typeQuestion));
            ASSERT_FALSE(HasFailure());
        }
    }
}

TEST_F(GraphCreation, spells_these_commands_out)
{
    const auto arguments = [this] {
        forget();
        choose(Create);
        return machine.programs.started.empty() ? u"(nothing)"_s
                                                : machine.programs.started[0].parameters.text();
    };
    EXPECT_EQ(arguments(), u"/C /A /Z RUN1 STICK.GRA"_s);
    click(frm.mnuGraphOptions[0]);
    EXPECT_EQ(arguments(), u"/M /A /Z RUN1 STICK.GRA"_s);
    click(frm.mnuGraphOptions[1]);
    EXPECT_EQ(arguments(), u"/A /Z RUN1 STICK.GRA"_s);
    click(frm.mnuGraphOptions[1]);
    click(frm.mnuGraphOptions[3]);
    click(frm.mnuGraphOptions[4]);
    EXPECT_EQ(arguments(), u"/C /D /B /A /Z RUN1 STICK.GRA"_s);
    click(frm.mnuListing[1]);
    EXPECT_EQ(arguments(), u"/C /D /B /T RUN1 STICK.GRA"_s);
    click(frm.mnuGraphics[0]);
    EXPECT_EQ(arguments(), u"/C /D /B /T /A RUN1 STICK.GRA"_s);
    click(frm.mnuGraphOptions[5]);
    click(frm.mnuReset);
    EXPECT_EQ(arguments(), u"/C /A RUN1 STICK.GRA"_s);
    withoutType();
    EXPECT_EQ(arguments(), u"/C /A RUN1 "_s);
    EXPECT_EQ(frm.Comm.text(), u"/C /A Run1 "_s);
}

TEST_F(GraphCreation, takes_program_directory_and_names_as_they_are_spelled)
{
    kinovra.ProgDir = u"C:\\Kinovra"_s;
    kinovra.DataDir = u"C:\\Data"_s;
    choose(Create);
    EXPECT_EQ(frm.ProgPath, u"C:\\Kinovra\\Graph.exe"_s);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].file, u"C:\\KINOVRA\\GRAPH.EXE"_s);
    EXPECT_EQ(machine.programs.started[0].directory, u"C:\\Data"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\Data\\Graph.out"_s);
}

TEST_F(GraphCreation, hands_over_every_name_as_one_argument)
{
    for (const NameRow &row : OddNames) {
        const QString name = QString::fromUtf16(row.name);
        const QString argument = QString::fromUtf16(row.argument);
        SCOPED_TRACE(name.toStdString());
        kinovra.CurrentTrial = name;
        frm.CurrentGRA = name + u".gra"_s;
        forget();
        choose(Create);
        EXPECT_EQ(argumentsOfProgram(),
                  (QStringList{u"graph"_s, u"/C"_s, u"/A"_s, u"/Z"_s, argument, argument + u".GRA"_s}));
        withoutType();
        forget();
        choose(Create);
        EXPECT_EQ(argumentsOfProgram(), (QStringList{u"graph"_s, u"/C"_s, u"/A"_s, u"/Z"_s, argument}));
    }
    kinovra.CurrentTrial = u"my walk"_s;
    frm.CurrentGRA = u"my type.gra"_s;
    forget();
    choose(Create);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(platform::windowsParameters(machine.programs.started[0]),
              u"/C /A /Z \"MY WALK\" \"MY TYPE.GRA\""_s);
}

TEST_F(GraphCreation, shows_new_results)
{
    machine.clock.duringPause(0.5, [&] { addData({"new.plt", "new.out", "new.pj"}); });
    choose(Create);
    EXPECT_GE(frm.filPlots.Names.value().indexOf(u"new.plt"_s), 0);
    EXPECT_GE(frm.filOutputs.Names.value().indexOf(u"new.out"_s), 0);
    EXPECT_GE(frm.filBinaries.Names.value().indexOf(u"new.pj"_s), 0);
}

TEST_F(GraphCreation, offers_no_listing_but_pauses)
{
    addData({"Graph.out"});
    EXPECT_TRUE(frm.mnuPrompt.Checked);
    kinovra.BinaryFile = u"Run1"_s;
    choose(Create);
    EXPECT_THAT(machine.clock.pauses, ElementsAre(1.0));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(said(), QString());
    EXPECT_EQ(machine.programs.started.size(), 1U);

    addData({"Graph.out"});
    machine.programs.ended(42, {});
    EXPECT_EQ(said(), QString()) << "nor is it announced";

    forget();
    click(frm.mnuPrompt);
    choose(Create);
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.programs.started.size(), 1U);
}

TEST_F(GraphCreation, leaves_the_selected_file_alone_where_the_listing_goes_elsewhere)
{
    for (size_t device : {1U, 2U, 3U}) {
        click(frm.mnuListing[device]);
        mark();
        choose(Create);
        expectMarkedBut({u"ProgName"_s, u"TaskId"_s, u"Answer"_s, u"ProgPath"_s, u"Comm"_s, u"lblCommand"_s});
    }
}

TEST_F(GraphCreation, says_that_it_has_chosen_the_trial_as_the_binary_file)
{
    kinovra.CurrentTrial = u"WALK1"_s;
    machine.clock.duringPause(0.5, [&] { EXPECT_EQ(said(), QString()) << "after the run"; });
    choose(Create);
    EXPECT_EQ(kinovra.BinaryFile, u"WALK1"_s);
    EXPECT_EQ(said(), u"The binary file is WALK1 now."_s);

    choose(Create);
    EXPECT_EQ(said(), QString()) << "it is no other one now";

    click(frm.filBinaries, u"run2.km"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"run2.km"_s);
    choose(Create);
    EXPECT_EQ(kinovra.BinaryFile, u"WALK1"_s);
    EXPECT_EQ(said(), u"The binary file is WALK1 now."_s);
}

TEST_F(GraphCreation, does_not_announce_a_binary_file_that_is_another_one_by_then)
{
    addData({"sub\\run3.pj"});
    click(frm.cmdRefresh);
    machine.clock.duringPause(0.5, [&] { open(u"C:\\DATA\\sub"_s); });
    choose(Create);
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_FALSE(said().contains(u"Run1"_s)) << said().toStdString();
}

TEST_F(GraphCreation, refuses_without_a_trial)
{
    kinovra.CurrentTrial.clear();
    frm.CurrentGRA.clear();
    kinovra.BinaryFile = u"run2.km"_s;
    mark();
    const QStringList before = choices();
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(noTrial)) << "and is not asked about the type";
    expectMarkedBut({});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(machine.clock.pendingRuns, 0);
}

TEST_F(GraphCreation, lets_pending_events_run_when_the_result_of_the_run_is_known)
{
    std::vector<qint16> answers;
    machine.clock.whilePending = [&] { answers.push_back(kinovra.Answer); };
    mark();
    choose(Create);
    machine.files.remove(u"C:\\KINOVRA\\Graph.exe"_s);
    choose(Create);
    EXPECT_THAT(answers, ElementsAre(0, 1));
}

TEST_F(GraphCreation, goes_on_without_a_type_on_no)
{
    withoutType();
    std::vector<qint16> answers;
    machine.programs.whileStarting = [&] { answers.push_back(kinovra.Answer); };
    mark();
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(typeQuestion));
    EXPECT_THAT(answers, ElementsAre(7));
    EXPECT_EQ(frm.Comm.text(), u"/C /A /Z Run1 "_s);
    EXPECT_THAT(machine.programs.started, ElementsAre(Start{u"open"_s, u"C:\\KINOVRA\\GRAPH.EXE"_s,
                                                            u"/C /A /Z "_s + CommandText::document(u"RUN1"_s)
                                                                + u" "_s + CommandText::document(QString()),
                                                            u"C:\\DATA"_s, Show::Shown, 4711}));
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(frm.CurrentGRA, QString());
    EXPECT_TRUE(frm.cmdGraph.Visible);
}

TEST_F(GraphCreation, leads_to_the_graph_types_on_yes)
{
    frm.CurrentGRA.clear();
    machine.dialogs.answers = {platform::Yes};
    mark();
    const QStringList before = choices();
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(typeQuestion)) << "without the menu's hint";
    EXPECT_EQ(kinovra.Answer, 6);
    expectMarkedBut({u"Answer"_s});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_TRUE(frm.filGraFiles.Visible);

    forget();
    removeTypes();
    machine.dialogs.answers = {platform::Yes};
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(typeQuestion, noTypes));
    forget();
    removeGraphsFolder();
    machine.dialogs.answers = {platform::Yes};
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(typeQuestion, noGraphsFolder));
    EXPECT_EQ(kinovra.Answer, 6);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(GraphCreation, stops_on_cancel)
{
    frm.CurrentGRA.clear();
    machine.dialogs.answers = {platform::Cancel};
    mark();
    const QStringList before = choices();
    choose(Create);
    EXPECT_EQ(kinovra.Answer, 2);
    expectMarkedBut({u"Answer"_s});
    EXPECT_EQ(choices(), before);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_FALSE(frm.filGraFiles.Visible);
    EXPECT_EQ(machine.clock.pendingRuns, 0);
}

TEST_F(GraphCreation, leaves_a_missing_program_to_the_runner)
{
    machine.files.remove(u"C:\\KINOVRA\\Graph.exe"_s);
    mark();
    choose(Create);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Error opening file: \"C:\\KINOVRA\\GRAPH.EXE\"  (53)\nFile not found"_s,
                               Icon::Exclamation}));
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.Answer, 1);
    EXPECT_EQ(kinovra.BinaryFile, u"Run1"_s);
    EXPECT_EQ(said(), u"The binary file is Run1 now."_s);
    EXPECT_EQ(machine.clock.pendingRuns, 1);
    expectMarkedBut({u"ProgName"_s, u"Answer"_s, u"ProgPath"_s, u"Comm"_s, u"lblCommand"_s});
}

TEST_F(GraphCreation, says_why_the_program_did_not_start)
{
    failToStart();
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_EQ(said(), u"GRAPH.EXE was not started: it was not found. The binary file is Run1 now."_s);
}

TEST_F(GraphCreation, survives_a_data_directory_that_is_gone)
{
    removeDataDirectory();
    choose(Create);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_EQ(said(), u"DATA cannot be read: path not found. The binary file is Run1 now."_s);
}

TEST_F(GraphCreation, of_another_trial_may_begin_during_the_pause)
{
    machine.clock.duringPause(0.5, [&] {
        click(frm.filDatafiles, u"run2.dg"_s);
        choose(Create);
    });
    choose(Create);
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u"/C /A /Z RUN1 STICK.GRA"_s);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u"/C /A /Z RUN2 STICK.GRA"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"run2"_s);
    EXPECT_EQ(said(), u"The binary file is run2 now."_s);
}

TEST_F(GraphCreation, ends_silently_when_the_window_is_closed_during_the_pause)
{
    machine.clock.duringPause(0.5, [&] { shell::dispatch(panel, frm.Unload); });
    mark();
    choose(Create);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_EQ(kinovra.Answer, -1);
    EXPECT_EQ(said(), QString());
    EXPECT_EQ(machine.clock.pendingRuns, 0);
}

TEST_F(GraphCreation, says_so_beside_what_is_still_worth_reading)
{
    click(frm.mnuListing[0]);
    machine.files.remove(u"C:\\KINOVRA\\Graph.exe"_s);
    choose(Create);
    EXPECT_EQ(said(), u"Graphics switch cleared. The binary file is Run1 now."_s);
}

TEST_F(GraphCreation, shows_its_arguments_before_the_whole_command)
{
    QStringList shown;
    const auto follower = frm.lblCommand.Caption.addNotifier([&] { shown.append(frm.lblCommand.Caption); });
    choose(Create);
    EXPECT_EQ(shown, (QStringList{u"/C /A /Z Run1 Stick.gra"_s,
                                  u"c:\\kinovra\\graph.exe /c /a /z run1 stick.gra"_s}));
}
