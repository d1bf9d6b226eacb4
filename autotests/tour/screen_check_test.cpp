#include "tour/screen_check.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QVBoxLayout>
#include <memory>

namespace lorimet {
namespace {

const QStringList kWords = {"Error:", "Erreur :"};

class ScreenCheckTest : public testing::Test {
 protected:
  ScreenCheckTest() {
    static int argc = 1;
    static char name[] = "tour_tests";
    static char* argv[] = {name, nullptr};
    static auto* const application = new QApplication(argc, argv);
    static_cast<void>(application);
    screen_ = std::make_unique<QWidget>();
    screen_->setObjectName("frmScreen");
    layout_ = new QVBoxLayout(screen_.get());
  }
  template <typename Widget>
  Widget* Add() {
    auto* widget = new Widget;
    layout_->addWidget(widget);
    widget->show();
    return widget;
  }
  QString Wrong(Content content = Content::kGood) {
    screen_->show();
    return WrongWith(*screen_, content, kWords);
  }

  std::unique_ptr<QWidget> screen_;
  QVBoxLayout* layout_ = nullptr;
};

TEST_F(ScreenCheckTest, AFilledScreenIsGood) {
  Add<QLineEdit>()->setText("84,213.6");
  Add<QPlainTextEdit>()->setPlainText("Errors are counted.\nError: none");
  Add<QLabel>()->setText("Status");
  EXPECT_EQ(Wrong(), "");
}

TEST_F(ScreenCheckTest, AMessageOfAnErrorIsWrongWhereverItStands) {
  auto* line = Add<QLineEdit>();
  auto* lines = Add<QPlainTextEdit>();
  auto* label = Add<QLabel>();
  line->setText("112.4");
  EXPECT_EQ(Wrong(), "");
  lines->setPlainText("Error:  -100\nNo response from the ECU.");
  EXPECT_EQ(Wrong(), "it says \"Error:  -100\"");
  EXPECT_EQ(Wrong(Content::kError), "");
  lines->clear();
  label->setText(" Erreur : -100");
  EXPECT_EQ(Wrong(), "it says \"Erreur : -100\"");
  label->hide();
  EXPECT_EQ(Wrong(), "");
  line->setText("Error: 7");
  EXPECT_EQ(Wrong(), "it says \"Error: 7\"");
}

TEST_F(ScreenCheckTest, AScreenWithNothingInItIsWrongUnlessThatIsAskedFor) {
  auto* line = Add<QLineEdit>();
  EXPECT_EQ(Wrong(), "all its fields are empty");
  EXPECT_EQ(Wrong(Content::kPerhapsNone), "");
  line->setText("0");
  EXPECT_EQ(Wrong(), "");
  Add<QTableWidget>();
  EXPECT_EQ(Wrong(), "its list is empty");
  EXPECT_EQ(Wrong(Content::kPerhapsNone), "");
}

TEST_F(ScreenCheckTest, WhatStandsInFrontIsWrongEvenWhereAnErrorIsShown) {
  Add<QLineEdit>()->setText("0");
  QWidget box;
  box.setObjectName("msgBox");
  box.show();
  EXPECT_EQ(Wrong(Content::kError), "msgBox is in front of it");
  box.hide();
  EXPECT_EQ(Wrong(), "");
}

}  // namespace
}  // namespace lorimet
