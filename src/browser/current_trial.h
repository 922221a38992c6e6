#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// A click in the data-file list makes that file the current trial and shows its title, the first line of a
/// .DG file.
void filDatafiles_Click(Panel &panel);

/// A click in the model list chooses the model and the trial of the same name.
void filModels_Click(Panel &panel);

/// Makes the only model of a newly opened directory the current trial. False where the user refuses its long
/// name.
bool chooseOnlyModel(Panel &panel);

/// Makes the current trial what stands before the first dot of `fileName`: walk.left.dg is WALK here, while a
/// click on it makes it WALK.LEFT; that is meant. Neither extension nor title change.
void chooseTrialOf(Panel &panel, const QString &fileName);

/// Whether there is no current trial. Then it says so and shows the lists in which one is chosen; callers
/// stop.
bool TestTrial(Panel &panel);

} // namespace browser
