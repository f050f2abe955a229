#include "desktop/adapters/QtShell.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>

#include "desktop/text/Cp1252.h"

namespace vantrel {
namespace {

// On a file system without rights every file has the one to be executed, so a document is known by its name.
bool couldRun(const QFileInfo& file) {
  const QStringList documents = {"html", "htm", "css", "txt", "ini", "png", "jpg", "jpeg", "gif", "bmp", "pdf"};
  const QStringList programs = {"desktop", "exe",      "bat", "cmd", "com", "scr", "msi",
                                "sh",      "appimage", "jar", "lnk", "pif", "vbs", "reg"};
  const QString suffix = file.suffix().toLower();
  return !file.isDir() && !documents.contains(suffix) && (file.isExecutable() || programs.contains(suffix));
}

}  // namespace

bool QtShell::open(const std::string& target) {
  const QFileInfo named(QFile::decodeName(QByteArray::fromStdString(target)));
  if (named.isAbsolute()) {
    // A link is what it leads to, whatever its own name says.
    const QFileInfo file(named.canonicalFilePath());
    return file.exists() && !couldRun(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file.filePath()));
  }
  const QUrl url(fromCp1252(target), QUrl::StrictMode);
  const QStringList schemes = {"http", "https", "mailto", "halo"};
  return url.isValid() && schemes.contains(url.scheme()) && QDesktopServices::openUrl(url);
}

void QtShell::setClipboard(const std::string& text) {
  QGuiApplication::clipboard()->setText(fromCp1252(text));
}

}  // namespace vantrel
