#pragma once

#include <QString>

#include <vector>

namespace views {

/// A text for a widget that takes its time with very long lines: they are broken where they are longer than
/// `LongestLine`. Positions in the broken text and in the text itself are counted in UTF-16 units.
class BrokenLines
{
public:
    static constexpr qsizetype LongestLine = 8192;

    explicit BrokenLines(QString text = {});

    const QString &text() const { return text_; }
    const QString &broken() const { return broken_; }

    /// The place in the broken text of the place `position` of the text; at a break the one behind it.
    qsizetype toBroken(qsizetype position) const;
    /// The place in the text of the place `position` of the broken text.
    qsizetype toText(qsizetype position) const;

private:
    QString text_;
    QString broken_;
    std::vector<qsizetype> breaks_; ///< places in the text in front of which a line end was put
};

} // namespace views
