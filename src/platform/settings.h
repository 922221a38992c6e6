#pragma once

#include <QString>

namespace platform {

/// The per-user settings store. It never fails visibly: a missing value yields its default, a failed write is
/// lost.
class Settings
{
public:
    virtual ~Settings() = default;

    /// The text stored for `key` in `section` of `application`; `fallback` where there is none.
    virtual QString read(const QString &application, const QString &section, const QString &key,
                         const QString &fallback) = 0;

    virtual void write(const QString &application, const QString &section, const QString &key,
                       const QString &value) = 0;
};

} // namespace platform
