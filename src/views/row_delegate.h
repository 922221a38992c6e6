#pragma once

#include <QStyledItemDelegate>

namespace views {

/// The item data that says how far a row is indented, in pixels.
inline constexpr int IndentRole = Qt::UserRole;

/// Draws the rows of all lists: with a little air, further to the right where a row is indented, and the
/// selected row paler where its list has not the focus.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace views
