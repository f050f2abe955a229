#include "desktop/adapters/QtShell.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBrowser>

namespace vantrel {
namespace {

// Stands in for every program of the desktop, and keeps the address that it was given last.
struct Desktop : QTextBrowser {
  QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return "shown"; }
};

struct ShellTest : testing::Test {
  // From now on `program` opens everything, or nobody does.
  static void handOver(QObject* program) {
    for (const char* const scheme : {"file", "http", "halo", "ssh"}) {
      QDesktopServices::setUrlHandler(scheme, program, "setSource");
    }
  }
  // The path or address that the desktop was asked to open, "refused" when it was not.
  std::string open(const std::string& target) {
    Desktop desktop;
    handOver(&desktop);
    const bool isTaken = QtShell().open(target);
    handOver(nullptr);
    const QUrl opened = desktop.source();
    EXPECT_EQ(isTaken, !opened.isEmpty()) << target;
    return !isTaken ? "refused" : (opened.isLocalFile() ? opened.toLocalFile() : opened.toString()).toStdString();
  }
  std::string make(const char* name, QFile::Permissions more = {}) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.setPermissions(file.permissions() | more);
    return QFile::encodeName(file.fileName()).toStdString();
  }

  QTemporaryDir folder;
};

TEST_F(ShellTest, documents_folders_and_addresses_are_opened) {
  for (const std::string& target : {make("stats #1.html"), make("50%41.png", QFile::ExeOwner), make("LICENSE"),
                                    folder.path().toStdString(), std::string("halo://192.0.2.1:2302")}) {
    EXPECT_EQ(open(target), target);
  }
}

TEST_F(ShellTest, nothing_that_could_run_and_no_other_scheme_is_opened) {
  const std::string program = make("program", QFile::ExeOwner);
  EXPECT_TRUE(QFile::link(QString::fromStdString(program), folder.filePath("link.html")));
  for (const std::string& target :
       {program, folder.filePath("link.html").toStdString(), make("x.desktop"), make("x.EXE"), make("x.bat"),
        make("x.sh"), "file://" + make("y.html"), folder.filePath("none.html").toStdString(),
        std::string("ssh://example.test"), std::string("http://a b/"), std::string()}) {
    EXPECT_EQ(open(target), "refused") << target;
  }
}

}  // namespace
}  // namespace vantrel
