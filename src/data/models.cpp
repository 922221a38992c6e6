#include "data/models.h"

#include "launcher/starting.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using platform::CommandText;
using shell::Panel;

constexpr int ViewInNotepad = 4;

void viewModelInNotepad(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = u"Notepad.exe"_s;
    kinovra.SelectedFile = kinovra.CurrentTrial + u".cfb"_s;
    kinovra.TaskId = launcher::startDirectly(
        panel, u"Notepad.exe"_s, u" "_s + CommandText::document(kinovra.SelectedFile), platform::Show::Shown);
}

} // namespace

void mnuModel_Click(Panel &panel, int index)
{
    if (index == ViewInNotepad)
        viewModelInNotepad(panel);
}

void connect(Panel &panel)
{
    panel.frm.mnuModel[ViewInNotepad].Click = [&panel] { mnuModel_Click(panel, ViewInNotepad); };
}

} // namespace data
