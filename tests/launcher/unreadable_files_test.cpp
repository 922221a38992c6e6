// Files that are there, and yet cannot be opened.

#include "panel_fixture.h"
#include "printing.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

class UnreadableFiles : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"Walk1.dg", "Walk1.cfb", "Walk1.cn", "Walk1.km", "Walk1.ks", "Walk1.rf", "Walk1.fo"});
        load();
        click(frm.filDatafiles, u"Walk1.dg"_s);
        forget();
    }

    void forbid(const QString &path) { machine.files.forbid(path, ErrorNumber::PermissionDenied); }
    void forbidOfTrial(const char *extension) { forbid(u"C:\\DATA\\Walk1"_s + QLatin1String(extension)); }

    // One of each kind that the lists of results do not show yet.
    void addResults() { addData({"new.en", "new.out", "new.plt"}); }
    bool listsUntouched() const
    {
        return frm.filBinaries.ListCount() == 3 && frm.filOutputs.ListCount() == 0
               && frm.filPlots.ListCount() == 0;
    }

    static MessageBox denied(const char *file)
    {
        return {u"Error opening file: \""_s + QLatin1String(file) + u"\"  (70)\nPermission denied"_s,
                Icon::Exclamation};
    }
};

TEST_F(UnreadableFiles, that_are_listings_are_told_of_as_not_there_yet)
{
    addData({"Kinemati.out"});
    forbid(u"C:\\DATA\\Kinemati.out"_s);
    addResults();
    machine.dialogs.answers = {platform::Yes, platform::OK};
    click(frm.mnuProg[3]);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Do you want to view the output produced by the program, \nKINEMATI.  If so, "
                               "click Yes to view the output?"_s,
                               Icon::Question, Buttons::YesNo, u"View output"_s},
                    MessageBox{u"Output could not be opened.  Wait until the program has completed\n"
                               "execution or check whether program halted prematurely."_s,
                               Icon::Information}));
    EXPECT_EQ(machine.programs.started.size(), 1U) << "the program, but no viewer";
    EXPECT_EQ(kinovra.Answer, 0);
    EXPECT_TRUE(listsUntouched());
}

TEST_F(UnreadableFiles, that_are_programs_are_not_started)
{
    forbid(u"C:\\KINOVRA\\kinemati.exe"_s);
    addResults();
    click(frm.mnuProg[3]);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(denied(R"(C:\KINOVRA\KINEMATI.EXE)")));
    EXPECT_EQ(kinovra.Answer, 1);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.clock.pauses, IsEmpty());
    EXPECT_TRUE(listsUntouched());
}

TEST_F(UnreadableFiles, that_are_refined_data_count_as_not_refined)
{
    forbidOfTrial(".cn");
    for (size_t item = 0; item < 4; ++item) {
        forget();
        mark();
        click(frm.mnuProg[item]);
        EXPECT_THAT(machine.dialogs.messages,
                    ElementsAre(MessageBox{u"Data have not been Refined/scaled or Converted.\nClick on the "
                                           "Data menu to convert your digitized data."_s,
                                           Icon::Information}));
        EXPECT_EQ(kinovra.Answer, 70);
        expectMarkedBut({u"Answer"_s});
        EXPECT_THAT(machine.programs.started, IsEmpty());
    }
}

TEST_F(UnreadableFiles, that_are_forces_leave_signal_processing_without_a_file)
{
    forbidOfTrial(".rf");
    click(frm.cmdOndex);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(denied(R"(C:\DATA\WALK1.RF)")));
    EXPECT_EQ(kinovra.Answer, 70);
    EXPECT_THAT(machine.programs.started, ElementsAre(Start{QString(), u"C:\\KINOVRA\\ondex2.exe"_s, u" ;"_s,
                                                            u"C:\\DATA"_s, Show::Normal}));
}

TEST_F(UnreadableFiles, that_are_forces_refuse_the_force_programs)
{
    forbidOfTrial(".rf");
    openMenu(frm.mnuViews);
    EXPECT_EQ(enabledOf(frm.mnuForce), u"xxxx"_s);
    EXPECT_EQ(kinovra.Answer, 70);
    click(frm.mnuForce[0]);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"No force data files (.rf) were found for this trial.\nTrial is: Walk1"_s,
                               Icon::Exclamation}));
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(UnreadableFiles, that_are_segments_are_not_handed_over)
{
    forbidOfTrial(".ks");
    click(frm.mnuSkelvo[2]);
    EXPECT_EQ(kinovra.Answer, 70);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Skelvo.exe Walk1.km"_s);
}

TEST_F(UnreadableFiles, that_are_results_enable_and_mark_nothing)
{
    openMenu(frm.mnuProgs);
    EXPECT_TRUE(frm.mnuProg[4].Enabled && frm.mnuProg[9].Enabled);
    EXPECT_TRUE(frm.mnuProg[3].Checked && frm.mnuProg[8].Checked);
    for (const char *extension : {".km", ".ks", ".fo"})
        forbidOfTrial(extension);
    openMenu(frm.mnuProgs);
    for (size_t item = 4; item <= 9; ++item)
        EXPECT_FALSE(frm.mnuProg[item].Enabled) << item;
    EXPECT_FALSE(frm.mnuProg[3].Checked);
    EXPECT_FALSE(frm.mnuProg[8].Checked);
    EXPECT_THAT(messages(), IsEmpty());
}
