#include "panel_fixture.h"
#include "printing.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

class DirectoryCommands : public support::PanelFixture
{};

TEST_F(DirectoryCommands, show_the_lists_in_which_a_directory_is_opened)
{
    addData({"a.cfb", "b.cfb", "walk1.dg"});
    load();
    click(frm.filModels, u"b.cfb"_s);
    addData({"c.cfb"});
    std::vector<controls::Control *> browsing{&frm.drvDrives, &frm.dirSelect,    &frm.filModels,
                                              &frm.lblModels, &frm.filDatafiles, &frm.lblDatafiles};
    for (controls::Control *control : browsing)
        control->Visible = false;
    frm.filPlots.Visible = false;
    frm.filModels.Pattern = u"*.*"_s;
    forget();
    click(frm.mnuOpen[0]);
    for (controls::Control *control : browsing)
        EXPECT_TRUE(control->Visible);
    EXPECT_FALSE(frm.filPlots.Visible);
    EXPECT_EQ(frm.filModels.Pattern, u"*.cfb"_s);
    EXPECT_EQ(frm.filModels.Names.value().toList(), (QStringList{u"a.cfb"_s, u"b.cfb"_s, u"c.cfb"_s}));
    EXPECT_EQ(frm.filModels.FileName(), QString());
    EXPECT_EQ(kinovra.CurrentTrial, u"b"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}
