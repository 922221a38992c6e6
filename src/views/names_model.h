#pragma once

#include "platform/directory.h"

#include <QAbstractListModel>

namespace views {

/// The names of a file list for a view, asked for row by row.
class NamesModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void show(const platform::FileNames &names);
    const platform::FileNames &names() const { return names_; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    platform::FileNames names_;
};

} // namespace views
