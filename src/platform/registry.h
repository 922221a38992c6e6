#pragma once

#include <QString>

#include <memory>

namespace platform {

/// The roots of the system's registry, with the system's own numbers.
enum class RegistryRoot : quint32 { LocalMachine = 0x80000002 };

/// The types of a registry value that somebody tells apart, with the system's own numbers.
enum RegistryType : quint32 { RegistryText = 1, RegistryTextToExpand = 2, RegistryNumber = 4 };

/// A value as the registry holds it.
struct RegistryValue
{
    quint32 type = 0;
    /// Of a text its characters, with the closing zero where one is stored; of everything else one character
    /// a byte, in the order of the bytes.
    QString data = {};
};

/// A key that is open; it is closed when it is destroyed.
class RegistryKey
{
public:
    virtual ~RegistryKey() = default;

    /// The value `name`. Raises FileNotFound where there is none, InvalidProcedureCall where it is longer
    /// than `most` characters.
    virtual RegistryValue value(const QString &name, qsizetype most) = 0;
};

/// The system's registry. A system without one answers for the few keys that the panel knows, or for none.
class Registry
{
public:
    virtual ~Registry() = default;

    /// Opens the key `name` under `root` for the rights of the mask `access`. Raises FileNotFound where there
    /// is none, PermissionDenied where the user has not all of these rights.
    virtual std::unique_ptr<RegistryKey> open(RegistryRoot root, const QString &name, quint32 access) = 0;
};

} // namespace platform
