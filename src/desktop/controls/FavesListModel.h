// The items of a FavoritesList as the toolkit's lists want them. It keeps the texts that are on the screen: a list that
// is filled item by item is shown once, when it is full. Of a password it keeps nothing but that there is one.
#pragma once

#include <QAbstractListModel>
#include <QTimer>
#include <string>
#include <vector>

#include "platform/FavoritesList.h"

namespace vantrel {

class FavesListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  // The display role is the name, or what stands in its place where there is none.
  enum Role : int { hostnameRole = Qt::UserRole, gametypeRole, lockedRole, namelessRole };

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
  // Bytes, as the list has them: only a row in sight is worth a text of the toolkit.
  struct Row {
    std::string name;
    std::string hostname;
    std::string gametype;
    bool locked = false;

    bool shows(const FavoriteItem& item) const;
  };

  void noteChange();
  void resizeTo(int count);
  static Row rowOf(const FavoriteItem& item);
  static QString title(const Row& row);
  static QString told(const Row& row);

  FavoritesList& list_;
  std::vector<Row> rows_;
  QTimer pause_;
  Connection changed_;
};

}  // namespace vantrel
