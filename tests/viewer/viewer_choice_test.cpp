#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"
#include "viewer/viewer_choice.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::ErrorNumber;
using platform::OpenFileRequest;
using platform::RuntimeError;
using testing::ElementsAre;
using testing::IsEmpty;

class TextViewerMenu : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addFile(u"C:\\WINDOWS\\notepad.exe"_s);
        addFile(u"C:\\KINOVRA\\notepad.exe"_s);
        addFile(u"C:\\TOOLS\\pad.exe"_s);
        machine.environment.variables[u"WINDIR"_s] = u"C:\\WINDOWS"_s;
        load();
        mark();
    }

    void choose(int index)
    {
        shell::dispatch(panel, [&] { viewer::mnuTextViewer_Click(panel, index); });
    }

    QString checked() const
    {
        QString result;
        for (const auto &item : frm.mnuTextViewer)
            result += item.Checked ? u'x' : u'-';
        return result;
    }
};

TEST_F(TextViewerMenu, offers_the_packages_notepad_where_it_is_there)
{
    openMenu(frm.mnuTextViewers);
    EXPECT_EQ(enabledOf(frm.mnuTextViewer), u"012"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\KINOVRA\\NOTEPAD.EXE"_s));
    machine.files.remove(u"C:\\KINOVRA\\notepad.exe"_s);
    openMenu(frm.mnuTextViewers);
    EXPECT_EQ(enabledOf(frm.mnuTextViewer), u"x12"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({u"Answer"_s});
}

TEST_F(TextViewerMenu, chooses_either_notepad)
{
    click(frm.mnuTextViewer[0]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\KINOVRA\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"x--"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\KINOVRA\\NOTEPAD.EXE"_s));
    click(frm.mnuTextViewer[1]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"-x-"_s);
    EXPECT_THAT(machine.dialogs.requests, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectMarkedBut({u"Answer"_s});
}

TEST_F(TextViewerMenu, chooses_any_program)
{
    machine.dialogs.chosenFiles = {u"C:\\TOOLS\\pad.exe"_s};
    click(frm.mnuTextViewer[2]);
    EXPECT_THAT(machine.dialogs.requests,
                ElementsAre(OpenFileRequest{.initialDirectory = u"C:\\WINDOWS\\"_s,
                                            .fileName = u"*.exe"_s,
                                            .filter = u"Programs|*.exe|All files|*.*"_s,
                                            .title = u"Select a text viewer."_s,
                                            .filterIndex = 1}));
    EXPECT_EQ(kinovra.TextViewer, u"C:\\TOOLS\\pad.exe"_s);
    EXPECT_EQ(checked(), u"--x"_s);
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\WINDOWS\\"_s);
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({u"Answer"_s});
}

TEST_F(TextViewerMenu, falls_back_on_windows_notepad)
{
    machine.files.remove(u"C:\\KINOVRA\\notepad.exe"_s);
    click(frm.mnuTextViewer[0]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"-x-"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    machine.dialogs.chosenFiles = {u"C:\\TOOLS\\none.exe"_s};
    click(frm.mnuTextViewer[2]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"-x-"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(TextViewerMenu, keeps_the_viewer_but_moves_the_mark_when_cancelled)
{
    click(frm.mnuTextViewer[0]);
    machine.dialogs.chosenFiles = {std::nullopt};
    click(frm.mnuTextViewer[2]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\KINOVRA\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"--x"_s);
    machine.files.remove(u"C:\\KINOVRA\\notepad.exe"_s);
    click(frm.mnuTextViewer[2]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"-x-"_s);
}

TEST_F(TextViewerMenu, takes_a_failing_dialog_for_a_cancelled_one)
{
    click(frm.mnuTextViewer[0]);
    machine.dialogs.whileChoosing = [] { throw RuntimeError(ErrorNumber::DeviceError); };
    click(frm.mnuTextViewer[2]);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\KINOVRA\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"--x"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"No text viewer was chosen: device I/O error."_s);
}

TEST_F(TextViewerMenu, of_another_index_only_tests_the_viewer)
{
    click(frm.mnuTextViewer[0]);
    for (int index : {-1, 3}) {
        choose(index);
        EXPECT_EQ(kinovra.TextViewer, u"C:\\KINOVRA\\notepad.exe"_s);
        EXPECT_EQ(checked(), u"---"_s);
    }
    machine.files.remove(u"C:\\KINOVRA\\notepad.exe"_s);
    choose(3);
    EXPECT_EQ(kinovra.TextViewer, u"C:\\WINDOWS\\notepad.exe"_s);
    EXPECT_EQ(checked(), u"-x-"_s);
}

// Without a Windows directory the name alone is left, and the desktop's own editor takes its place.
TEST_F(TextViewerMenu, needs_no_windows_directory)
{
    kinovra.WindowsDir.clear();
    click(frm.mnuTextViewer[1]);
    EXPECT_EQ(kinovra.TextViewer, u"notepad.exe"_s);
    EXPECT_EQ(checked(), u"-x-"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    click(frm.mnuTextViewer[2]);
    EXPECT_EQ(machine.dialogs.requests.at(0).initialDirectory, QString());
}

TEST_F(TextViewerMenu, is_remembered_by_the_exit_button)
{
    click(frm.mnuTextViewer[0]);
    click(frm.cmdExit);
    EXPECT_EQ(machine.settings.values.value(u"Kinovra/Startup/Viewer"_s), u"C:\\KINOVRA\\notepad.exe"_s);
}
