#include "data/models.h"
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

class Models : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"Walk1.dg", "walk1.cfb", "run2.cfb"});
        load();
        click(frm.filDatafiles, u"Walk1.dg"_s);
        // The listing device is no matter of the programs that are started directly.
        click(frm.mnuListing[1]);
        forget();
    }

    void expectNothingRun(const QStringList &changed)
    {
        EXPECT_THAT(machine.programs.started, IsEmpty());
        expectMarkedBut(changed);
    }

    Start direct(const char *program, const CommandText &parameters, Show show = Show::Shown) const
    {
        return {QString(), u"C:\\KINOVRA\\"_s + QLatin1String(program) + u".exe"_s, parameters, u"C:\\DATA"_s,
                show};
    }

    static MessageBox missing(const char *file)
    {
        return {u"Error opening file: \"C:\\DATA\\"_s + QLatin1String(file) + u"\"  (53)\nFile not found"_s,
                Icon::Exclamation};
    }

    // A command that was shown and started directly.
    void expectRun(const char *program, const CommandText &parameters)
    {
        EXPECT_THAT(machine.programs.started, ElementsAre(direct(program, parameters)));
        EXPECT_EQ(kinovra.ProgName, QString(QLatin1String(program)));
        EXPECT_EQ(frm.ProgPath, u"C:\\KINOVRA\\"_s + QLatin1String(program) + u".exe"_s);
        EXPECT_EQ(frm.Comm, parameters);
        EXPECT_EQ(frm.lblCommand.Caption.value(), frm.ProgPath + parameters.text());
        EXPECT_TRUE(frm.lblCommand.Visible);
        EXPECT_EQ(kinovra.TaskId, 51);
        expectMarkedBut({u"ProgName"_s, u"TaskId"_s, u"Answer"_s, u"ProgPath"_s, u"Comm"_s, u"lblCommand"_s});
        EXPECT_THAT(machine.clock.pauses, IsEmpty());
    }

    const MessageBox createModel{
        u"No models (.CFB files) in this directory.\nDo you want to create a new model (.CFB) file."_s,
        Icon::Question, Buttons::YesNo};
    const MessageBox rewrite{u"Do you want to rewrite the model file with information\nfrom the datafile?"_s,
                             Icon::Question, Buttons::YesNo};
};

TEST_F(Models, are_shown_and_left_to_be_chosen_among_several)
{
    addData({"walk3.cfb"});
    frm.filModels.Visible = false;
    frm.lblModels.Visible = false;
    click(frm.mnuModel[0]);
    EXPECT_TRUE(frm.filModels.Visible);
    EXPECT_TRUE(frm.lblModels.Visible);
    EXPECT_EQ(frm.filModels.ListCount(), 3) << "the list was refreshed";
    EXPECT_EQ(kinovra.CurrentTrial, u"Walk1"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK1.dg"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(Models, choose_the_trial_of_the_only_one_up_to_its_first_dot)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    machine.files.remove(u"C:\\DATA\\run2.cfb"_s);
    addData({"walk.left.cfb"});
    machine.files.setShortName(u"C:\\DATA\\walk.left.cfb"_s, u"WALKLE~1.CFB"_s);
    frm.lblTitle.Caption = u"(before)"_s;
    mark();
    click(frm.mnuModel[0]);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s);
    expectMarkedBut({});
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"(before)"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(Models, are_offered_to_be_made_where_there_is_none)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    machine.files.remove(u"C:\\DATA\\run2.cfb"_s);
    frm.filModels.Visible = false;
    frm.lblModels.Visible = false;
    mark();
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_TRUE(frm.filModels.Visible && frm.lblModels.Visible) << "before the question";
    };
    machine.dialogs.answers = {platform::No};
    click(frm.mnuModel[0]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(createModel));
    EXPECT_EQ(kinovra.Answer, 7);
    EXPECT_EQ(kinovra.CurrentTrial, u"Walk1"_s);
    expectNothingRun({u"Answer"_s});

    forget();
    machine.dialogs.answers = {platform::Yes};
    click(frm.mnuModel[0]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(createModel));
    EXPECT_EQ(kinovra.Answer, 6);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"Notepad.exe"_s, u" "_s + CommandText::document(u"Walk1.cfb"_s),
                                  u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(kinovra.ProgName, u"Notepad.exe"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"Walk1.cfb"_s);
}

