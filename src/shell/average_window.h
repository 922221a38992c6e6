#pragma once

#include "controls/window.h"
#include "platform/command_text.h"

#include <array>

namespace shell {

/// Heights of the averaging dialog in twips: the compact one hides the lower part, with the confidence levels
/// and the compute button.
constexpr int CompactAverageHeight = 3600;
constexpr int FullAverageHeight = 5400;

/// The dialog of the ensemble averaging options. The constructor gives it the captions that it has before it
/// is loaded, and the options that its Defaults button sets.
struct frmNewAverage : controls::Window
{
    frmNewAverage();

    /// Sets the options as they are by default.
    void setDefaults();

    controls::Label lblBinary, Label1;
    controls::TextBox txtBinary;
    controls::ComboBox comFilenames;
    controls::CheckBox chkAVall, chkAVpercentage, chkAVtoMass, chkAVecho, chkAVwait, chkAVrow;
    controls::Frame fraCI;
    std::array<controls::OptionButton, 5> optCI;
    controls::Button cmdOK, cmdAverage, cmdDefault, cmdHelp, cmdCancel;

    QString AverageProgram;               ///< full path of the averaging program
    platform::CommandText AverageCommand; ///< its arguments
    bool isRunning = false;               ///< its own run is in progress: the buttons wait
};

} // namespace shell
