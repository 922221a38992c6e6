#include "platform/linux/ini_settings.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <utility>

namespace platform::host {

IniSettings::IniSettings(QString directory) : directory_(std::move(directory)) {}

QString IniSettings::read(const QString &application, const QString &section, const QString &key,
                          const QString &fallback)
{
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
    QSettings file(fileOf(application), QSettings::IniFormat);
    file.setAtomicSyncRequired(true);
    file.setValue(section + u'/' + key, value);
}

QString IniSettings::fileOf(const QString &application) const
{
    return directory_ + u'/' + application + QLatin1String(".ini");
}

} // namespace platform::host