TEST_F(Models, take_the_digitized_datas_information)
{
    mark();
    machine.dialogs.answers = {platform::Yes};
    click(frm.mnuModel[1]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(rewrite));
    expectRun("DG2CFB", u" /C/M/N/F/G/R "_s + CommandText::document(u"Walk1"_s));
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\KINOVRA\\DG2CFB.exe /C/M/N/F/G/R Walk1"_s);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\DG2CFB.exe /C/M/N/F/G/R Walk1"_s);
    EXPECT_EQ(kinovra.Answer, 6);
}

TEST_F(Models, are_not_rewritten_against_the_users_will)
{
    mark();
    machine.dialogs.answers = {platform::No};
    click(frm.mnuModel[1]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(rewrite));
    EXPECT_EQ(kinovra.Answer, 7);
    expectNothingRun({u"Answer"_s});
}

TEST_F(Models, need_the_digitized_data_for_that)
{
    machine.files.remove(u"C:\\DATA\\Walk1.dg"_s);
    mark();
    click(frm.mnuModel[1]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(missing("WALK1.DG")));
    EXPECT_EQ(kinovra.Answer, 53);
    expectNothingRun({u"Answer"_s});
}

TEST_F(Models, take_forces_for_the_bare_trial_without_a_question)
{
    addData({"walk1.rf"});
    mark();
    click(frm.mnuModel[2]);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectRun("FPlate", u" /F/R "_s + CommandText::document(u"Walk1"_s));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\FPlate.exe /F/R Walk1"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\WALK1.RF"_s));
}

TEST_F(Models, take_second_forces_for_the_file_with_its_extension)
{
    addData({"walk1.rf2"});
    mark();
    click(frm.mnuModel[5]);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectRun("FPlate", u" /F/M/N "_s + CommandText::document(u"Walk1.rf2"_s));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\FPlate.exe /F/M/N Walk1.rf2"_s);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\WALK1.RF2"_s));
}

TEST_F(Models, take_no_forces_that_are_not_there)
{
    mark();
    click(frm.mnuModel[2]);
    EXPECT_EQ(kinovra.Answer, 53);
    click(frm.mnuModel[5]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(missing("WALK1.RF"), missing("WALK1.RF2")));
    expectNothingRun({u"Answer"_s});
}

TEST_F(Models, are_edited_without_a_file)
{
    mark();
    click(frm.mnuModel[3]);
    EXPECT_THAT(machine.programs.started, ElementsAre(direct("modlex", {}, Show::Normal)));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\modlex.exe"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"TaskId"_s});
    EXPECT_THAT(machine.settings.written, IsEmpty());
    EXPECT_THAT(machine.files.tested, IsEmpty());
}

TEST_F(Models, open_in_notepad_by_their_bare_name)
{
    kinovra.TextViewer = u"C:\\tools\\reader.exe"_s;
    mark();
    click(frm.mnuModel[4]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"Notepad.exe"_s, u" "_s + CommandText::document(u"Walk1.cfb"_s),
                                  u"C:\\DATA"_s, Show::Shown}));
    EXPECT_EQ(machine.programs.started[0].text(), u"Notepad.exe Walk1.cfb"_s);
    EXPECT_EQ(kinovra.ProgName, u"Notepad.exe"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"Walk1.cfb"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"ProgName"_s, u"SelectedFile"_s, u"TaskId"_s});
    EXPECT_THAT(machine.files.tested, IsEmpty()) << "a missing one is written there";
}

TEST_F(Models, know_no_other_command)
{
    mark();
    for (int index : {-1, 6})
        shell::dispatch(panel, [this, index] { data::mnuModel_Click(panel, index); });
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectNothingRun({});
}

namespace {

// Which files the trial has, and what the Model menu then offers, "x" for what is greyed out: the six items,
// then "New model".
struct ModelMenuRow
{
    const char *files;
    const char *enabled;
    int answer; ///< the last test's result
};

constexpr ModelMenuRow ModelMenu[]{
    {"", "0xxxxx new", 53},
    {".dg", "0xxxxx new", 53},
    {".rf", "0xxxxx new", 53},
    {".rf2", "0xxxxx new", 53},
    {".dg .rf", "0xxxxx new", 53},
    {".dg .rf2", "0xxxxx new", 53},
    {".rf .rf2", "0xxxxx new", 53},
    {".dg .rf .rf2", "0xxxxx new", 53},
    {".cfb", "0xx34x new", 53},
    {".cfb .dg", "01x34x new", 53},
    {".cfb .rf", "0x234x new", 53},
    {".cfb .rf2", "0xx345 new", 0},
    {".cfb .dg .rf", "01234x new", 53},
    {".cfb .dg .rf2", "01x345 new", 0},
    {".cfb .rf .rf2", "0x2345 new", 0},
    {".cfb .dg .rf .rf2", "012345 new", 0},
};

} // namespace

