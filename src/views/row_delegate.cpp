#include "views/row_delegate.h"

#include "views/mixed_colour.h"

#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace views {

namespace {

constexpr int Air = 4;

// Some desktops' selection is pale already: paler still it would not be seen.
bool isPale(const QColor &selection, const QColor &base)
{
    constexpr int Least = 60;
    return std::abs(selection.red() - base.red()) < Least
           && std::abs(selection.green() - base.green()) < Least
           && std::abs(selection.blue() - base.blue()) < Least;
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
    const QColor selection = palette.color(QPalette::Highlight);
    const QColor base = palette.color(QPalette::Base);
    palette.setColor(QPalette::Highlight, isPale(selection, base) ? selection : mixed(selection, base));
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
}

} // namespace views
