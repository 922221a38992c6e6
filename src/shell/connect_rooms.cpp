#include "shell/connect_rooms.h"

#include "averaging/averaging_menu.h"
#include "browser/directories.h"
#include "data/connect_data.h"
#include "graphs/graph_types.h"
#include "help/about_window.h"
#include "launcher/programs_menu.h"
#include "shell/window_events.h"

namespace shell {

void connectRooms(Panel &panel)
{
    connect(panel);
    browser::connect(panel);
    launcher::connect(panel);
    data::connect(panel);
    averaging::connect(panel);
    graphs::connect(panel);
    help::connect(panel);
}

} // namespace shell
