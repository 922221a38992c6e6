#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Starts the force-plate program on the trial's reduced force file, or with ";", which means no file.
void cmdForces_Click(Panel &panel);

/// Starts the animation program on the trial's digitized data, or with ";".
void cmdSkelvo_Click(Panel &panel);

/// Starts the signal-processing program, after asking whether to hand it the trial's reduced force file.
void cmdOndex_Click(Panel &panel);

/// Runs a force-plate program on the trial's reduced force file: 0 analysis, 1 histories, 2 vectors, 3
/// vectors in three dimensions.
void mnuForce_Click(Panel &panel, int index);

/// Starts the animation program on the trial's file: 0 digitized, 1 refined, 2 filtered, 3 simulated data.
void mnuSkelvo_Click(Panel &panel, int index);

/// The Animate menu opens: of its items those are enabled whose file is there. Without a trial it says so.
void mnuImages_Click(Panel &panel);

/// The Animate menu is shown without a trial to a user who passes along the menu bar: nothing can be chosen.
void mnuImages_Passed(Panel &panel);

} // namespace launcher
