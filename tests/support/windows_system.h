#pragma once

#include <QString>

#include <optional>
#include <string>

namespace support {

/// Whether the tests run under Wine, which lacks some of what the system has.
bool isWine();

/// Whether windows can be shown, as a program needs that gets a console.
bool hasDisplay();

/// A path of the system in the form in which it may be of any length.
std::wstring longForm(const QString &path);

/// The directory of the running test program, where the programs that it starts lie.
QString testDirectory();

/// Copies a file, whatever the length of the paths.
void copy(const QString &from, const QString &to);

/// Sets an environment variable of the system while it lives; a null text removes it.
class SystemVariable
{
public:
    SystemVariable(const QString &name, const QString &value);
    ~SystemVariable();
    SystemVariable(const SystemVariable &) = delete;
    SystemVariable &operator=(const SystemVariable &) = delete;

    static std::optional<QString> read(const QString &name);

private:
    QString name_;
    std::optional<QString> before_;
};

/// What a verb of a class of files, or of a scheme of addresses, starts while it lives: `key` is the key's
/// name in the registry, such as "kvtest.test\\shell\\open\\command". Classes of the tests begin with "kv".
class Association
{
public:
    Association(const QString &key, const QString &value);
    ~Association();
    Association(const Association &) = delete;
    Association &operator=(const Association &) = delete;

    /// Whether the system has taken it in.
    bool isMade() const { return isMade_; }

private:
    QString key_;
    std::optional<QString> before_;
    bool isMade_ = false;
};

/// How many handles this process has open.
int openHandles();

} // namespace support
