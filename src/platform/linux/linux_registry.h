#pragma once

#include "platform/registry.h"

namespace platform::host {

/// This system has no registry. It answers for the one key that tells where the system-information tool is:
/// the desktop's own, where one is installed.
class LinuxRegistry : public Registry
{
public:
    std::unique_ptr<RegistryKey> open(RegistryRoot root, const QString &name, quint32 access) override;
};

} // namespace platform::host
