#include "views/broken_lines.h"

#include <algorithm>
#include <utility>

namespace views {

BrokenLines::BrokenLines(QString text) : text_(std::move(text))
{
    qsizetype lineStart = 0;
    const QStringView view(text_);
    while (lineStart < view.size()) {
        const qsizetype end = view.indexOf(u'\n', lineStart);
        const qsizetype lineEnd = end < 0 ? view.size() : end;
        for (qsizetype at = lineStart + LongestLine; at < lineEnd; at += LongestLine)
            breaks_.push_back(view[at].isLowSurrogate() ? at - 1 : at);
        lineStart = lineEnd + 1;
    }
    if (breaks_.empty()) {
        broken_ = text_;
        return;
    }
    broken_.reserve(text_.size() + static_cast<qsizetype>(breaks_.size()));
    qsizetype done = 0;
    for (const qsizetype at : breaks_) {
        broken_ += view.mid(done, at - done);
        broken_ += u'\n';
        done = at;
    }
    broken_ += view.mid(done);
}

qsizetype BrokenLines::toBroken(qsizetype position) const
{
    const auto before = std::upper_bound(breaks_.begin(), breaks_.end(), position);
    return position + (before - breaks_.begin());
}

qsizetype BrokenLines::toText(qsizetype position) const
{
    // The break number i stands at breaks_[i] + i in the broken text.
    size_t low = 0;
    size_t high = breaks_.size();
    while (low < high) {
        const size_t middle = (low + high) / 2;
        if (breaks_[middle] + static_cast<qsizetype>(middle) < position)
            low = middle + 1;
        else
            high = middle;
    }
    return position - static_cast<qsizetype>(low);
}

} // namespace views
