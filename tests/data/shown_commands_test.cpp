// Commands that start a program of the package directly show before what they start.

#include "panel_fixture.h"
#include "printing.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

class ShownCommands : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"Walk1.dg", "Walk1.cfb", "Walk1.rf", "Walk1.rf2", "Walk1.cf", "Walk1.3d"});
        load();
        click(frm.filDatafiles, u"Walk1.dg"_s);
        forget();
        frm.lblCommand.Caption = u"(before)"_s;
        frm.lblCommand.Visible = false;
    }

    // Expects that `command` is shown when it starts, and is what starts.
    void expectShownBefore(const controls::MenuItem &item, const QString &command)
    {
        QString shown;
        bool isVisible = false;
        machine.programs.whileStarting = [&] {
            shown = frm.lblCommand.Caption;
            isVisible = frm.lblCommand.Visible;
        };
        click(item);
        EXPECT_EQ(shown, command);
        EXPECT_TRUE(isVisible);
        ASSERT_EQ(machine.programs.started.size(), 1U);
        EXPECT_EQ(machine.programs.started[0].text(), command);
    }
};

TEST_F(ShownCommands, renumber_data)
{
    expectShownBefore(frm.mnuDatafile[4], u"C:\\KINOVRA\\Renumber.exe Walk1.dg"_s);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ShownCommands, convert_apas_data)
{
    expectShownBefore(frm.mnuArielType[0], u"C:\\KINOVRA\\Skelvo.exe /A Walk1.3d"_s);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ShownCommands, copy_data_to_a_model)
{
    machine.dialogs.answers = {platform::Yes};
    expectShownBefore(frm.mnuModel[1], u"C:\\KINOVRA\\DG2CFB.exe /C/M/N/F/G/R Walk1"_s);
}

TEST_F(ShownCommands, add_forces_to_a_model)
{
    expectShownBefore(frm.mnuModel[2], u"C:\\KINOVRA\\FPlate.exe /F/R Walk1"_s);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ShownCommands, merge_a_second_force_into_a_model)
{
    expectShownBefore(frm.mnuModel[5], u"C:\\KINOVRA\\FPlate.exe /F/M/N Walk1.rf2"_s);
    EXPECT_THAT(messages(), IsEmpty());
}
