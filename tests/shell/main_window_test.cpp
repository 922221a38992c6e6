#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"
#include "shell/main_window.h"
#include "shell/window_events.h"

using namespace Qt::StringLiterals;

namespace {

struct ExpectedButton
{
    controls::Button shell::frmKinovra::*button;
    QString caption;
    QString toolTip;
};

struct ExpectedList
{
    controls::FileList shell::frmKinovra::*list;
    controls::Label shell::frmKinovra::*label;
    QString caption;
    QString pattern;
    QString toolTip;
};

} // namespace

TEST(MainWindow, has_its_buttons)
{
    using Form = shell::frmKinovra;
    const Form frm;
    const ExpectedButton expected[]{
        {&Form::cmdEditGra, u"&Edit .GRA File"_s, u"Start Control File Editor program"_s},
        {&Form::cmdSelectGra, u"&Select Type of  Graph"_s, u"Start Control File Editor program"_s},
        {&Form::cmdGraph, u"&Create Graph(s)"_s, u"Start Control File Editor program"_s},
        {&Form::cmdForces, u"Force Plate &Analysis"_s, u"Start Force Analysis program"_s},
        {&Form::cmdGuide, u"&Guide"_s, u"Click to view Quick Reference Guide"_s},
        {&Form::cmdSkelvo, u"&Skelvo"_s, u"Start Skelvo program"_s},
        {&Form::cmdOndex, u"Ond&ex2"_s, u"Start Ondex program"_s},
        {&Form::cmdEditor, u".CFB &Editor"_s, u"Start Control File Editor program"_s},
        {&Form::cmdRefresh, u"Refresh &File Lists"_s, u"Click to show and refresh the file lists"_s},
        {&Form::cmdExit, u"E&xit"_s, u"Click to exit"_s},
        {&Form::cmdManual, u"Man&ual"_s, u"Click to view User's Manual"_s},
    };
    for (const auto &row : expected) {
        const controls::Button &button = frm.*row.button;
        EXPECT_EQ(button.Caption.value(), row.caption);
        EXPECT_EQ(button.ToolTip, row.toolTip) << row.caption.toStdString();
        EXPECT_TRUE(button.Visible) << row.caption.toStdString();
        const bool waitsForAFile = row.button == &Form::cmdGuide || row.button == &Form::cmdManual;
        EXPECT_EQ(button.Enabled, !waitsForAFile) << row.caption.toStdString();
    }
}

TEST(MainWindow, has_its_lists)
{
    using Form = shell::frmKinovra;
    const Form frm;
    const ExpectedList expected[]{
        {&Form::filPlots, &Form::lblPlots, u"Graphs (.PLT)"_s, u"*.plt;*.hpg;*.pgl;*.hpgl;*.acd"_s,
         u"Click to select a graph for printing or double-click to view a graph"_s},
        {&Form::filOutputs, &Form::lblOutputs, u"Output files"_s, u"*.out"_s,
         u"Double-click to view program output"_s},
        {&Form::filBinaries, &Form::lblBinaries, u"Binary files"_s,
         u"*.av;*.dr;*.en;*.fo;*.fr;*.jp;*.ks;*.km;*.mm;*.mu;*.pj;*.ps;*.ra;*.sim"_s,
         u"Click to select file for graphing or averaging"_s},
        {&Form::filGraFiles, &Form::lblGraFiles, u"Graph Types (.GRA)"_s, u"*.gra"_s,
         u"Click to select type of graph. Right-click to cancel selection."_s},
        {&Form::filModels, &Form::lblModels, u"Models (.CFB)"_s, u"*.cfb"_s, u"Click to select a model"_s},
        {&Form::filDatafiles, &Form::lblDatafiles, u"Data files"_s,
         u"*.dg;*.1t;*.2t;*.3t;*.4t;*.5t;*.6t;*.7t;*.8t;*.9t;*.3d;*.cda"_s, u"Click to select motion data"_s},
    };
    for (const auto &row : expected) {
        const controls::FileList &list = frm.*row.list;
        const controls::Label &label = frm.*row.label;
        EXPECT_EQ(label.Caption.value(), row.caption);
        EXPECT_EQ(list.Pattern, row.pattern);
        EXPECT_EQ(list.ToolTip, row.toolTip);
        const bool shown = row.list != &Form::filGraFiles;
        EXPECT_EQ(list.Visible, shown) << row.caption.toStdString();
        EXPECT_EQ(label.Visible, shown) << row.caption.toStdString();
    }
    EXPECT_EQ(frm.dirSelect.ToolTip, u"Select the data directory"_s);
    EXPECT_EQ(frm.drvDrives.ToolTip, u"Select drive with data files"_s);
}

TEST(MainWindow, has_its_labels)
{
    const shell::frmKinovra frm;
    EXPECT_EQ(frm.Caption.value(), u"Kinovra Motion Analysis System"_s);
    EXPECT_EQ(frm.lblPath.Caption.value(), u"Path:"_s);
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), u"GRA file:"_s);
    EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
    EXPECT_EQ(frm.lblTitle.Caption.value(), u" (unknown)"_s);
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"(none)"_s);
    EXPECT_EQ(frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"Trial: "_s);
}

