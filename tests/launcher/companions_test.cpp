#include "launcher/companions.h"
#include "panel_fixture.h"
#include "printing.h"

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

class Companions : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"my walk.dg"});
        load();
    }

    Start direct(const QString &program, const CommandText &parameters) const
    {
        return {QString(), u"C:\\KINOVRA\\"_s + program, parameters, u"C:\\DATA"_s, Show::Normal};
    }

    const MessageBox question{u"Press Yes to view Reduced Forces file (.rf), No to open Ondex2 or Cancel"_s,
                              Icon::Question, Buttons::YesNoCancel, u"View .RF file or open Ondex2?"_s};
};

TEST_F(Companions, start_without_a_file_where_there_is_no_trial)
{
    click(frm.cmdForces);
    click(frm.cmdSkelvo);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct(u"forces.exe"_s, u" ;"_s), direct(u"skelvo98.exe"_s, u" ;"_s)));
    EXPECT_EQ(kinovra.TaskId, 52);
}

TEST_F(Companions, start_on_the_trials_file)
{
    click(frm.filDatafiles, u"my walk.dg"_s);
    click(frm.cmdForces);
    click(frm.cmdSkelvo);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct(u"forces.exe"_s, u" "_s + CommandText::document(u"my walk.rf"_s)),
                            direct(u"skelvo98.exe"_s, u" "_s + CommandText::document(u"my walk.dg"_s))));
}

TEST_F(Companions, find_the_data_directory_in_the_settings)
{
    std::vector<size_t> writtenBefore;
    machine.programs.whileStarting = [&] { writtenBefore.push_back(machine.settings.written.size()); };
    click(frm.cmdForces);
    click(frm.cmdSkelvo);
    EXPECT_THAT(writtenBefore, ElementsAre(1U, 2U));
    const Written written{u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s};
    EXPECT_THAT(machine.settings.written, ElementsAre(written, written));
}

TEST_F(Companions, signal_processing_finds_it_in_its_own_settings_alone)
{
    size_t writtenBefore = 0;
    machine.programs.whileStarting = [&] { writtenBefore = machine.settings.written.size(); };
    click(frm.cmdOndex);
    EXPECT_EQ(writtenBefore, 1U);
    EXPECT_THAT(machine.settings.written,
                ElementsAre(Written{u"Ondex2"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s}));
    EXPECT_FALSE(machine.settings.values.contains(u"Kinovra/Startup/Datadir"_s));
}

TEST_F(Companions, signal_processing_starts_without_a_file_after_the_tests_own_message)
{
    click(frm.filDatafiles, u"my walk.dg"_s);
    click(frm.cmdOndex);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Error opening file: \"C:\\DATA\\MY WALK.RF\"  (53)\nFile not found"_s,
                               Icon::Exclamation}));
    EXPECT_THAT(machine.programs.started, ElementsAre(direct(u"ondex2.exe"_s, u" ;"_s)));
    EXPECT_EQ(kinovra.Answer, 53);
}

TEST_F(Companions, signal_processing_asks_about_the_force_file)
{
    addData({"my walk.rf"});
    click(frm.filDatafiles, u"my walk.dg"_s);
    machine.dialogs.answers = {platform::Yes, platform::No, platform::Cancel};

    click(frm.cmdOndex);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(question));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct(u"ondex2.exe"_s, u" "_s + CommandText::document(u"my walk.rf"_s))));
    forget();
    click(frm.cmdOndex);
    EXPECT_THAT(machine.programs.started, ElementsAre(direct(u"ondex2.exe"_s, u" ;"_s)));
    forget();
    click(frm.cmdOndex);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.TaskId, 2);
}
