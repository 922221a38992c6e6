#include "graphs/output_devices.h"

#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace graphs {

namespace {

struct DeviceRow
{
    const char *switchText;
    const char *device;
};

constexpr std::array<DeviceRow, 4> ListingDevices{{
    {"", "DISK FILE"},
    {"/T ", "SCREEN"},
    {"/L ", "PRINTER"},
    {"/N ", "NONE"},
}};
constexpr DeviceRow OtherListingDevice{"", "DISK FILE"};

constexpr std::array<DeviceRow, 4> GraphicsDevices{{
    {"/A ", "SCREEN"},
    {"", "PRINTER"},
    {"", "PLOTTER"},
    {"", "DISK FILE"},
}};
constexpr DeviceRow OtherGraphicsDevice{"", "SELECT"};

DeviceRow rowOf(const std::array<DeviceRow, 4> &rows, int index, const DeviceRow &other)
{
    return index >= 0 && index < 4 ? rows[static_cast<size_t>(index)] : other;
}

QString switchCleared()
{
    return u"Graphics switch cleared"_s;
}

// It is no longer true; what was said behind it is.
void withdrawSwitchCleared(Panel &panel)
{
    const QString said = panel.frm.StatusBar1.Panel1;
    const QString before = switchCleared() + u". "_s;
    if (said == switchCleared())
        shell::say(panel, QString());
    else if (said.startsWith(before))
        shell::say(panel, said.mid(before.size()));
}

void checkOnly(controls::MenuArray<4> &items, int index)
{
    for (controls::MenuItem &item : items)
        item.Checked = false;
    if (index >= 0 && index < 4)
        items[static_cast<size_t>(index)].Checked = true;
}

} // namespace

void mnuListing_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    // Meant: only the graphics menu's first item brings a switch back.
    if (!frm.GraphicsSwitch.isEmpty())
        shell::say(panel, switchCleared());
    frm.GraphicsSwitch.clear();
    const DeviceRow row = rowOf(ListingDevices, index, OtherListingDevice);
    kinovra.ListingSwitch = QLatin1String(row.switchText);
    kinovra.ListingDevice = QLatin1String(row.device);
    checkOnly(frm.mnuListing, index);
    frm.lblOutput.Caption = kinovra.ListingDevice;
}

void mnuGraphics_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    const DeviceRow row = rowOf(GraphicsDevices, index, OtherGraphicsDevice);
    frm.GraphicsSwitch = QLatin1String(row.switchText);
    withdrawSwitchCleared(panel);
    kinovra.GraphicsDevice = QLatin1String(row.device);
    checkOnly(frm.mnuGraphics, index);
    frm.lblGraphics[1].Caption = kinovra.GraphicsDevice;
}

} // namespace graphs
