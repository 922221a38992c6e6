#include "shell/connect_rooms.h"

#include "averaging/connect_averaging.h"
#include "browser/directories.h"
#include "data/connect_data.h"
#include "graphs/connect_graphs.h"
#include "help/connect_help.h"
#include "launcher/connect_launcher.h"
#include "shell/window_events.h"
#include "viewer/connect_viewer.h"

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
    viewer::connect(panel);
}

} // namespace shell
