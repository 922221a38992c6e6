#pragma once

#include "platform/linux/drive_map.h"
#include "platform/linux/path_lookup.h"
#include "platform/path_language.h"

#include <QString>

namespace platform::host {

/// Makes a directory as FileSystem::makeDirectory says.
void makeHostDirectory(PathLookup &lookup, const CurrentDirectories &current, const QString &path);

/// Removes a directory as FileSystem::removeDirectory says.
void removeHostDirectory(const DriveMap &drives, const CurrentDirectories &current, const QString &path);

} // namespace platform::host
