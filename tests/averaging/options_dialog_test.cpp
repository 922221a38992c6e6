#include "averaging/options_dialog.h"
#include "panel_fixture.h"
#include "platform/letter_case.h"
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

class OptionsDialog : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"TRIAL1.DG", "Other.pj"});
        addFile(u"C:\\KINOVRA\\average.exe"_s);
        load();
        click(frm.filDatafiles, u"TRIAL1.DG"_s);
        frm.mnuPrompt.Checked = false;
        forget();
    }

    void openFor(const QString &binaryFile)
    {
        kinovra.BinaryFile = binaryFile;
        shell::dispatch(panel, [this] { newAverage.show(); });
    }

    // The six boxes by the bits of `bits`, in the order of the switches; the last one is the row-wise box.
    void setBoxes(unsigned bits)
    {
        controls::CheckBox *boxes[]{&newAverage.chkAVall,        &newAverage.chkAVtoMass,
                                    &newAverage.chkAVpercentage, &newAverage.chkAVecho,
                                    &newAverage.chkAVwait,       &newAverage.chkAVrow};
        for (unsigned i = 0; i < 6; ++i)
            boxes[i]->Value = (bits >> i & 1U) != 0;
    }

    // Which boxes are checked, by their letters, and the number of the option that is set.
    QString options() const
    {
        QString result;
        result += newAverage.chkAVall.Value ? u"A"_s : u"-"_s;
        result += newAverage.chkAVtoMass.Value ? u"M"_s : u"-"_s;
        result += newAverage.chkAVpercentage.Value ? u"P"_s : u"-"_s;
        result += newAverage.chkAVecho.Value ? u"E"_s : u"-"_s;
        result += newAverage.chkAVwait.Value ? u"W"_s : u"-"_s;
        result += newAverage.chkAVrow.Value ? u"R"_s : u"-"_s;
        for (size_t i = 0; i < newAverage.optCI.size(); ++i) {
            if (newAverage.optCI[i].Value)
                result += QString::number(i);
        }
        return result;
    }

    static Start average(const CommandText &parameters)
    {
        return {u"open"_s, u"C:\\KINOVRA\\AVERAGE.EXE"_s, parameters, u"C:\\DATA"_s, Show::Shown, 4711};
    }
};

