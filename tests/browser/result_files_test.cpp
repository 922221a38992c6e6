#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

class ResultFiles : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"RUN1.DG", "run1.dr", "run1.km", "walk.plt", "walk.acd"});
        load();
    }

    static Start display(const char *program, const CommandText &parameters)
    {
        return {QString(), u"C:\\KINOVRA\\"_s + QLatin1String(program), parameters, u"C:\\DATA"_s,
                Show::Normal};
    }
};

TEST_F(ResultFiles, of_which_none_is_selected_leave_a_hidden_list_hidden)
{
    click(frm.filBinaries, u"run1.km"_s);
    frm.filBinaries.ListIndex = -1;
    frm.filBinaries.Visible = false;
    frm.lblBinaries.Visible = false;
    shell::dispatch(panel, frm.filBinaries.Click);
    EXPECT_FALSE(frm.filBinaries.Visible);
    EXPECT_FALSE(frm.lblBinaries.Visible);
    EXPECT_EQ(kinovra.BinaryFile, QString());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ResultFiles, that_are_text_are_selected_before_the_question_and_stay_so_on_cancel)
{
    QString selected;
    machine.dialogs.whileShown = [&](const MessageBox &) { selected = kinovra.SelectedFile; };
    machine.dialogs.answers = {platform::Cancel};
    click(frm.filDatafiles, u"RUN1.DG"_s);
    doubleClick(frm.filBinaries, u"run1.dr"_s);
    EXPECT_EQ(selected, u"run1.dr"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"run1.dr"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"run1.dr"_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dr"_s);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(ResultFiles, that_are_binary_are_not_selected)
{
    click(frm.filDatafiles, u"RUN1.DG"_s);
    doubleClick(frm.filBinaries, u"run1.km"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"RUN1.DG"_s);
    EXPECT_EQ(kinovra.BinaryFile, u"run1.km"_s);
}

TEST_F(ResultFiles, that_are_plots_are_displayed_full_screen_by_a_direct_start)
{
    frm.mnuGraphOptions[2].Checked = true;
    doubleClick(frm.filPlots, u"walk.plt"_s);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(display("grafod.exe", u" /1 "_s + CommandText::document(u"walk.plt"_s))));
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(kinovra.SelectedFile, u"walk.plt"_s);
}

TEST_F(ResultFiles, that_are_animations_are_displayed_by_a_direct_start)
{
    doubleClick(frm.filPlots, u"walk.acd"_s);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(display("acrospin.exe", u" "_s + CommandText::document(u"walk.acd"_s))));
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(kinovra.SelectedFile, u"walk.acd"_s);
}
