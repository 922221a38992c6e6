#include "viewer/viewer_choice.h"

#include "browser/hindrances.h"
#include "browser/test_file.h"
#include "platform/letter_case.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace viewer {

namespace {

enum Item { NotepadPlus, WindowsNotepad, SelectViewer };

QString windowsNotepad(const Panel &panel)
{
    return panel.kinovra.WindowsDir + u"notepad.exe"_s;
}

// Cancelled or failed, the dialog leaves the viewer as it was.
void selectViewer(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    frm.dlgOpen.InitDir = kinovra.WindowsDir;
    try {
        const auto chosen = shell::askForFile(panel, {.initialDirectory = kinovra.WindowsDir,
                                                      .fileName = u"*.exe"_s,
                                                      .filter = u"Programs|*.exe|All files|*.*"_s,
                                                      .title = u"Select a text viewer."_s});
        kinovra.TextViewer = chosen.value_or(kinovra.TextViewer);
    } catch (const platform::RuntimeError &error) {
        shell::say(panel,
                   u"No text viewer was chosen: %1."_s.arg(platform::withinSentence(error.Description)));
    }
}

} // namespace

void mnuTextViewers_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.Answer = browser::TestFile(panel, kinovra.ProgDir, u"notepad.exe"_s, browser::Silent);
    frm.mnuTextViewer[NotepadPlus].enableUnless(
        browser::fileHindrance(u"notepad.exe"_s, u"the program directory"_s, kinovra.Answer));
}

void mnuTextViewer_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    int checked = index;
    switch (index) {
    case NotepadPlus:
        kinovra.TextViewer = kinovra.ProgDir + u"\\notepad.exe"_s;
        break;
    case WindowsNotepad:
        kinovra.TextViewer = windowsNotepad(panel);
        break;
    case SelectViewer:
        selectViewer(panel);
        break;
    default:
        break;
    }
    kinovra.Answer = browser::TestFile(panel, QString(), kinovra.TextViewer, browser::Silent);
    if (kinovra.Answer != 0) {
        kinovra.TextViewer = windowsNotepad(panel);
        checked = WindowsNotepad;
    }
    for (int i = 0; i < static_cast<int>(frm.mnuTextViewer.size()); ++i)
        frm.mnuTextViewer[static_cast<size_t>(i)].Checked = i == checked;
}

} // namespace viewer
