#include "app/AppDir.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace vantrel {

std::string findAppDir() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable()) {
    return QFile::encodeName(own).toStdString();
  }
  const QString users =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/vantrel-ce");
  QDir().mkpath(users);
  return QFile::encodeName(users).toStdString();
}

}  // namespace vantrel
