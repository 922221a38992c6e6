#pragma once

#include "platform/registry.h"

namespace platform::host {

/// The system's registry.
class WindowsRegistry : public Registry
{
public:
    std::unique_ptr<RegistryKey> open(RegistryRoot root, const QString &name, quint32 access) override;
};

} // namespace platform::host
