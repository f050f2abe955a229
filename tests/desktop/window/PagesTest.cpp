// The settings, the favorites with their editor, the tools and the help, in a window of the design size.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QWheelEvent>
#include <map>

#include "appearance/WindowLayout.h"
#include "browser/Pages.h"
#include "desktop/adapters/QtLoop.h"
#include "desktop/controls/TextField.h"
#include "desktop/controls/Theme.h"
#include "desktop/pages/FaveEditor.h"
#include "desktop/pages/FavesPage.h"
#include "desktop/pages/HelpPanel.h"
#include "desktop/pages/HelpText.h"
#include "desktop/pages/SettingsPage.h"
#include "desktop/pages/ToolsPage.h"

namespace vantrel {
namespace {

struct SilentNotices : Notices {
  void ShowPopMsg(const std::string& /*text*/) override {}
  void popUpBalloon(const std::string& /*text*/, const std::string& /*title*/) override {}
};

struct PagesTest : ::testing::Test {
  PagesTest() {
    applyTheme(*qApp);
    window.resize(671, 553);
    new ToolsPage(model, commands, &window);
    auto* const settings = new SettingsPage(model, commands, &window);
    auto* const faves = new FavesPage(model, commands, &window);
    auto* const editor = new FaveEditor(model, commands, &window);
    auto* const help = new HelpPanel(model, commands, &window);
    settings->endBefore(help);
    faves->endBefore(help);
    help->beginBelow(editor);
    layout.layoutPanels();
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void open(command::Number page) {
    commands.cmdMenu_Click(page);
    QCoreApplication::processEvents();
  }
  template <class T = QWidget>
  T* find(const QString& name) {
    return window.findChild<T*>(name);
  }
  template <class T = QWidget>
  QList<T*> visible() {
    QList<T*> all = window.findChildren<T*>();
    all.removeIf([](T* each) { return !each->isVisible(); });
    return all;
  }
  QStringList tabRound(const char* first) {
    find(first)->setFocus();
    QStringList names;
    do {
      names << QApplication::focusWidget()->objectName();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget()->objectName() != QLatin1String(first) && names.size() < 100);
    return names;
  }
  // A click where the tick is: a check box may be wider than what it shows.
  void tick(const QString& name) {
    QTest::mouseClick(find(name), Qt::LeftButton, {}, QPoint(8, find(name)->height() / 2));
  }
  QPoint placeOf(const QString& name) { return find(name)->mapTo(&window, find(name)->rect().center()); }

  QtLoop loop;
  SilentNotices notices;
  frmMain model{loop};
  Commands commands{model, notices};
  Pages pages{model, commands, notices};
  WindowLayout layout{model};
  QWidget window;
};

constexpr command::Number everyPage[] = {command::showSettings, command::showFaves, command::showTools};

TEST_F(PagesTest, each_check_box_of_the_settings_is_the_switch_of_its_name) {
  open(command::showSettings);
  std::map<QString, CheckBox*> boxes{{"chkSplash", &model.chkSplash}, {"chkOldSplash", &model.chkOldSplash}};
  for (const int number : {0, 1, 2, 3, 5, 6}) {
    boxes[QStringLiteral("chkOptions%1").arg(number)] = &model.chkOptions[static_cast<std::size_t>(number)];
  }
  for (const auto& [name, box] : boxes) {
    tick(name);
    EXPECT_EQ(box->value.get(), 1) << name.toStdString();
    box->value.set(2);
    EXPECT_EQ(find<QCheckBox>(name)->checkState(), Qt::PartiallyChecked) << name.toStdString();
    EXPECT_EQ(box->value.get(), 2) << "what is shown comes back to the model";
    box->value.set(0);
  }
}

TEST_F(PagesTest, the_tab_key_goes_through_the_settings_as_one_reads_them) {
  open(command::showSettings);
  model.mircChan.enabled.set(true);
  const QStringList round = tabRound("txtHaloPath");
  EXPECT_EQ(round.join(' '),
            "txtHaloPath cmdMenu15 chkOptions0 chkOptions1 chkOptions2 chkOptions3 cmbVid cmbShowTab picJoin cmdMenu10 "
            "cmdMenu0 chkOptions5 mircChan chkSplash chkOldSplash chkOptions6 txtFAQ");
  for (qsizetype i = 1; i + 1 < round.size(); ++i) {
    const QPoint step = placeOf(round[i]) - placeOf(round[i - 1]);
    EXPECT_TRUE(step.y() > 5 || (step.y() > -5 && step.x() > 0)) << round[i].toStdString();
  }
}

TEST_F(PagesTest, the_tab_key_goes_from_the_favorites_through_the_editor_to_the_help) {
  open(command::showFaves);
  model.cmdMenu[command::clearFaveEditor].enabled.set(true);
  EXPECT_EQ(tabRound("myFaves1").join(' '),
            "myFaves1 cmdMenu27 cmdMenu36 cmdMenu28 cmdMenu34 txtID txtServerName txtIP2 txtPort2 cmbGameType txtPass "
            "List1 cmdMenu24 cmdMenu25 cmdMenu26 txtFAQ");
}

TEST_F(PagesTest, at_the_design_size_no_caption_is_cut_and_all_settings_are_in_sight) {
  model.lblExeStatus.caption.set("Please locate Halo CE");
  for (const command::Number page : everyPage) {
    open(page);
    for (const QLabel* const label : visible<QLabel>()) {
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
      EXPECT_GE(label->height(), label->sizeHint().height()) << label->objectName().toStdString();
    }
    for (const QAbstractButton* const button : visible<QAbstractButton>()) {
      const bool captioned = !button->text().isEmpty();
      EXPECT_TRUE(!captioned || button->width() >= button->sizeHint().width()) << button->objectName().toStdString();
    }
  }
  open(command::showSettings);
  EXPECT_EQ(find("picSettings")->findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
}

TEST_F(PagesTest, on_each_page_every_control_has_a_name_and_no_two_share_a_letter_or_one_of_the_header) {
  for (const command::Number page : everyPage) {
    open(page);
    QString letters = QStringLiteral("ABCEFGILMOPQRSTV");  // the header's
    const auto take = [&letters](const QString& caption) {
      const qsizetype at = QString(caption).replace("&&", "  ").indexOf('&');
      if (at >= 0) {
        EXPECT_FALSE(letters.contains(caption[at + 1].toUpper())) << caption.toStdString();
        letters += caption[at + 1].toUpper();
      }
    };
    for (const QLabel* const label : visible<QLabel>()) {
      take(label->text());
    }
    for (const QAbstractButton* const button : visible<QAbstractButton>()) {
      take(button->text());
    }
    for (const QWidget* const each : visible()) {
      if ((each->focusPolicy() & Qt::TabFocus) != 0 && each->focusProxy() == nullptr) {
        EXPECT_FALSE(each->objectName().isEmpty() || each->accessibleName().isEmpty())
            << each->objectName().toStdString();
      }
    }
  }
}

TEST_F(PagesTest, a_combo_box_shows_a_text_that_is_not_in_its_list_and_keeps_what_the_user_types_or_chooses) {
  open(command::showSettings);
  model.cmbVid.text.set("-mine");
  model.cmbVid.items.set({" ", "-use11"});
  model.cmbShowTab.text.set("Elsewhere");
  EXPECT_EQ(find<QComboBox>("cmbVid")->currentText(), "-mine");
  EXPECT_EQ(find<QComboBox>("cmbShowTab")->placeholderText(), "Elsewhere");
  EXPECT_EQ(find<QComboBox>("cmbShowTab")->currentIndex(), -1);
  find("cmbVid")->setFocus();
  QTest::keyClicks(QApplication::focusWidget(), "s");
  EXPECT_EQ(model.cmbVid.text.get(), "-mines");
  model.cmbVid.text.set("");
  QTest::keyClicks(QApplication::focusWidget(), "-use1");
  EXPECT_EQ(find<QComboBox>("cmbVid")->currentText(), "-use1") << "no proposal completes it";
  QTest::keyClick(find("cmbShowTab"), Qt::Key_Down);
  EXPECT_EQ(model.cmbShowTab.text.get(), "Current Game");
}

TEST_F(PagesTest, the_wheel_over_a_combo_box_changes_no_setting) {
  open(command::showSettings);
  QWidget* const box = find("cmbShowTab");
  QWheelEvent turn(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(box, &turn);
  EXPECT_EQ(model.cmbShowTab.text.get(), "Players");
}

TEST_F(PagesTest, the_box_of_the_channel_says_why_it_is_closed) {
  EXPECT_FALSE(find("mircChan")->isEnabled());
  EXPECT_EQ(find("mircChan")->toolTip(), "Enable mIRC message to type channel name!");
  const QPalette closed = find("mircChan")->palette();
  EXPECT_NE(closed.color(QPalette::Disabled, QPalette::Text), closed.color(QPalette::Active, QPalette::Text));
}

TEST_F(PagesTest, the_help_shows_each_heading_without_its_colon_and_takes_no_text_for_markup) {
  model.txtFAQ.caption.set("<b>One</b>:\r\n<img src='file:///etc/hostname'>&amp; a: b\n\nTwo:\n");
  const QTextDocument* const shown = find<QTextEdit>("txtFAQ")->document();
  EXPECT_EQ(shown->toPlainText(), "<b>One</b>\n<img src='file:///etc/hostname'>&amp; a: b\nTwo");
  EXPECT_TRUE(shown->toHtml().contains("&lt;img"));
  QString bold;
  for (QTextBlock block = shown->begin(); block.isValid(); block = block.next()) {
    bold += block.begin().fragment().charFormat().fontWeight() == QFont::Bold ? 'H' : '-';
  }
  EXPECT_EQ(bold, "H-H");
}

TEST_F(PagesTest, the_help_begins_at_its_beginning_and_tells_of_every_switch_that_the_settings_offer) {
  model.txtFAQ.caption.set(helpText());
  open(command::showSettings);
  EXPECT_EQ(find<QTextEdit>("txtFAQ")->verticalScrollBar()->value(), 0);
  for (const std::size_t number : {0U, 1U, 2U, 3U}) {
    EXPECT_NE(helpText().find(model.chkOptions[number].caption.get()), std::string::npos) << number;
  }
  for (const char* const further : {"-use11", "-use14", "-use20", "-useff", "-connect", "-password"}) {
    EXPECT_NE(helpText().find(further), std::string::npos) << further;
  }
}

TEST_F(PagesTest, a_password_is_dots_until_the_user_asks_for_it_and_again_behind_a_change_of_the_page) {
  model.txtPass.text.set("secret");
  open(command::showFaves);
  const auto* const box = find<QLineEdit>("txtPass");
  EXPECT_FALSE(box->displayText().contains("secret"));
  QTest::keyClick(find("txtID"), Qt::Key_Z, Qt::AltModifier);
  EXPECT_EQ(box->displayText(), "secret");
  open(command::showTools);
  open(command::showFaves);
  EXPECT_FALSE(box->displayText().contains("secret"));
}

TEST_F(PagesTest, the_lines_about_a_favorite_are_plain_and_follow_the_list) {
  const auto* const lines = find<QListWidget>("List1");
  model.List1.add("Map: <i>gulch</i>\ttwo");
  ASSERT_EQ(lines->count(), 1);
  EXPECT_EQ(lines->item(0)->text(), "Map: <i>gulch</i> two");
  model.List1.clear();
  EXPECT_EQ(lines->count(), 0);
}

}  // namespace
}  // namespace vantrel
