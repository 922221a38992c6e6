#include "shell/average_window.h"

using namespace Qt::StringLiterals;

namespace shell {

frmNewAverage::frmNewAverage()
{
    Caption = u"Ensemble Averaging Options"_s;
    Width = 8700;
    Height = CompactAverageHeight;
    lblBinary.Caption = u"Binary data file:"_s;
    txtBinary.Text = u"binary"_s;
    txtBinary.ToolTip = u"Name of selected binary data file"_s;
    Label1.Caption = u"List of filenames:"_s;
    chkAVall.Caption = u"Normalize &All records (don't prompt)"_s;
    chkAVall.ToolTip = u"If not selected program will prompt for which records to normalize"_s;
    chkAVpercentage.Caption = u"Normalize timebase to &Percentages"_s;
    chkAVpercentage.ToolTip =
        u"If checked timebase is normalized to 100 steps, otherwise program will prompt."_s;
    chkAVtoMass.Caption = u"Normalize amplitudes to body &Mass"_s;
    chkAVtoMass.ToolTip = u"If checked amplitudes will be normalized to body mass"_s;
    // The two share their tool tip; that is meant.
    chkAVecho.Caption = u"&Echo raw and normalized data to output file"_s;
    chkAVecho.ToolTip = u"If checked results are displayed to the console screen"_s;
    chkAVwait.Caption = u"&Wait (pause program) after each added file"_s;
    chkAVwait.ToolTip = chkAVecho.ToolTip;
    chkAVrow.Caption = u"Print results in &Row-wise fashion"_s;
    chkAVrow.ToolTip = u"Select how you want the normalized data printed. Usually results are columnized."_s;
    fraCI.Caption = u"Confidence Levels"_s;
    constexpr const char *Levels[]{"95% = s.d. x 1.96", "99% = s.d. x 2.57", "1 x s.d.", "2 x s.d.", "other"};
    for (size_t i = 0; i < optCI.size(); ++i)
        optCI[i].Caption = QLatin1String(Levels[i]);
    cmdOK.Caption = u"O&K"_s;
    cmdOK.ToolTip = u"Click to initialize and start averaging process"_s;
    cmdAverage.Caption = u"Compute &Ensemble Averages"_s;
    cmdAverage.ToolTip = cmdOK.ToolTip;
    cmdDefault.Caption = u"&Defaults"_s;
    cmdDefault.ToolTip = u"Resets options to defaults"_s;
    cmdHelp.Caption = u"&Help"_s;
    cmdHelp.ToolTip = u"Click to display help file"_s;
    cmdCancel.Caption = u"&Cancel"_s;
    cmdCancel.ToolTip = u"Click to cancel averaging"_s;
    setDefaults();
}

void frmNewAverage::setDefaults()
{
    chkAVall.Value = true;
    chkAVtoMass.Value = true;
    chkAVpercentage.Value = true;
    chkAVrow.Value = false;
    chkAVecho.Value = false;
    chkAVwait.Value = true;
    controls::choose(optCI, 0);
}

} // namespace shell
