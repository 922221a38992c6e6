#pragma once

#include "shell/panel.h"

#include <QString>

// Trial names, extensions and the data directory are derived from chosen names through these routines only,
// so what they do at the edges is part of the design.

namespace shell {

/// `name` without its last extension. A dot in a directory's name counts, and that is meant: C:\my.dir\file
/// gives C:\my. A leading dot alone does not count.
QString StripExtension(const QString &name);

/// The text behind the last dot of `name`. Without a dot it is the whole of `name`; that is meant.
QString GetExtension(const QString &name);

/// `name` without directory, drive and extension.
QString FileTitle(const QString &name);

/// The directory of `name`; ".\" where there is none. C:\run1.dg gives C: without a backslash, while a bare
/// drive letter gives its root; that is meant.
QString DirectoryOf(const QString &name);

/// The short (8.3) form of the name of an existing file; empty when there is no such file. A name without a
/// directory means a file of the data directory.
QString ShortName(Panel &panel, const QString &path);

/// The full path of a name from one of the lists: a bare name means a file of the data directory, whatever
/// the current directory has become.
QString inDataDir(const Kinovra &kinovra, const QString &name);

} // namespace shell
