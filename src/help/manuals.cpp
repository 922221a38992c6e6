#include "help/manuals.h"

#include "browser/hindrances.h"
#include "browser/test_file.h"
#include "launcher/starting.h"

#include <array>

using namespace Qt::StringLiterals;

namespace help {

namespace {

struct Manual
{
    const char *tested; ///< when the menu opens
    const char *opened;
};

// Of two manuals another file is tested than the one that is opened; that is meant.
constexpr std::array<Manual, 9> Manuals{{
    {"\\kinovra.pdf", "kinovra.pdf"},
    {"\\modlex.pdf", "cfbfile.pdf"},
    {"\\graph.pdf", "graph.pdf"},
    {"\\skelvo.pdf", "skelvo.pdf"},
    {"\\kv_qrg.pdf", "kv_win.pdf"},
    {"\\ondex.pdf", "ondex.pdf"},
    {"\\ox2_qrg.pdf", "ox2_qrg.pdf"},
    {"\\simulate.pdf", "simulate.pdf"},
    {"\\binaries.pdf", "binaries.pdf"},
}};

bool has(Panel &panel, const QString &directory, const QString &file)
{
    panel.kinovra.Answer = browser::TestFile(panel, directory, file, browser::Silent);
    return panel.kinovra.Answer == 0;
}

void open(Panel &panel, const QString &manual)
{
    panel.kinovra.TaskId = launcher::openDocument(panel, manual, panel.kinovra.ManualsDir);
}

} // namespace

void mnuManuals_Click(Panel &panel)
{
    for (size_t i = 0; i < Manuals.size(); ++i) {
        const QString manual = QLatin1String(Manuals[i].tested);
        has(panel, panel.kinovra.ManualsDir, manual);
        panel.frm.mnuManual[i].enableUnless(
            browser::fileHindrance(manual.mid(1), u"the manuals directory"_s, panel.kinovra.Answer));
    }
}

void mnuManual_Click(Panel &panel, int index)
{
    const auto manual = static_cast<size_t>(index);
    panel.kinovra.ManualFile =
        manual < Manuals.size() ? QString(QLatin1String(Manuals[manual].opened)) : QString();
    open(panel, panel.kinovra.ManualFile);
}

void cmdGuide_Click(Panel &panel)
{
    panel.kinovra.ManualFile = u"kv_win.pdf"_s;
    open(panel, panel.kinovra.ManualFile);
}

void cmdManual_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (has(panel, kinovra.ManualsDir, u"kinovra.pdf"_s))
        open(panel, u"kinovra.pdf"_s);
    else if (has(panel, kinovra.ProgDir, u"kinovra.txt"_s))
        kinovra.TaskId = launcher::startDirectly(
            panel, u"notepad.exe"_s,
            u" "_s + platform::CommandText::document(kinovra.ProgDir + u"\\kinovra.txt"_s),
            platform::Show::Normal);
}

} // namespace help