TEST_F(OptionsDialog, has_its_texts)
{
    const auto &d = newAverage;
    EXPECT_EQ(d.Caption.value(), u"Ensemble Averaging Options"_s);
    EXPECT_EQ(d.lblBinary.Caption.value(), u"Binary data file:"_s);
    EXPECT_EQ(d.txtBinary.Text.value(), u"binary"_s);
    EXPECT_EQ(d.Label1.Caption.value(), u"List of filenames:"_s);
    EXPECT_EQ(d.chkAVall.Caption.value(), u"Normalize &All records (don't prompt)"_s);
    EXPECT_EQ(d.chkAVpercentage.Caption.value(), u"Normalize timebase to &Percentages"_s);
    EXPECT_EQ(d.chkAVtoMass.Caption.value(), u"Normalize amplitudes to body &Mass"_s);
    EXPECT_EQ(d.chkAVecho.Caption.value(), u"&Echo raw and normalized data to output file"_s);
    EXPECT_EQ(d.chkAVwait.Caption.value(), u"&Wait (pause program) after each added file"_s);
    EXPECT_EQ(d.chkAVrow.Caption.value(), u"Print results in &Row-wise fashion"_s);
    EXPECT_EQ(d.fraCI.Caption.value(), u"Confidence Levels"_s);
    EXPECT_EQ(d.optCI[0].Caption.value(), u"95% = s.d. x 1.96"_s);
    EXPECT_EQ(d.optCI[1].Caption.value(), u"99% = s.d. x 2.57"_s);
    EXPECT_EQ(d.optCI[2].Caption.value(), u"1 x s.d."_s);
    EXPECT_EQ(d.optCI[3].Caption.value(), u"2 x s.d."_s);
    EXPECT_EQ(d.optCI[4].Caption.value(), u"other"_s);
    EXPECT_EQ(d.cmdOK.Caption.value(), u"O&K"_s);
    EXPECT_EQ(d.cmdAverage.Caption.value(), u"Compute &Ensemble Averages"_s);
    EXPECT_EQ(d.cmdDefault.Caption.value(), u"&Defaults"_s);
    EXPECT_EQ(d.cmdHelp.Caption.value(), u"&Help"_s);
    EXPECT_EQ(d.cmdCancel.Caption.value(), u"&Cancel"_s);
    EXPECT_EQ(d.txtBinary.ToolTip, u"Name of selected binary data file"_s);
    EXPECT_EQ(d.chkAVall.ToolTip, u"If not selected program will prompt for which records to normalize"_s);
    EXPECT_EQ(d.chkAVpercentage.ToolTip,
              u"If checked timebase is normalized to 100 steps, otherwise program will prompt."_s);
    EXPECT_EQ(d.chkAVtoMass.ToolTip, u"If checked amplitudes will be normalized to body mass"_s);
    EXPECT_EQ(d.chkAVecho.ToolTip, u"If checked results are displayed to the console screen"_s);
    EXPECT_EQ(d.chkAVwait.ToolTip, u"If checked results are displayed to the console screen"_s);
    EXPECT_EQ(d.chkAVrow.ToolTip,
              u"Select how you want the normalized data printed. Usually results are columnized."_s);
    EXPECT_EQ(d.cmdOK.ToolTip, u"Click to initialize and start averaging process"_s);
    EXPECT_EQ(d.cmdAverage.ToolTip, u"Click to initialize and start averaging process"_s);
    EXPECT_EQ(d.cmdDefault.ToolTip, u"Resets options to defaults"_s);
    EXPECT_EQ(d.cmdHelp.ToolTip, u"Click to display help file"_s);
    EXPECT_EQ(d.cmdCancel.ToolTip, u"Click to cancel averaging"_s);
}

TEST_F(OptionsDialog, starts_with_the_defaults)
{
    EXPECT_EQ(options(), u"AMP-W-0"_s);
}

TEST_F(OptionsDialog, defaults_can_be_had_again_from_any_state)
{
    for (unsigned bits = 0; bits < 64; ++bits) {
        setBoxes(bits);
        controls::choose(newAverage.optCI, bits % 5);
        click(newAverage.cmdDefault);
        EXPECT_EQ(options(), u"AMP-W-0"_s) << bits;
    }
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(OptionsDialog, is_compact_for_adding_a_file)
{
    newAverage.comFilenames.AddItem(u"first.pj"_s);
    openFor(u"Other.pj"_s);
    EXPECT_TRUE(newAverage.Visible);
    EXPECT_EQ(newAverage.txtBinary.Text.value(), u"Other.pj"_s);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), (QStringList{u"Click to View"_s, u"Other.pj"_s}));
    EXPECT_EQ(newAverage.comFilenames.ListIndex.value(), 0);
    EXPECT_EQ(newAverage.Height.value(), 3600);
    EXPECT_TRUE(newAverage.cmdOK.Enabled);
}

TEST_F(OptionsDialog, is_tall_for_computing)
{
    openFor(QString());
    EXPECT_EQ(newAverage.txtBinary.Text.value(), u"Average.av"_s);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), QStringList{u"Not Available"_s});
    EXPECT_EQ(newAverage.comFilenames.ListIndex.value(), 0);
    EXPECT_EQ(newAverage.Height.value(), 5400);
    EXPECT_FALSE(newAverage.cmdOK.Enabled);
}

TEST_F(OptionsDialog, keeps_the_list_of_files_for_computing)
{
    openFor(u"Other.pj"_s);
    openFor(QString());
    EXPECT_EQ(newAverage.comFilenames.Items.value(), (QStringList{u"Click to View"_s, u"Other.pj"_s}));
    EXPECT_EQ(newAverage.comFilenames.ListIndex.value(), 0);
}

