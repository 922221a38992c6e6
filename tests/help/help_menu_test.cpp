#include "help/help_menu.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Show;
using platform::Start;
using platform::Target;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Topic
{
    const char *caption;
    const char *tested;
    const char *shown;
};

// "Energy" and "Force" are crossed.
constexpr Topic Topics[]{
    {"Over&view", "OVERVIEW.TXT", "Overview.txt"},
    {"&Average (ensemble)", "AVERAGE.TXT", "Average.txt"},
    {"&Ondex", "ONDEX.TXT", "Ondex.txt"},
    {"&Refila", "REFILA.TXT", "Refila.txt"},
    {"&DG file format", "DG_FILE.TXT", "DG_file.txt"},
    {"&Energy", "FORCE.TXT", "Force.txt"},
    {"&Force (inverse dynamics)", "ENERGY.TXT", "Energy.txt"},
    {"&Ground reactions", "FPLATE.TXT", "FPlate.txt"},
    {"&Skelvo", "SKELVO.TXT", "Skelvo.txt"},
    {"&Kinematics", "KINEMATI.TXT", "Kinemati.txt"},
    {"Musc&le", "MUSCLE.TXT", "Muscle.txt"},
    {"&Momentum", "MOMENTUM.TXT", "Momentum.txt"},
    {"&Options", "OPTIONS.TXT", "Options.txt"},
    {"&Powers", "POWERS.TXT", "Powers.txt"},
    {"Installation &Readme", "README.TXT", "Readme.txt"},
    {"&Simulate", "SIMULATE.TXT", "Simulate.txt"},
    {"&Torque", "TORQUE.TXT", "Torque.txt"},
    {"&Updates", "UPDATEKV.TXT", "UpdateKV.txt"},
    {"&Work", "WORK.TXT", "Work.txt"},
};

} // namespace

class HelpMenu : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    static QString inPackage(const char *name) { return u"C:\\KINOVRA\\"_s + QLatin1String(name); }
};

TEST_F(HelpMenu, greys_out_exactly_the_topics_whose_text_is_missing)
{
    for (size_t present = 0; present < 19; ++present) {
        addFile(inPackage(Topics[present].tested));
        openMenu(frm.mnuHelp);
        for (size_t item = 0; item < 19; ++item)
            EXPECT_EQ(frm.mnuHelpItem[item].Enabled, item == present) << item;
        machine.files.remove(inPackage(Topics[present].tested));
    }
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(HelpMenu, tests_its_topics_in_order_and_keeps_the_last_result)
{
    addFile(inPackage("work.txt"));
    mark();
    openMenu(frm.mnuHelp);
    QStringList tested;
    for (const Topic &topic : Topics)
        tested.append(inPackage(topic.tested));
    EXPECT_EQ(machine.files.tested, tested);
    EXPECT_EQ(kinovra.Answer, 0);
    machine.files.remove(inPackage("work.txt"));
    openMenu(frm.mnuHelp);
    EXPECT_EQ(kinovra.Answer, 53);
    expectMarkedBut({u"Answer"_s});
}

TEST_F(HelpMenu, leaves_its_other_items_enabled)
{
    openMenu(frm.mnuHelp);
    EXPECT_EQ(enabledOf(frm.mnuAbout), u"0123"_s);
    EXPECT_TRUE(frm.mnuProgHelp.Enabled);
}

TEST_F(HelpMenu, shows_each_topic)
{
    for (size_t item = 0; item < 19; ++item) {
        EXPECT_EQ(frm.mnuHelpItem[item].Caption.value(), QLatin1String(Topics[item].caption));
        addFile(inPackage(Topics[item].tested), QByteArray(Topics[item].shown) + '\n');
        viewer.Visible = false;
        mark();
        click(frm.mnuHelpItem[item]);
        EXPECT_TRUE(viewer.Visible);
        EXPECT_EQ(kinovra.ViewerFile, inPackage(Topics[item].shown));
        EXPECT_EQ(viewer.txtViewer.Text.value(), QLatin1String(Topics[item].shown));
        EXPECT_EQ(kinovra.Answer, 0);
        expectMarkedBut({u"ViewerFile"_s, u"Answer"_s});
    }
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(HelpMenu, tells_of_a_text_that_has_vanished)
{
    mark();
    click(frm.mnuHelpItem[5]);
    EXPECT_EQ(messages(),
              QStringList{u"Error opening file: \"C:\\KINOVRA\\FORCE.TXT\"  (53)\nFile not found"_s});
    EXPECT_FALSE(viewer.Visible);
    EXPECT_EQ(kinovra.ViewerFile, u"C:\\KINOVRA\\Force.txt"_s);
    EXPECT_EQ(kinovra.Answer, 53);
    expectMarkedBut({u"ViewerFile"_s, u"Answer"_s});
}

TEST_F(HelpMenu, an_unknown_topic_has_no_name)
{
    for (const int index : {-1, 19}) {
        forget();
        shell::dispatch(panel, [&] { help::mnuHelpItem_Click(panel, index); });
        EXPECT_EQ(kinovra.ViewerFile, u"C:\\KINOVRA\\"_s);
        EXPECT_EQ(machine.dialogs.messages.size(), 1U);
        EXPECT_NE(kinovra.Answer, 0);
        EXPECT_FALSE(viewer.Visible);
    }
}

TEST_F(HelpMenu, about_shows_the_about_window)
{
    mark();
    click(frm.mnuAbout[0]);
    EXPECT_TRUE(about.Visible);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({});
}

TEST_F(HelpMenu, windows_help_is_the_systems)
{
    mark();
    click(frm.mnuAbout[1]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"WinHlp32.EXE"_s, {}, u"C:\\DATA"_s, Show::Normal}));
    EXPECT_FALSE(about.Visible);
    EXPECT_THAT(messages(), IsEmpty());
    expectMarkedBut({});
}

TEST_F(HelpMenu, website_opens_the_home_page)
{
    kinovra.WebHome = u"https://maker.example/soft/kinovra.htm"_s;
    mark();
    click(frm.mnuAbout[3]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{.verb = u"Open"_s,
                                  .file = u"https://maker.example/soft/kinovra.htm"_s,
                                  .show = Show::Shown,
                                  .owner = 4711,
                                  .target = Target::Address}));
    EXPECT_EQ(kinovra.TaskId, 42);
    expectMarkedBut({u"TaskId"_s});
}

TEST_F(HelpMenu, any_other_item_does_nothing)
{
    mark();
    for (const int index : {-1, 4})
        shell::dispatch(panel, [&] { help::mnuAbout_Click(panel, index); });
    EXPECT_FALSE(about.Visible);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
    expectMarkedBut({});
}
