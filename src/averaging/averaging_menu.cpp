#include "averaging/averaging_menu.h"

#include "browser/test_file.h"

using namespace Qt::StringLiterals;

namespace averaging {

void enableAveraging(shell::Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const bool hasAverage = browser::TestFile(panel, kinovra.DataDir, u"average.sss"_s, browser::Silent) == 0;
    const bool hasBinary = !kinovra.BinaryFile.isEmpty();
    frm.mnuAverage[0].Enabled = hasBinary;
    frm.mnuAverage[1].Enabled = hasBinary && hasAverage;
    frm.mnuAverage[2].Enabled = hasAverage;
    frm.mnuAverage[3].Enabled = hasBinary && hasAverage;
}

void connect(shell::Panel &panel)
{
    panel.frm.mnuAverages.Opening = [&panel] { enableAveraging(panel); };
}

} // namespace averaging
