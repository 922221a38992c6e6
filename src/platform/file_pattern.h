#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace platform {

/// A list of file patterns such as "*.plt;*.hpg". "*" stands for any text and "?" for one character; letter
/// case does not count. "*.*" matches every name, with a dot or without.
class FilePattern
{
public:
    explicit FilePattern(const QString &patterns);

    /// Whether `name` matches any of the patterns; `extension` is the text behind its last dot, empty without
    /// one.
    bool matches(QStringView name, QStringView extension) const;

private:
    std::vector<quint64> extensions_; ///< of the patterns "*.ext" with up to four ASCII characters, packed
    QStringList others_;
};

} // namespace platform
