#pragma once

#include "shell/panel.h"

namespace data {

using shell::Panel;

/// Index of the item of mnuConvert that converts the trial's .cda file.
constexpr int PeakPerformance = 3;

/// Converts what another system has recorded, by index: 3 Peak Performance, 5 a text file, both of the
/// current trial. The others say that they are not there yet, but for 6, which does nothing.
void mnuConvert_Click(Panel &panel, int index);

/// "Convert data ..." opens: the APAS types of which the trial has no file are greyed out.
void mnuConverts_Click(Panel &panel);

/// "Ariel Dynamics ..." opens: the same once more, with a hint where there is no trial or none of its files.
void mnuAriel_Click(Panel &panel);

/// Whether mnuAriel_Click would give its hint now.
bool mnuAriel_asks(Panel &panel);

/// Converts the trial's APAS file of the type `index`: 0 is .3d, 1 to 9 are .1t to .9t. It needs the common
/// file .cf beside it, and warns where the short file name is another one.
void mnuArielType_Click(Panel &panel, int index);

} // namespace data
