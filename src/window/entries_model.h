// The entries of a drop-down list as an item model of Qt: a thin view that holds none of its own.
#ifndef QUILLA_WINDOW_ENTRIES_MODEL_H_
#define QUILLA_WINDOW_ENTRIES_MODEL_H_

#include <QAbstractListModel>

#include "platform/text_list.h"

namespace quilla {

class EntriesModel : public QAbstractListModel {
  Q_OBJECT
  Q_DISABLE_COPY_MOVE(EntriesModel)

 public:
  /// The list must outlive the model. No entry is seen before the first Renew().
  explicit EntriesModel(const ComboBox& list, QObject* parent = nullptr);
  ~EntriesModel() override;

  /// Tells that the entries are other ones, which nothing is told of by itself.
  void Renew();

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const ComboBox& list_;
  int count_ = 0;  // at the last Renew()
};

}  // namespace quilla

#endif  // QUILLA_WINDOW_ENTRIES_MODEL_H_
