#include "window/entries_model.h"

#include "window/qt_text.h"

namespace quilla {

EntriesModel::EntriesModel(const ComboBox& list, QObject* parent)
    : QAbstractListModel(parent), list_(list) {}

EntriesModel::~EntriesModel() = default;

void EntriesModel::Renew() {
  beginResetModel();
  count_ = list_.Count();
  endResetModel();
}

int EntriesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant EntriesModel::data(const QModelIndex& index, int role) const {
  const bool is_text = role == Qt::DisplayRole || role == Qt::EditRole;
  if (!is_text || index.row() >= list_.Count()) return {};
  return ToQt(list_[index.row()]);
}

}  // namespace quilla

#include "moc_entries_model.cpp"
