#include "desktop/adapters/QtDialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/adapters/QtLoop.h"

namespace vantrel {
namespace {

struct DialogsTest : testing::Test {
  // Has the user act once a dialog of that name and class is up.
  template <class Dialog>
  void onceUp(const char* name, std::function<void(Dialog&)> act) {
    loop.startTimer(10, TimerKind::once, [this, name, act] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      const bool isUp = dialog != nullptr && dialog->objectName() == name && dialog->isVisible();
      EXPECT_TRUE(isUp) << name;
      isUp ? act(*dialog) : loop.beginEnding();
    });
  }

  QtLoop loop;
  QtDialogs dialogs{loop};
};

TEST_F(DialogsTest, a_question_is_yes_by_its_button_alone) {
  const std::function<void(QMessageBox&)> ways[] = {[](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); },
                                                    [](QMessageBox& box) { box.button(QMessageBox::No)->click(); },
                                                    [](QMessageBox& box) { box.close(); },
                                                    [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }};
  for (const auto& act : ways) {
    onceUp<QMessageBox>("yesNoDialog", act);
    EXPECT_EQ(dialogs.askYesNo("", "Delete it?"), &act == &ways[0]);
  }
}

TEST_F(DialogsTest, texts_from_outside_are_no_markup_and_leave_no_screen) {
  const std::string hostile = "<b>&amp; R&D\n" + std::string(100000, 'x');
  onceUp<QMessageBox>("messageDialog", [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Vantrel CE");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_TRUE(box.text().startsWith("<b>&amp; R&D\n"));
    EXPECT_EQ(box.size(), box.size().boundedTo(box.screen()->availableSize()));
    box.accept();
  });
  dialogs.showMessage("", hostile);
  onceUp<QInputDialog>("textDialog", [](QInputDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    EXPECT_TRUE(dialog.labelText().startsWith("<b>&&amp; R&&D\n")) << "a single & would mark a key";
    EXPECT_EQ(dialog.size(), dialog.size().boundedTo(dialog.screen()->availableSize()));
    dialog.setTextValue(dialog.textValue() + QChar(0x4E2D));
    dialog.accept();
  });
  EXPECT_EQ(dialogs.askText("", hostile, "\x80 "), "\x80 ?");
}

TEST_F(DialogsTest, a_file_is_found_in_any_capitals_and_its_path_comes_back_in_the_systems_bytes) {
  const QTemporaryDir folder;
  QFile game(folder.filePath(QString("HaloCE %1.exe").arg(QChar(0x4E2D))));
  ASSERT_TRUE(game.open(QIODevice::WriteOnly));
  FileQuestion question;
  question.filter = "Gearbox Halo CE (haloce.exe)|haloce*.exe";
  question.folder = folder.path().toStdString();
  onceUp<QFileDialog>("fileDialog", [&](QFileDialog& dialog) {
    const QString pattern = dialog.nameFilters().constFirst().section('(', -1).chopped(1);
    EXPECT_EQ(dialog.directory().entryList({pattern}, QDir::Files | QDir::CaseSensitive).size(), 1) << "any dialog";
    dialog.selectFile(game.fileName());
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  EXPECT_EQ(dialogs.askFile(question), QFile::encodeName(game.fileName()).toStdString());
  EXPECT_EQ(toolkitFilter("Halo CE (a.exe)|a.exe|All types|*.b; *.C1;|All|*.*|odd").toStdString(),
            "Halo CE (a.exe) ([aA].[eE][xX][eE]);;All types (*.[bB] *.[cC]1);;All (*)");
}

TEST_F(DialogsTest, the_end_of_the_program_closes_all_dialogs_also_those_over_others_and_opens_none) {
  onceUp<QFileDialog>("fileDialog", [this](QFileDialog&) {
    onceUp<QInputDialog>("textDialog", [this](QInputDialog&) {
      loop.beginEnding();
      EXPECT_FALSE(dialogs.askYesNo("", "None is opened any more."));
    });
    EXPECT_EQ(dialogs.askText("", "Over the first", "preset"), std::nullopt);
  });
  EXPECT_EQ(dialogs.askFile({FilePurpose::write, "", "All|*.*", "x.html", "", "*.html"}), std::nullopt);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace vantrel