TEST_F(OptionsDialog, follows_the_chosen_file_when_it_comes_back)
{
    openFor(u"Other.pj"_s);
    newAverage.comFilenames.ListIndex = 1;
    click(frm.filBinaries, u"Other.pj"_s);
    kinovra.BinaryFile = u"x.km"_s;
    comeBack(newAverage);
    EXPECT_EQ(newAverage.txtBinary.Text.value(), u"x.km"_s);
    EXPECT_EQ(newAverage.comFilenames.Items.value(), (QStringList{u"Click to View"_s, u"x.km"_s}));
    EXPECT_EQ(newAverage.comFilenames.ListIndex.value(), 0);
}

TEST_F(OptionsDialog, is_loaded_once)
{
    openFor(QString());
    click(newAverage.cmdCancel);
    newAverage.comFilenames.Clear();
    openFor(QString());
    EXPECT_EQ(newAverage.comFilenames.ListCount(), 0);
}

TEST_F(OptionsDialog, a_run_hides_it_without_forgetting_it)
{
    for (controls::Button *button : {&newAverage.cmdOK, &newAverage.cmdAverage}) {
        openFor(u"Other.pj"_s);
        click(*button);
        newAverage.comFilenames.Clear();
        openFor(QString());
        EXPECT_EQ(newAverage.comFilenames.ListCount(), 0) << "it is not loaded again";
    }
}

TEST_F(OptionsDialog, never_enables_ok_again)
{
    openFor(QString());
    click(newAverage.cmdCancel);
    openFor(u"Other.pj"_s);
    EXPECT_FALSE(newAverage.cmdOK.Enabled);
    EXPECT_EQ(newAverage.Height.value(), 3600);
}

TEST_F(OptionsDialog, keeps_its_options_while_it_is_hidden)
{
    openFor(u"Other.pj"_s);
    setBoxes(0b101010);
    controls::choose(newAverage.optCI, 3);
    click(newAverage.cmdCancel);
    openFor(QString());
    EXPECT_EQ(options(), u"-M-E-R3"_s);
}

TEST_F(OptionsDialog, cancel_hides_it_and_runs_nothing)
{
    openFor(u"Other.pj"_s);
    mark();
    click(newAverage.cmdCancel);
    EXPECT_FALSE(newAverage.Visible);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.BinaryFile, u"Other.pj"_s);
    expectMarkedBut({});
}

