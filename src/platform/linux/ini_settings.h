#pragma once

#include "platform/settings.h"

#include <chrono>

namespace platform::host {

/// One INI file an application in the user's configuration directory; the group is the section. A file is
/// written whole or not at all: what cannot be written at once is lost.
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
    // Another panel needs the lock for some milliseconds.
    static constexpr std::chrono::milliseconds LongestWait{300};

    bool canBeLocked(const QString &file);
    QString fileOf(const QString &application) const;

    QString directory_;
    std::chrono::milliseconds patience_ = LongestWait;
};

} // namespace platform::host
