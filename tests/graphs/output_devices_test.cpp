#include "graphs/output_devices.h"
#include "panel_fixture.h"
#include "printing.h"

using namespace Qt::StringLiterals;

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

TEST_F(OutputDevices, are_reached_through_their_items)
{
    for (size_t i = 0; i < 4; ++i) {
        click(frm.mnuListing[i]);
        EXPECT_TRUE(frm.mnuListing[i].Checked);
        click(frm.mnuGraphics[i]);
        EXPECT_TRUE(frm.mnuGraphics[i].Checked);
    }
}
