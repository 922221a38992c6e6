#pragma once

#include "platform/settings.h"

namespace platform::host {

/// One INI file an application in the user's configuration directory; the group is the section. A file is
/// written whole or not at all.
class IniSettings : public Settings
{
public:
    /// `directory` is the configuration directory of the host.
    explicit IniSettings(QString directory);

    QString read(const QString &application, const QString &section, const QString &key,
                 const QString &fallback) override;
    void write(const QString &application, const QString &section, const QString &key,
               const QString &value) override;

private:
    QString fileOf(const QString &application) const;

    QString directory_;
};

} // namespace platform::host
