#pragma once

#include "controls/control.h"

#include <QStringList>

namespace controls {

/// A drive list. It shows drive texts such as "c: [label]" and holds the chosen one.
struct DriveList : Control
{
    QProperty<QStringList> Drives;
    QProperty<QString> Drive; ///< the chosen drive's text

    Event Change; ///< the user has chosen another drive

    /// Chooses the drive whose letter begins `text`, in any case, and runs no event. Raises DeviceUnavailable
    /// for an absent one.
    void choose(const QString &text);

    /// Shows the drive whose letter begins `text` as the chosen one again, where it is still there.
    void goBackTo(const QString &text);

    /// Shows `drives`; the chosen drive stays chosen, with its new text where it has one.
    void refresh(const QStringList &drives);
};

} // namespace controls
