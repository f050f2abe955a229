#include "app/Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "desktop/adapters/WinePrefix.h"

namespace vantrel {
namespace {

std::string bytes(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

QString usersFolder(QStandardPaths::StandardLocation location) {
  return QStandardPaths::writableLocation(location) + QStringLiteral("/vantrel-ce");
}

std::string findAppDir() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable()) {
    return bytes(own);
  }
  const QString users = usersFolder(QStandardPaths::GenericDataLocation);
  QDir().mkpath(users);
  return bytes(users);
}

}  // namespace

Places findPlaces() {
  return {findAppDir(), bytes(usersFolder(QStandardPaths::GenericConfigLocation)), findWinePrefix()};
}

}  // namespace vantrel
