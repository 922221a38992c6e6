#include "panel_fixture.h"
#include "printing.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

class StartUpOrder : public support::PanelFixture
{
protected:
    // The result of the last test, as it stands when the data directory is found to be gone.
    qint16 answerWithoutDataDirectory()
    {
        qint16 answer = -1;
        machine.settings.stored(u"Datadir"_s, u"C:\\GONE"_s);
        machine.dialogs.whileShown = [&](const MessageBox &box) {
            EXPECT_EQ(box.title, u"No Data Directory"_s);
            answer = kinovra.Answer;
        };
        start();
        EXPECT_EQ(messages().size(), 1);
        return answer;
    }
};

TEST_F(StartUpOrder, takes_the_tenth_argument_behind_nine_switches)
{
    addData({"tenth.dg"});
    start(u"/1 /2 /3 /4 /5 /6 /7 /8 /9 tenth.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"tenth.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"tenth"_s);
}

TEST_F(StartUpOrder, takes_no_eleventh_argument)
{
    addData({"eleventh.dg"});
    start(u"/1 /2 /3 /4 /5 /6 /7 /8 /9 /10 eleventh.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_EQ(kinovra.CurrentTrial, QString());
}

TEST_F(StartUpOrder, keeps_a_data_directory_of_four_characters)
{
    machine.files.addDirectory(u"C:\\A"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\A"_s);
    start();
    EXPECT_EQ(kinovra.DataDir, u"C:\\A"_s);
    EXPECT_EQ(frm.dirSelect.Path(), u"C:\\A"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\a"_s);
}

TEST_F(StartUpOrder, lets_dialogs_begin_in_the_data_directory_and_not_where_the_panel_was_started)
{
    machine.files.addDirectory(u"C:\\TRIALS"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS\\"_s);
    start();
    EXPECT_EQ(frm.StartDir, u"C:\\DATA"_s);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\TRIALS"_s);
}

TEST_F(StartUpOrder, looks_for_a_bare_viewer_where_it_was_started)
{
    machine.files.addDirectory(u"C:\\TRIALS"_s);
    addData({"edit.exe"});
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS"_s);
    machine.settings.stored(u"Viewer"_s, u"edit.exe"_s);
    start();
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\TRIALS"_s);
    EXPECT_EQ(kinovra.TextViewer, u"edit.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[2].Checked);
}

TEST_F(StartUpOrder, does_not_look_for_a_bare_viewer_in_the_data_directory)
{
    addFile(u"C:\\TRIALS\\edit.exe"_s);
    machine.settings.stored(u"Datadir"_s, u"C:\\TRIALS"_s);
    machine.settings.stored(u"Viewer"_s, u"edit.exe"_s);
    start();
    EXPECT_EQ(kinovra.TextViewer, u"notepad.exe"_s);
    EXPECT_TRUE(frm.mnuTextViewer[1].Checked);
}

TEST_F(StartUpOrder, keeps_the_result_of_each_test)
{
    // The viewer opens, the text manual, which is tested last, does not.
    addData({"Notepad.exe"});
    EXPECT_EQ(answerWithoutDataDirectory(), 53);
}

TEST_F(StartUpOrder, keeps_the_result_of_the_last_test_alone)
{
    // Neither the viewer nor a manual in PDF opens, the text manual does.
    addFile(u"C:\\KINOVRA\\kinovra.txt"_s);
    EXPECT_EQ(answerWithoutDataDirectory(), 0);
}

TEST_F(StartUpOrder, shows_the_about_window_before_the_main_window)
{
    QStringList shown;
    const auto watchAbout = about.Visible.addNotifier(
        [&] { shown.append(about.Visible ? u"about window"_s : u"no about window"_s); });
    const auto watchMain = frm.Visible.addNotifier([&] { shown.append(u"main window"_s); });
    start();
    EXPECT_EQ(shown, (QStringList{u"about window"_s, u"main window"_s, u"no about window"_s}));
    EXPECT_THAT(machine.clock.pauses, ElementsAre(3));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StartUpOrder, sets_every_label_of_the_state)
{
    addData({"run1.dg"});
    for (controls::Label *label : {&frm.lblTrial, &frm.lblPath, &frm.lblOutput, &frm.lblGraphics[0]})
        label->Caption = u"(before)"_s;
    start(u"run1.dg"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"RUN1"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"c:\\data"_s);
    EXPECT_EQ(frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"RUN.GRA"_s);
}
