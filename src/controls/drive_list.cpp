#include "controls/drive_list.h"

#include "platform/letter_case.h"
#include "platform/runtime_error.h"

namespace controls {

namespace {

QString find(const QStringList &drives, const QString &text)
{
    for (const QString &drive : drives) {
        if (!text.isEmpty() && platform::sameIgnoringCase(drive.left(1), text.left(1)))
            return drive;
    }
    return {};
}

} // namespace

void DriveList::choose(const QString &text)
{
    const QString drive = find(Drives, text);
    if (drive.isEmpty())
        throw platform::RuntimeError(platform::ErrorNumber::DeviceUnavailable);
    Drive = drive;
}

void DriveList::goBackTo(const QString &text)
{
    const QString drive = find(Drives, text);
    if (!drive.isEmpty())
        Drive = drive;
}

void DriveList::refresh(const QStringList &drives)
{
    Drives = drives;
    goBackTo(Drive);
}

} // namespace controls
