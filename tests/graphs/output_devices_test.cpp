#include "graphs/output_devices.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/connect_rooms.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

class OutputDevices : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    static QString checked(const controls::MenuArray<4> &items)
    {
        QString result;
        for (const auto &item : items)
            result += item.Checked ? u'x' : u'-';
        return result;
    }

    QString said() const { return frm.StatusBar1.Panel1.value(); }

    struct Row
    {
        int index;
        const char *switchText;
        const char *device;
        const char *checked;
    };
};

TEST_F(OutputDevices, of_listings_set_switch_label_and_mark)
{
    const Row table[]{{1, "/T ", "SCREEN", "-x--"}, {2, "/L ", "PRINTER", "--x-"},
                      {3, "/N ", "NONE", "---x"},   {0, "", "DISK FILE", "x---"},
                      {4, "", "DISK FILE", "----"}, {-1, "", "DISK FILE", "----"}};
    for (const Row &row : table) {
        graphs::mnuListing_Click(panel, row.index);
        EXPECT_EQ(kinovra.ListingSwitch, QString(QLatin1String(row.switchText))) << row.index;
        EXPECT_EQ(kinovra.ListingDevice, QString(QLatin1String(row.device))) << row.index;
        EXPECT_EQ(frm.lblOutput.Caption.value(), QString(QLatin1String(row.device))) << row.index;
        EXPECT_EQ(checked(frm.mnuListing), QString(QLatin1String(row.checked))) << row.index;
    }
}

TEST_F(OutputDevices, of_graphics_set_switch_label_and_mark)
{
    const Row table[]{{1, "", "PRINTER", "-x--"},   {2, "", "PLOTTER", "--x-"}, {3, "", "DISK FILE", "---x"},
                      {0, "/A ", "SCREEN", "x---"}, {4, "", "SELECT", "----"},  {-1, "", "SELECT", "----"}};
    for (const Row &row : table) {
        graphs::mnuGraphics_Click(panel, row.index);
        EXPECT_EQ(frm.GraphicsSwitch, QString(QLatin1String(row.switchText))) << row.index;
        EXPECT_EQ(kinovra.GraphicsDevice, QString(QLatin1String(row.device))) << row.index;
        EXPECT_EQ(frm.lblGraphics[1].Caption.value(), QString(QLatin1String(row.device))) << row.index;
        EXPECT_EQ(checked(frm.mnuGraphics), QString(QLatin1String(row.checked))) << row.index;
    }
}