class WindowEvents : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    void resizeTo(int width, int height)
    {
        frm.Width = width;
        frm.Height = height;
        shell::dispatch(panel, frm.Resize);
    }

    void key(int code, int shift)
    {
        panel.about.Visible = false;
        shell::dispatch(panel, [&] { frm.KeyUp(code, shift); });
    }
};

TEST_F(WindowEvents, resizing_keeps_the_width)
{
    resizeTo(9000, 9000);
    EXPECT_EQ(frm.Width.value(), 10100);
    resizeTo(20000, 9000);
    EXPECT_EQ(frm.Width.value(), 10100);
    EXPECT_EQ(frm.Height.value(), 9000);
}

TEST_F(WindowEvents, resizing_gives_the_directory_list_the_height_that_is_left)
{
    resizeTo(10100, 9000);
    EXPECT_EQ(frm.dirSelect.Height.value(), 5200);
}

TEST_F(WindowEvents, resizing_keeps_the_least_height)
{
    resizeTo(10100, 5000);
    EXPECT_EQ(frm.Height.value(), 7300);
    EXPECT_EQ(frm.dirSelect.Height.value(), 3500);
    resizeTo(10100, 7300);
    EXPECT_EQ(frm.Height.value(), 7300);
}

TEST_F(WindowEvents, help_keys_show_the_about_window)
{
    key(112, 0);
    EXPECT_TRUE(panel.about.Visible);
    key(47, 0);
    EXPECT_TRUE(panel.about.Visible);
    key(63, 0);
    EXPECT_TRUE(panel.about.Visible);
    key(191, 1);
    EXPECT_TRUE(panel.about.Visible);
}

TEST_F(WindowEvents, other_keys_do_nothing)
{
    addData({"NEW.DG"});
    for (const auto &[code, shift] : std::initializer_list<std::pair<int, int>>{
             {191, 0}, {191, 3}, {82, 0}, {82, 1}, {82, 3}, {82, 6}, {83, 2}, {27, 0}, {13, 0}, {113, 0}}) {
        key(code, shift);
        EXPECT_FALSE(panel.about.Visible) << code << ' ' << shift;
        EXPECT_EQ(frm.filDatafiles.ListCount(), 0) << code << ' ' << shift;
    }
}

TEST_F(WindowEvents, ctrl_r_refreshes_the_lists)
{
    addData({"NEW.DG"});
    key(82, 2);
    EXPECT_EQ(frm.filDatafiles.ListCount(), 1);
    EXPECT_FALSE(panel.about.Visible);
}

TEST_F(WindowEvents, a_double_click_on_the_background_shows_the_about_window)
{
    shell::dispatch(panel, frm.DblClick);
    EXPECT_TRUE(panel.about.Visible);
}

TEST_F(WindowEvents, the_about_window_that_is_asked_for_again_comes_to_the_front)
{
    int toFront = 0;
    panel.about.ToFront = [&] { ++toFront; };
    shell::dispatch(panel, frm.DblClick);
    shell::dispatch(panel, frm.DblClick);
    EXPECT_EQ(toFront, 2);
}

TEST_F(WindowEvents, activation_lets_the_window_see_keys_first)
{
    EXPECT_FALSE(frm.KeyPreview);
    shell::dispatch(panel, frm.Activate);
    EXPECT_TRUE(frm.KeyPreview);
    shell::dispatch(panel, frm.Activate);
    EXPECT_TRUE(frm.KeyPreview);
}

TEST_F(WindowEvents, the_about_window_shows_the_banner)
{
    shell::dispatch(panel, panel.about.Load);
    shell::dispatch(panel, panel.about.Activate);
    EXPECT_EQ(panel.about.Caption.value(), u"About Kinovra Motion Analysis System"_s);
    EXPECT_EQ(panel.about.lblHeader.Caption.value(), kinovra.HeaderText);
}

TEST_F(WindowEvents, user_level_is_one_of_two)
{
    click(frm.mnuUser[1]);
    EXPECT_EQ(kinovra.UserLevel, 1);
    EXPECT_FALSE(frm.mnuUser[0].Checked);
    EXPECT_TRUE(frm.mnuUser[1].Checked);
    click(frm.mnuUser[0]);
    EXPECT_EQ(kinovra.UserLevel, 0);
    EXPECT_TRUE(frm.mnuUser[0].Checked);
    EXPECT_FALSE(frm.mnuUser[1].Checked);
    EXPECT_TRUE(machine.settings.written.empty());
}

TEST_F(WindowEvents, an_unknown_user_level_checks_none_and_changes_nothing)
{
    for (const int index : {-1, 2}) {
        click(frm.mnuUser[1]);
        shell::dispatch(panel, [&] { shell::mnuUser_Click(panel, index); });
        EXPECT_EQ(kinovra.UserLevel, 1);
        EXPECT_FALSE(frm.mnuUser[0].Checked);
        EXPECT_FALSE(frm.mnuUser[1].Checked);
    }
}

TEST_F(WindowEvents, an_error_of_the_library_is_told_like_every_other)
{
    shell::dispatch(panel, [] { throw std::length_error("too long"); });
    EXPECT_EQ(messages(), QStringList{u"too long"_s});
}
