#pragma once

#include "platform/path_language.h"

#include <QString>

namespace platform::host {

/// Makes a directory as FileSystem::makeDirectory says.
void makeHostDirectory(const CurrentDirectories &current, const QString &path);

/// Removes a directory as FileSystem::removeDirectory says.
void removeHostDirectory(const CurrentDirectories &current, const QString &path);

} // namespace platform::host
