#include "views/row_delegate.h"

#include <QWidget>

#include <algorithm>

namespace views {

namespace {

constexpr int Air = 4;

// Mostly the second colour.
QColor mixed(const QColor &a, const QColor &b)
{
    const auto mix = [](int x, int y) { return (x + 2 * y) / 3; };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

} // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width() + index.data(IndentRole).toInt(),
            std::max(hint.height(), option.fontMetrics.height() + Air)};
}

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem indented(option);
    // A deep row keeps half of its width for its name.
    const int indent = std::min(index.data(IndentRole).toInt(), option.rect.width() / 2);
    indented.rect.setLeft(indented.rect.left() + indent);
    QStyledItemDelegate::paint(painter, indented, index);
}

void RowDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->widget == nullptr || option->widget->hasFocus())
        return;
    QPalette &palette = option->palette;
    palette.setColor(QPalette::Highlight,
                     mixed(palette.color(QPalette::Highlight), palette.color(QPalette::Base)));
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
}

} // namespace views
