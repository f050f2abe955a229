#include "desktop/adapters/QtDialogs.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <memory>

#include "desktop/text/Cp1252.h"
#include "desktop/text/NoticeLayout.h"

namespace vantrel {
namespace {

constexpr int lookInterval = 20;  // milliseconds
constexpr int textDialogWidth = 360;

// Of a message; more might not fit on a screen.
constexpr TextRoom messageRoom{400, 30};

QString titleOf(const std::string& title) {
  return title.empty() ? QStringLiteral("Vantrel CE") : fromCp1252(title);
}

QString messageOf(const std::string& text) {
  return fittedText(fromCp1252(text), QApplication::font(), messageRoom);
}

// File systems that mind capitals hold "HaloCE.exe" as well.
QString inBothCases(const QString& pattern) {
  QString result;
  for (const QChar character : pattern) {
    const bool isCased = character.toLower() != character.toUpper();
    result += isCased ? QStringLiteral("[%1%2]").arg(character.toLower()).arg(character.toUpper()) : QString(character);
  }
  return result;
}

QMessageBox* messageBox(const char* name, const std::string& title, const std::string& text) {
  auto* const box = new QMessageBox(QApplication::activeWindow());
  box->setObjectName(name);
  box->setWindowTitle(titleOf(title));
  box->setTextFormat(Qt::PlainText);
  box->setText(messageOf(text));
  return box;
}

}  // namespace

QString toolkitFilter(const std::string& filter) {
  const QStringList parts = fromCp1252(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(';', Qt::SkipEmptyParts)) {
      const QString trimmed = pattern.trimmed();
      patterns << (trimmed == QStringLiteral("*.*") ? QStringLiteral("*") : inBothCases(trimmed));
    }
    filters << parts[i].trimmed() + " (" + patterns.join(' ') + ")";
  }
  return filters.join(QStringLiteral(";;"));
}

std::optional<std::string> QtDialogs::askFile(const FileQuestion& question) {
  const auto path = [](const std::string& bytes) { return QFile::decodeName(QByteArray::fromStdString(bytes)); };
  const QString folder = question.folder.empty() ? QDir::homePath() : path(question.folder);
  QFileDialog dialog(QApplication::activeWindow(), fromCp1252(question.title), folder, toolkitFilter(question.filter));
  dialog.setObjectName("fileDialog");
  dialog.setAcceptMode(question.purpose == FilePurpose::write ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(question.purpose == FilePurpose::write ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  const QString suffix = fromCp1252(question.defaultType).section('.', -1);
  dialog.setDefaultSuffix(suffix.contains('*') ? QString() : suffix);
  if (!question.fileName.empty()) {
    dialog.selectFile(path(question.fileName));
  }
  const bool accepted = run(dialog) == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
  return accepted ? std::optional(QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString()) : std::nullopt;
}

std::optional<std::string> QtDialogs::askText(const std::string& title, const std::string& text,
                                              const std::string& preset) {
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setObjectName("textDialog");
  dialog.setWindowTitle(titleOf(title));
  dialog.setLabelText(QString());
  auto* const label = dialog.findChild<QLabel*>();
  label->setTextFormat(Qt::PlainText);
  // A label of a field takes "&" for the mark of a key.
  label->setText(messageOf(text).replace('&', QStringLiteral("&&")));
  dialog.setTextValue(fromCp1252(preset));
  dialog.setMinimumWidth(textDialogWidth);
  return run(dialog) == QDialog::Accepted ? std::optional(toCp1252(dialog.textValue())) : std::nullopt;
}

bool QtDialogs::askYesNo(const std::string& title, const std::string& text) {
  const std::unique_ptr<QMessageBox> box(messageBox("yesNoDialog", title, text));
  box->setIcon(QMessageBox::Question);
  box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box->setDefaultButton(QMessageBox::No);
  return run(*box) == QMessageBox::Yes;
}

void QtDialogs::showMessage(const std::string& title, const std::string& text) {
  const std::unique_ptr<QMessageBox> box(messageBox("messageDialog", title, text));
  box->setIcon(QMessageBox::Information);
  run(*box);
}

// What the dialog ended with; not by its own `exec`, which knows nothing of the program's end.
int QtDialogs::run(QDialog& dialog) const {
  bool isFinished = false;
  QObject::connect(&dialog, &QDialog::finished, [&isFinished] { isFinished = true; });
  if (!loop_.ending()) {
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
  }
  while (!isFinished && !loop_.ending()) {
    loop_.wait(lookInterval);
  }
  dialog.hide();
  return isFinished ? dialog.result() : QDialog::Rejected;
}

}  // namespace vantrel
