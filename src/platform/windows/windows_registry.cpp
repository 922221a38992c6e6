#include "platform/windows/windows_registry.h"

#include "platform/runtime_error.h"
#include "platform/windows/open_key.h"

namespace platform::host {

namespace {

HKEY systemRoot(RegistryRoot root)
{
    switch (root) {
    case RegistryRoot::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    }
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
}

bool isText(DWORD type)
{
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

class SystemKey : public RegistryKey
{
public:
    SystemKey(RegistryRoot root, const QString &name, quint32 access)
    {
        const quint32 error = key_.open(systemRoot(root), wide(name), access);
        if (error == ERROR_ACCESS_DENIED)
            throw RuntimeError(ErrorNumber::PermissionDenied);
        if (error != ERROR_SUCCESS)
            throw RuntimeError(ErrorNumber::FileNotFound);
    }

    RegistryValue value(const QString &name, qsizetype most) override
    {
        const auto stored = key_.value(name);
        if (!stored)
            throw RuntimeError(ErrorNumber::FileNotFound);
        RegistryValue result{stored->type, isText(stored->type) ? textOfValue(*stored)
                                                                : QString::fromLatin1(stored->bytes)};
        if (result.data.size() > most)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        return result;
    }

private:
    OpenKey key_;
};

} // namespace

std::unique_ptr<RegistryKey> WindowsRegistry::open(RegistryRoot root, const QString &name, quint32 access)
{
    return std::make_unique<SystemKey>(root, name, access);
}

} // namespace platform::host
