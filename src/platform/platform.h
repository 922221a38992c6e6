#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/file_system.h"
#include "platform/programs.h"
#include "platform/registry.h"
#include "platform/settings.h"

namespace platform {

/// All that the panel asks of the machine.
struct Platform
{
    Settings &settings;
    Environment &environment;
    FileSystem &files;
    Programs &programs;
    Dialogs &dialogs;
    Clock &clock;
    Registry &registry;
};

} // namespace platform
