#include "views/directory_list_view.h"

#include "platform/display_text.h"
#include "views/row_delegate.h"
#include "views/twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyle>

namespace views {

namespace {

constexpr int IndentPerLevel = 8;

} // namespace

DirectoryRowsModel::DirectoryRowsModel(const controls::DirList &list, const QStyle &style)
    : list_(list)
    , open_(style.standardIcon(QStyle::SP_DirOpenIcon))
    , closed_(style.standardIcon(QStyle::SP_DirClosedIcon))
{}

void DirectoryRowsModel::reset()
{
    beginResetModel();
    endResetModel();
}

int DirectoryRowsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : list_.RowCount();
}

QVariant DirectoryRowsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= list_.RowCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return platform::displayText(list_.RowText(index.row()));
    case IndentRole:
        return list_.RowLevel(index.row()) * IndentPerLevel;
    case Qt::DecorationRole:
        return index.row() <= list_.OpenedRow() ? open_ : closed_;
    default:
        return {};
    }
}

DirectoryListView::DirectoryListView(controls::DirList &list, EventRunner &events, QWidget *parent)
    : ClassicList(parent), list_(list), events_(events), model_(list, *style())
{
    setModel(&model_);
    bindings_.bind(this, list);
    bindings_.follow(list.Folders, [this] { showRows(); });
    bindings_.follow(list.ListIndex, [this] { showHighlight(); });
    bindings_.follow(list.Height, [this] { setFixedHeight(toPixels(list_.Height)); });
}

void DirectoryListView::showRows()
{
    const QScopedValueRollback showing(showing_, true);
    model_.reset();
}

void DirectoryListView::showHighlight()
{
    const QScopedValueRollback showing(showing_, true);
    const QModelIndex index = model_.index(list_.ListIndex);
    if (index.isValid())
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    else
        selectionModel()->clear();
}

void DirectoryListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    ClassicList::currentChanged(current, previous);
    if (!showing_ && current.isValid())
        list_.ListIndex = current.row();
}

void DirectoryListView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        openRow(currentIndex());
    else
        ClassicList::keyPressEvent(event);
}

void DirectoryListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        openRow(indexAt(event->position().toPoint()));
}

void DirectoryListView::openRow(const QModelIndex &index)
{
    if (!index.isValid() || !list_.OpenRow)
        return;
    const int row = index.row();
    events_.run([this, row] { list_.OpenRow(row); });
}

} // namespace views
