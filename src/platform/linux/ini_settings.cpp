#include "platform/linux/ini_settings.h"

#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <utility>

#include <sys/stat.h>

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
    if (!isMissingOrRegular(fileOf(application)))
        return;
    QSettings file(fileOf(application), QSettings::IniFormat);
    file.setAtomicSyncRequired(true);
    file.setValue(section + u'/' + key, value);
}

QString IniSettings::fileOf(const QString &application) const
{
    return directory_ + u'/' + application + QLatin1String(".ini");
}

} // namespace platform::host
