#pragma once

#include "controls/directory_list.h"
#include "views/bindings.h"
#include "views/classic_list.h"

#include <QAbstractListModel>
#include <QIcon>

namespace views {

/// The rows of a directory list for a view, asked for row by row.
class DirectoryRowsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    DirectoryRowsModel(const controls::DirList &list, const QStyle &style);

    void reset();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const controls::DirList &list_;
    QIcon open_;
    QIcon closed_;
};

/// A classic directory list: one click highlights, a double-click or Enter opens.
class DirectoryListView : public ClassicList
{
    Q_OBJECT

public:
    DirectoryListView(controls::DirList &list, EventRunner &events, QWidget *parent = nullptr);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void showRows();
    void showHighlight();
    void openRow(const QModelIndex &index);

    controls::DirList &list_;
    EventRunner &events_;
    DirectoryRowsModel model_;
    Bindings bindings_;
    bool showing_ = false; ///< the highlight changes because the control's did
};

} // namespace views
