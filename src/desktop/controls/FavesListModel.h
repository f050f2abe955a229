// The items of a FavoritesList as the toolkit's lists want them. It keeps the texts that are on the screen: a list that
// is filled item by item is shown once, when it is full. Of a password it keeps nothing but that there is one.
#pragma once

#include <QAbstractListModel>
#include <QTimer>
#include <vector>

#include "platform/FavoritesList.h"

namespace vantrel {

class FavesListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  // The display role is the name.
  enum Role : int { hostnameRole = Qt::UserRole, gametypeRole, lockedRole };

  // `list` must outlive the model.
  explicit FavesListModel(FavoritesList& list, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

  // Shows at once what has changed; it would else be shown a moment later.
  void showChanges();

 Q_SIGNALS:
  // What stands in the rows is what stands in the list.
  void upToDate();

 private:
  struct Row {
    QString name;
    QString hostname;
    QString gametype;
    bool locked = false;

    bool operator==(const Row& other) const = default;
  };

  void noteChange();
  std::vector<Row> readRows() const;
  void resizeTo(std::size_t count);
  static QString told(const Row& row);

  FavoritesList& list_;
  std::vector<Row> rows_;
  QTimer pause_;
  Connection changed_;
};

}  // namespace vantrel
