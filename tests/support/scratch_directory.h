#pragma once

#include <QByteArray>
#include <QList>

namespace support {

/// A fresh directory of the host for real files, removed with all that it holds. Names are bytes of the host;
/// on Windows they are UTF-8, with either separator.
class ScratchDirectory
{
public:
    /// `name` is the directory's own name below a unique one.
    explicit ScratchDirectory(const QByteArray &name = "scratch");
    ~ScratchDirectory();
    ScratchDirectory(const ScratchDirectory &) = delete;
    ScratchDirectory &operator=(const ScratchDirectory &) = delete;

    QByteArray path() const { return path_; }
    QByteArray path(const QByteArray &name) const { return path_ + '/' + name; }

    void makeDirectory(const QByteArray &name) const;
    void makeFile(const QByteArray &name, const QByteArray &content = "x") const;
    void makeExecutable(const QByteArray &name, const QByteArray &content) const;
    void makeLink(const QByteArray &name, const QByteArray &target) const;
    void makePipe(const QByteArray &name) const;
    void remove(const QByteArray &name) const;

    QByteArray read(const QByteArray &name) const;
    /// Whether there is anything called `name`, a link that leads nowhere included.
    bool has(const QByteArray &name) const;
    /// The names of all that it holds, or a directory in it, in order.
    QList<QByteArray> names(const QByteArray &directory = ".") const;

private:
    QByteArray root_;
    QByteArray path_;
};

/// Sets an environment variable while it lives; null removes it.
class ScopedVariable
{
public:
    ScopedVariable(const char *name, const QByteArray &value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable &) = delete;
    ScopedVariable &operator=(const ScopedVariable &) = delete;

private:
    const char *name_;
    QByteArray before_;
};

/// Gives up root's right to read everything while it lives, so that permissions can be tested.
class WithoutPrivileges
{
public:
    WithoutPrivileges();
    ~WithoutPrivileges();
    WithoutPrivileges(const WithoutPrivileges &) = delete;
    WithoutPrivileges &operator=(const WithoutPrivileges &) = delete;
};

/// Keeps the process's current directory as it was.
class KeptDirectory
{
public:
    KeptDirectory();
    ~KeptDirectory();
    KeptDirectory(const KeptDirectory &) = delete;
    KeptDirectory &operator=(const KeptDirectory &) = delete;

private:
#ifdef _WIN32
    QByteArray path_;
#else
    int descriptor_;
#endif
};

} // namespace support
