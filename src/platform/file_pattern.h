#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace platform {

/// A short extension as one number, so that a directory of 100,000 names is matched by comparing numbers. 0
/// stands for no extension, and for one that is longer than four characters.
quint64 extensionKey(QStringView extension);

/// A list of file patterns such as "*.plt;*.hpg". "*" stands for any text and "?" for one character; letter
/// case does not count. "*.*" matches every name, with a dot or without.
class FilePattern
{
public:
    explicit FilePattern(const QString &patterns);

    /// Whether all patterns are of the kind "*.ext", so that extensionKey() decides alone.
    bool isByExtension() const { return others_.isEmpty(); }

    /// Whether a name whose extension has this key matches by it.
    bool matchesExtension(quint64 key) const
    {
        for (quint64 extension : extensions_) {
            if (extension == key)
                return true;
        }
        return false;
    }

    /// Whether `name`, whose extension has the key `key`, matches any of the patterns.
    bool matches(QStringView name, quint64 key) const;

private:
    std::vector<quint64> extensions_; ///< of the patterns "*.ext" with a short extension
    QStringList others_;
};

} // namespace platform
