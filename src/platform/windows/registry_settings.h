#pragma once

#include "platform/settings.h"

namespace platform::host {

/// The user's settings in the registry, as texts, where the package's other programs look for them:
/// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\(application)\(section).
class RegistrySettings : public Settings
{
public:
    QString read(const QString &application, const QString &section, const QString &key,
                 const QString &fallback) override;
    void write(const QString &application, const QString &section, const QString &key,
               const QString &value) override;
};

} // namespace platform::host