TEST_F(OptionsDialog, closing_it_is_cancel)
{
    openFor(u"Other.pj"_s);
    shell::dispatch(panel, newAverage.Unload);
    EXPECT_FALSE(newAverage.Visible);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(OptionsDialog, ok_adds_the_file_with_the_default_options)
{
    click(frm.mnuListing[1]);
    openFor(u"Trial1.pj"_s);
    mark();
    click(newAverage.cmdOK);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(average(u"/T /I /A /M /P /W "_s + CommandText::document(u"TRIAL1.PJ"_s))));
    EXPECT_EQ(newAverage.AverageProgram, u"C:\\KINOVRA\\Average.exe"_s);
    EXPECT_EQ(newAverage.AverageCommand, u"/T /I /A /M /P /W "_s + CommandText::document(u"Trial1.pj"_s));
    EXPECT_EQ(kinovra.ProgName, u"Average"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_FALSE(newAverage.Visible);
    EXPECT_EQ(kinovra.BinaryFile, u"Trial1.pj"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
    expectMarkedBut({u"ProgName"_s, u"Answer"_s, u"TaskId"_s, u"lblCommand"_s});
}

// The switches of the five boxes in their order; the row-wise box is no matter of adding.
constexpr const char *Added[32]{
    "/I ",          "/I /A ",          "/I /M ",          "/I /A /M ",
    "/I /P ",       "/I /A /P ",       "/I /M /P ",       "/I /A /M /P ",
    "/I /E ",       "/I /A /E ",       "/I /M /E ",       "/I /A /M /E ",
    "/I /P /E ",    "/I /A /P /E ",    "/I /M /P /E ",    "/I /A /M /P /E ",
    "/I /W ",       "/I /A /W ",       "/I /M /W ",       "/I /A /M /W ",
    "/I /P /W ",    "/I /A /P /W ",    "/I /M /P /W ",    "/I /A /M /P /W ",
    "/I /E /W ",    "/I /A /E /W ",    "/I /M /E /W ",    "/I /A /M /E /W ",
    "/I /P /E /W ", "/I /A /P /E /W ", "/I /M /P /E /W ", "/I /A /M /P /E /W ",
};

constexpr const char *ListingSwitches[4]{"", "/T ", "/L ", "/N "};

TEST_F(OptionsDialog, ok_composes_every_combination_of_its_boxes)
{
    for (size_t device = 0; device < 4; ++device) {
        click(frm.mnuListing[device]);
        for (const char *file : {"", "other.km"}) {
            const QString name = *file == '\0' ? u"TRIAL1.pj"_s : QString(QLatin1String(file));
            for (unsigned bits = 0; bits < 64; ++bits) {
                openFor(QLatin1String(file));
                newAverage.cmdOK.Enabled = true;
                setBoxes(bits);
                controls::choose(newAverage.optCI, bits % 5);
                forget();
                click(newAverage.cmdOK);
                const QString text = QLatin1String(ListingSwitches[device]) + QLatin1String(Added[bits % 32]);
                EXPECT_EQ(newAverage.AverageCommand, text + CommandText::document(name)) << bits;
                ASSERT_EQ(machine.programs.started.size(), 1U);
                EXPECT_EQ(machine.programs.started[0].parameters.text(), platform::UCase(text + name));
                EXPECT_FALSE(newAverage.Visible);
            }
        }
    }
}

TEST_F(OptionsDialog, ok_without_a_file_takes_the_trials_own)
{
    openFor(QString());
    newAverage.cmdOK.Enabled = true;
    click(newAverage.cmdOK);
    EXPECT_EQ(kinovra.BinaryFile, u"TRIAL1.pj"_s);
    EXPECT_EQ(newAverage.AverageCommand.text(), u"/I /A /M /P /W TRIAL1.pj"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"The binary file is TRIAL1.pj now."_s);
}

TEST_F(OptionsDialog, a_file_that_the_user_chooses_meanwhile_is_not_announced)
{
    openFor(QString());
    newAverage.cmdOK.Enabled = true;
    frm.mnuPrompt.Checked = true;
    machine.dialogs.answers = {platform::No};
    machine.clock.duringPause(0.5, [this] { click(frm.filBinaries, u"Other.pj"_s); });
    click(newAverage.cmdOK);
    EXPECT_EQ(kinovra.BinaryFile, u"Other.pj"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}

// By confidence level, without and with row-wise printing.
constexpr const char *Computed[5][2]{
    {" /C/5 ", " /C/5 /R "}, {" /C/9 ", " /C/9 /R "}, {" /C/1 ", " /C/1 /R "},
    {" /C/2 ", " /C/2 /R "}, {" /C", " /C/R "},
};

TEST_F(OptionsDialog, compute_composes_every_combination)
{
    for (size_t device = 0; device < 4; ++device) {
        click(frm.mnuListing[device]);
        for (const char *file : {"", "other.km"}) {
            for (size_t level = 0; level < 5; ++level) {
                for (size_t row = 0; row < 2; ++row) {
                    openFor(QLatin1String(file));
                    setBoxes(row == 1 ? 0b100000U | level : 0b011111U & ~static_cast<unsigned>(level));
                    controls::choose(newAverage.optCI, level);
                    forget();
                    click(newAverage.cmdAverage);
                    const QString text =
                        QLatin1String(ListingSwitches[device]) + QLatin1String(Computed[level][row]);
                    EXPECT_EQ(newAverage.AverageCommand.text(), text + QLatin1String(file));
                    ASSERT_EQ(machine.programs.started.size(), 1U);
                    EXPECT_EQ(machine.programs.started[0].parameters.text(),
                              text + QString(QLatin1String(file)).toUpper());
                    EXPECT_EQ(kinovra.BinaryFile, QLatin1String(file));
                }
            }
        }
    }
}

TEST_F(OptionsDialog, compute_runs_the_averaging_program)
{
    openFor(QString());
    mark();
    click(newAverage.cmdAverage);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(average(u" /C/5 "_s + CommandText::document(QString()))));
    EXPECT_EQ(newAverage.AverageProgram, u"C:\\KINOVRA\\Average.exe"_s);
    EXPECT_EQ(kinovra.ProgName, u"Average"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_FALSE(newAverage.Visible);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"c:\\kinovra\\average.exe  /c/5 "_s);
    // The listing goes to a file: it is what was selected last.
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\DATA\\Average.out"_s);
    expectMarkedBut({u"ProgName"_s, u"SelectedFile"_s, u"Answer"_s, u"TaskId"_s, u"lblCommand"_s});
}

TEST_F(OptionsDialog, compute_with_no_level_set_adds_none)
{
    openFor(QString());
    newAverage.optCI[0].Value = false;
    click(newAverage.cmdAverage);
    EXPECT_EQ(newAverage.AverageCommand.text(), u" /C"_s);
}

TEST_F(OptionsDialog, compute_takes_the_first_level_that_is_set)
{
    openFor(QString());
    newAverage.optCI[0].Value = false;
    newAverage.optCI[1].Value = true;
    newAverage.optCI[3].Value = true;
    click(newAverage.cmdAverage);
    EXPECT_EQ(newAverage.AverageCommand.text(), u" /C/9 "_s);
}

TEST_F(OptionsDialog, a_name_follows_the_compute_switch_at_once)
{
    openFor(u"other.km"_s);
    controls::choose(newAverage.optCI, 4);
    click(newAverage.cmdAverage);
    EXPECT_EQ(newAverage.AverageCommand.text(), u" /Cother.km"_s);
}

TEST_F(OptionsDialog, offers_the_programs_listing)
{
    frm.mnuPrompt.Checked = true;
    openFor(u"Other.pj"_s);
    machine.dialogs.answers = {platform::No};
    machine.dialogs.whileShown = [this](const MessageBox &) { EXPECT_TRUE(newAverage.Visible); };
    click(newAverage.cmdOK);
    EXPECT_EQ(messages(),
              QStringList{u"Do you want to view the output produced by the program, \nAVERAGE.  If so, "
                          "click Yes to view the output?"_s});
    EXPECT_FALSE(newAverage.Visible);
}

TEST_F(OptionsDialog, a_missing_program_is_told_of)
{
    machine.files.remove(u"C:\\KINOVRA\\average.exe"_s);
    for (controls::Button *button : {&newAverage.cmdOK, &newAverage.cmdAverage}) {
        forget();
        openFor(u"Other.pj"_s);
        click(*button);
        EXPECT_EQ(messages(),
                  QStringList{u"Error opening file: \"C:\\KINOVRA\\AVERAGE.EXE\"  (53)\nFile not found"_s});
        EXPECT_EQ(kinovra.Answer, 1);
        EXPECT_FALSE(newAverage.Visible);
    }
}

TEST_F(OptionsDialog, its_buttons_wait_while_its_own_run_is_in_progress)
{
    addFile(u"C:\\KINOVRA\\average.txt"_s);
    for (controls::Button *first : {&newAverage.cmdOK, &newAverage.cmdAverage}) {
        frm.mnuPrompt.Checked = true;
        machine.dialogs.answers = {platform::No};
        openFor(u"Other.pj"_s);
        setBoxes(0);
        forget();
        machine.clock.duringPause(0.5, [this] {
            for (controls::Button *button :
                 {&newAverage.cmdOK, &newAverage.cmdAverage, &newAverage.cmdDefault, &newAverage.cmdHelp,
                  &newAverage.cmdCancel})
                click(*button);
            shell::dispatch(panel, newAverage.Unload);
            EXPECT_TRUE(newAverage.Visible);
            EXPECT_FALSE(viewer.Visible);
            EXPECT_EQ(options(), u"------0"_s);
            shell::dispatch(panel, newAverage.txtBinary.Click);
            EXPECT_EQ(messages().size(), 1) << "the field is no button";
            machine.dialogs.answers = {platform::No};
        });
        click(*first);
        EXPECT_EQ(machine.programs.started.size(), 1U);
        EXPECT_FALSE(newAverage.Visible);
    }
    // They work again.
    openFor(u"Other.pj"_s);
    click(newAverage.cmdHelp);
    EXPECT_TRUE(viewer.Visible);
    click(newAverage.cmdDefault);
    EXPECT_EQ(options(), u"AMP-W-0"_s);
    click(newAverage.cmdCancel);
    EXPECT_FALSE(newAverage.Visible);
}

TEST_F(OptionsDialog, help_shows_what_the_viewer_was_to_show_before)
{
    addFile(u"C:\\KINOVRA\\average.txt"_s, "averaging\n");
    addFile(u"C:\\KINOVRA\\Work.txt"_s, "work\n");
    addFile(u"C:\\KINOVRA\\work.txt"_s, "work\n");
    click(frm.mnuHelpItem[18]);
    viewer.Visible = false;
    openFor(u"Other.pj"_s);
    click(newAverage.cmdHelp);
    EXPECT_TRUE(viewer.Visible);
    EXPECT_EQ(viewer.txtViewer.Text.value(), u"work"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\KINOVRA\\average.txt"_s);
    EXPECT_EQ(kinovra.ViewerFile, u"C:\\KINOVRA\\Work.txt"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_TRUE(newAverage.Visible);
}

TEST_F(OptionsDialog, help_before_anything_was_shown_is_an_empty_viewer)
{
    addFile(u"C:\\KINOVRA\\average.txt"_s, "averaging\n");
    openFor(u"Other.pj"_s);
    click(newAverage.cmdHelp);
    EXPECT_TRUE(viewer.Visible);
    EXPECT_EQ(viewer.txtViewer.Text.value(), QString());
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer"_s);
}

TEST_F(OptionsDialog, help_that_is_missing_is_told_of)
{
    openFor(u"Other.pj"_s);
    mark();
    click(newAverage.cmdHelp);
    EXPECT_EQ(messages(),
              QStringList{u"Error opening file: \"C:\\KINOVRA\\AVERAGE.TXT\"  (53)\nFile not found"_s});
    EXPECT_FALSE(viewer.Visible);
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\KINOVRA\\average.txt"_s);
    expectMarkedBut({u"SelectedFile"_s, u"Answer"_s});
}

TEST_F(OptionsDialog, the_files_name_is_changed_elsewhere)
{
    frm.filBinaries.Visible = false;
    frm.lblBinaries.Visible = false;
    openFor(QString());
    mark();
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_EQ(newAverage.txtBinary.Text.value(), QString());
        EXPECT_FALSE(frm.filBinaries.Visible);
    };
    shell::dispatch(panel, newAverage.txtBinary.Click);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"To change the input data file press the Cancel button and\nselect a file "
                               "from the Binary output list."_s,
                               Icon::Information}));
    EXPECT_TRUE(frm.filBinaries.Visible);
    EXPECT_TRUE(frm.lblBinaries.Visible);
    EXPECT_TRUE(newAverage.Visible);
    expectMarkedBut({});
}

TEST_F(OptionsDialog, the_files_name_shows_the_chosen_one_again)
{
    openFor(u"Other.pj"_s);
    newAverage.txtBinary.Text = u"typed"_s;
    shell::dispatch(panel, newAverage.txtBinary.Click);
    EXPECT_EQ(newAverage.txtBinary.Text.value(), u"Other.pj"_s);
}
