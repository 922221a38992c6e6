#pragma once

#include "platform/registry.h"
#include "shell/panel.h"

namespace help {

using shell::Panel;

/// Starts the operating system's system-information tool, wherever the registry says that it is. Says in a
/// message that it is unavailable where it is not known, not there, or cannot be started.
void StartSysInfo(Panel &panel);

/// Reads the value `SubKeyRef` of the registry's key `KeyName`: a text as it stands, a 32-bit number as its
/// decimal text, every other type as raw text. False where the key or the value cannot be read; `KeyVal` then
/// stays as it was.
bool GetKeyValue(Panel &panel, platform::RegistryRoot KeyRoot, const QString &KeyName,
                 const QString &SubKeyRef, QString &KeyVal);

} // namespace help
