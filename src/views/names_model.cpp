#include "views/names_model.h"

#include "platform/display_text.h"

namespace views {

void NamesModel::show(const platform::FileNames &names)
{
    beginResetModel();
    names_ = names;
    endResetModel();
}

int NamesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : names_.count();
}

QVariant NamesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= names_.count())
        return {};
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return platform::displayText(names_.at(index.row()));
    return {};
}

} // namespace views