TEST_F(OutputDevices, of_listings_clear_the_graphics_switch_and_say_so)
{
    EXPECT_EQ(frm.GraphicsSwitch, u"/A /Z "_s);
    click(frm.mnuListing[0]);
    EXPECT_EQ(frm.GraphicsSwitch, QString());
    EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
    EXPECT_EQ(kinovra.GraphicsDevice, u"SCREEN"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Graphics switch cleared"_s);

    click(frm.mnuGraphics[0]);
    EXPECT_EQ(frm.GraphicsSwitch, u"/A "_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
    click(frm.mnuListing[1]);
    EXPECT_EQ(frm.GraphicsSwitch, QString());
}

TEST_F(OutputDevices, of_graphics_withdraw_that_the_switch_is_cleared_and_no_more)
{
    click(frm.mnuListing[0]);
    shell::sayToo(panel, u"The binary file is Run1 now."_s);
    EXPECT_EQ(said(), u"Graphics switch cleared. The binary file is Run1 now."_s);
    click(frm.mnuGraphics[0]);
    EXPECT_EQ(said(), u"The binary file is Run1 now."_s);
}

TEST_F(OutputDevices, are_reached_through_their_items)
{
    for (size_t i = 0; i < 4; ++i) {
        click(frm.mnuListing[i]);
        EXPECT_TRUE(frm.mnuListing[i].Checked);
        click(frm.mnuGraphics[i]);
        EXPECT_TRUE(frm.mnuGraphics[i].Checked);
    }
}

TEST_F(OutputDevices, begin_with_the_disk_file_and_the_screen)
{
    EXPECT_EQ(kinovra.ListingSwitch, QString());
    EXPECT_EQ(kinovra.ListingDevice, u"DISK FILE"_s);
    EXPECT_EQ(frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_EQ(checked(frm.mnuListing), u"x---"_s);
    EXPECT_EQ(frm.GraphicsSwitch, u"/A /Z "_s);
    EXPECT_EQ(kinovra.GraphicsDevice, u"SCREEN"_s);
    EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
    EXPECT_EQ(checked(frm.mnuGraphics), u"x---"_s);
}

TEST_F(OutputDevices, of_listings_drop_both_switches_of_the_screen_and_nothing_else)
{
    for (int device : {0, 1, 2, 3, 4, -1}) {
        for (const QString &before : {u"/A /Z "_s, u"/A "_s}) {
            frm.GraphicsSwitch = before;
            frm.StatusBar1.Panel1 = QString();
            graphs::mnuListing_Click(panel, device);
            EXPECT_EQ(frm.GraphicsSwitch, QString()) << device;
            EXPECT_EQ(said(), u"Graphics switch cleared"_s) << device;
            EXPECT_EQ(kinovra.GraphicsDevice, u"SCREEN"_s);
            EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
            EXPECT_EQ(checked(frm.mnuGraphics), u"x---"_s);
        }
    }
}

TEST_F(OutputDevices, of_listings_say_nothing_where_there_is_no_graphics_switch)
{
    click(frm.mnuGraphics[2]);
    frm.StatusBar1.Panel1 = u"(before)"_s;
    for (const auto &item : frm.mnuListing) {
        click(item);
        EXPECT_EQ(said(), u"(before)"_s);
        EXPECT_EQ(frm.GraphicsSwitch, QString());
        EXPECT_EQ(frm.lblGraphics[1].Caption.value(), u"PLOTTER"_s);
        EXPECT_EQ(checked(frm.mnuGraphics), u"--x-"_s);
    }
}

TEST_F(OutputDevices, of_graphics_leave_the_listings_and_what_is_said_alone)
{
    click(frm.mnuListing[3]);
    frm.StatusBar1.Panel1 = u"(before)"_s;
    for (const auto &item : frm.mnuGraphics) {
        click(item);
        EXPECT_EQ(kinovra.ListingSwitch, u"/N "_s);
        EXPECT_EQ(kinovra.ListingDevice, u"NONE"_s);
        EXPECT_EQ(frm.lblOutput.Caption.value(), u"NONE"_s);
        EXPECT_EQ(checked(frm.mnuListing), u"---x"_s);
        EXPECT_EQ(said(), u"(before)"_s);
    }
}

TEST_F(OutputDevices, never_bring_back_the_switches_of_the_start)
{
    std::vector<const controls::MenuItem *> items{&frm.mnuReset};
    for (size_t i = 0; i < 4; ++i) {
        items.push_back(&frm.mnuListing[i]);
        items.push_back(&frm.mnuGraphics[i]);
    }
    for (const auto *first : items) {
        for (const auto *second : items) {
            for (const auto *third : items) {
                for (const auto *item : {first, second, third}) {
                    click(*item);
                    ASSERT_FALSE(frm.GraphicsSwitch.contains(u"/Z"_s));
                }
            }
        }
    }
}

TEST_F(OutputDevices, change_nothing_else)
{
    mark();
    const QString type = frm.lblGraphics[0].Caption;
    for (size_t i = 0; i < 4; ++i) {
        click(frm.mnuListing[i]);
        click(frm.mnuGraphics[i]);
    }
    expectMarkedBut({});
    EXPECT_EQ(frm.lblGraphics[0].Caption.value(), type) << "the graph type stands beside the device";
    EXPECT_THAT(machine.settings.written, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(OutputDevices, are_not_kept_for_the_next_run)
{
    click(frm.mnuListing[2]);
    click(frm.mnuGraphics[1]);
    click(frm.cmdExit);

    shell::Panel next(machine.platform);
    shell::connectRooms(next);
    shell::dispatch(next, next.frm.Load);
    EXPECT_EQ(next.kinovra.ListingSwitch, QString());
    EXPECT_EQ(next.frm.lblOutput.Caption.value(), u"DISK FILE"_s);
    EXPECT_EQ(checked(next.frm.mnuListing), u"x---"_s);
    EXPECT_EQ(next.frm.GraphicsSwitch, u"/A /Z "_s);
    EXPECT_EQ(next.frm.lblGraphics[1].Caption.value(), u"SCREEN"_s);
    EXPECT_EQ(checked(next.frm.mnuGraphics), u"x---"_s);
}