class ModelMenuOpening : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    QString enabled() const
    {
        return enabledOf(frm.mnuModel) + (frm.mnuNewModel.Enabled ? u" new"_s : u" x"_s);
    }
};

TEST_F(ModelMenuOpening, greys_out_what_cannot_run)
{
    kinovra.CurrentTrial = u"LIFT1"_s;
    for (const ModelMenuRow &row : ModelMenu) {
        for (bool before : {true, false}) {
            for (size_t i = 1; i < 6; ++i)
                frm.mnuModel[i].Enabled = before;
            frm.mnuNewModel.Enabled = before;
            haveOnly(u"LIFT1"_s, ".cfb .dg .rf .rf2", row.files);
            openMenu(frm.mnuModels);
            EXPECT_EQ(enabled(), QString(QLatin1String(row.enabled))) << row.files;
            EXPECT_EQ(kinovra.Answer, row.answer) << row.files;
        }
    }
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(ModelMenuOpening, tests_the_model_first_and_nothing_more_without_it)
{
    kinovra.CurrentTrial = u"lift1"_s;
    haveOnly(u"lift1"_s, ".cfb .dg .rf .rf2", ".dg .rf .rf2");
    mark();
    openMenu(frm.mnuModels);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\LIFT1.CFB"_s));
    expectMarkedBut({u"Answer"_s});
    forget();
    addData({"lift1.cfb"});
    openMenu(frm.mnuModels);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\LIFT1.CFB"_s, u"C:\\DATA\\LIFT1.DG"_s,
                                                  u"C:\\DATA\\LIFT1.RF"_s, u"C:\\DATA\\LIFT1.RF2"_s));
}

TEST_F(ModelMenuOpening, leaves_selection_and_new_model_without_a_trial)
{
    openMenu(frm.mnuModels);
    EXPECT_EQ(enabled(), u"0xxxxx new"_s);
}

class EditorButtons : public Models
{};

TEST_F(EditorButtons, open_the_trials_model)
{
    size_t writtenBefore = 0;
    machine.programs.whileStarting = [&] { writtenBefore = machine.settings.written.size(); };
    mark();
    click(frm.cmdEditor);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct("modlex", u" "_s + CommandText::document(u"Walk1.cfb"_s), Show::Normal)));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\modlex.exe Walk1.cfb"_s);
    EXPECT_THAT(machine.settings.written,
                ElementsAre(Written{u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s}));
    EXPECT_EQ(writtenBefore, 1U) << "the editor finds the data directory there";
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(kinovra.Answer, 0);
    expectMarkedBut({u"TaskId"_s, u"Answer"_s});
}

TEST_F(EditorButtons, open_no_file_where_the_trial_has_no_model)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    click(frm.cmdEditor);
    EXPECT_THAT(machine.programs.started, ElementsAre(direct("modlex", u" ;"_s, Show::Normal)));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\modlex.exe ;"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_EQ(machine.settings.written.size(), 1U);
}

TEST_F(EditorButtons, open_no_file_where_there_is_no_trial)
{
    kinovra.CurrentTrial.clear();
    addFile(u"C:\\DATA\\.cfb"_s);
    click(frm.cmdEditor);
    EXPECT_THAT(machine.programs.started, ElementsAre(direct("modlex", u" ;"_s, Show::Normal)));
    EXPECT_THAT(machine.files.tested, IsEmpty());
}

TEST_F(EditorButtons, open_the_graph_type_in_notepad)
{
    frm.CurrentGRA = u"My Angles.GRA"_s;
    mark();
    click(frm.cmdEditGra);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"notepad.exe"_s,
                                  u" "_s + CommandText::document(u"C:\\KINOVRA\\graphs\\My Angles.GRA"_s),
                                  u"C:\\DATA"_s, Show::Normal}));
    EXPECT_EQ(machine.programs.started[0].text(), u"notepad.exe C:\\KINOVRA\\graphs\\My Angles.GRA"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"TaskId"_s});
    EXPECT_THAT(machine.settings.written, IsEmpty());
}
