#include "averaging/averaging_steps.h"

#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "launcher/starting.h"

using namespace Qt::StringLiterals;

namespace averaging {

bool hasHelpText(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.Answer =
        browser::TestFile(panel, kinovra.ProgDir, QString::fromUtf16(HelpText), browser::ShowMessage);
    return kinovra.Answer == 0;
}

void showBinaryFiles(Panel &panel)
{
    panel.frm.filBinaries.Visible = true;
    panel.frm.lblBinaries.Visible = true;
}

QString chooseAverage(Panel &panel)
{
    panel.kinovra.ProgName = u"Average"_s;
    return launcher::packageProgram(panel, panel.kinovra.ProgName);
}

DefaultBinaryFile::DefaultBinaryFile(Panel &panel) : panel_(panel)
{
    shell::Kinovra &kinovra = panel.kinovra;
    if (!kinovra.BinaryFile.isEmpty())
        return;
    taken_ = kinovra.CurrentTrial + u".pj"_s;
    kinovra.BinaryFile = taken_;
}

void DefaultBinaryFile::tell() const
{
    if (!taken_.isEmpty() && panel_.kinovra.BinaryFile == taken_)
        browser::sayBinaryFile(panel_);
}

} // namespace averaging
