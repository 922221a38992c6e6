#include "platform/linux/ini_settings.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <chrono>
#include <utility>

#include <sys/stat.h>

using namespace std::chrono_literals;

namespace platform::host {

namespace {

// Opening a pipe would wait, opening a device may act on it.
bool isMissingOrRegular(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) != 0 || S_ISREG(status.st_mode);
}

} // namespace

IniSettings::IniSettings(QString directory) : directory_(std::move(directory)) {}

QString IniSettings::read(const QString &application, const QString &section, const QString &key,
                          const QString &fallback)
{
    if (!isMissingOrRegular(fileOf(application)))
        return fallback;
    const QSettings file(fileOf(application), QSettings::IniFormat);
    const QVariant value = file.value(section + u'/' + key);
    if (!value.isValid())
        return fallback;
    // A value that somebody wrote by hand with commas and without quotes is read as a list.
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QLatin1String(", "))
                                                    : value.toString();
}

void IniSettings::write(const QString &application, const QString &section, const QString &key,
                        const QString &value)
{
    if (!isMissingOrRegular(fileOf(application)) || !canBeLocked(fileOf(application)))
        return;
    QSettings file(fileOf(application), QSettings::IniFormat);
    file.setAtomicSyncRequired(true);
    file.setValue(section + u'/' + key, value);
}

// A QSettings that writes would wait for this lock as long as it takes.
bool IniSettings::canBeLocked(const QString &file)
{
    const QString name = file + QLatin1String(".lock");
    if (!isMissingOrRegular(name))
        return false;
    QDir().mkpath(directory_);
    QLockFile lock(name);
    const bool isLocked = lock.tryLock(patience_);
    // What has not been given back by now is not waited for again, however much is to be written.
    patience_ = isLocked ? LongestWait : 0ms;
    return isLocked;
}

QString IniSettings::fileOf(const QString &application) const
{
    return directory_ + u'/' + application + QLatin1String(".ini");
}

} // namespace platform::host
