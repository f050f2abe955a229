#include "app/Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
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

// The report's template and what belongs to it. What the user has there already, changed or not, stays.
void copyMissing(const QString& from, const QString& to) {
  QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString file = files.next();
    const QString target = to + '/' + QDir(from).relativeFilePath(file);
    QDir().mkpath(QFileInfo(target).path());
    QFile::copy(file, target);  // Never over one that is there.
  }
}

std::string findAppDir() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable()) {
    return bytes(own);
  }
  return bytes(usersFolder(QStandardPaths::GenericDataLocation));
}

}  // namespace

Places findPlaces() {
  return {findAppDir(),
          bytes(usersFolder(QStandardPaths::GenericConfigLocation)),
          findWinePrefix(),
          bytes(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)),
          bytes(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)),
          bytes(QCoreApplication::applicationFilePath())};
}

void fillAppDir(const Places& places) {
  const QString appDir = QFile::decodeName(QByteArray::fromStdString(places.appDir));
  QDir().mkpath(appDir);
  copyMissing(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/vantrel-ce/gameinfo"),
              appDir + QStringLiteral("/gameinfo"));
}

}  // namespace vantrel
