// The main window, among real windows of an application without a screen.
#include "core/utils/tvxMayaUtils.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace tarvox::crowd {
namespace {

class MainWindow : public testing::Test
{
protected:
    MainWindow() { m_application.emplace(m_count, m_arguments); }

private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    std::optional<QApplication> m_application;
};

TEST(MainWindowWithoutAnApplication, IsNone)
{
    EXPECT_EQ(MayaUtils::getMainWindow(), nullptr);
}

TEST_F(MainWindow, IsNoneWithoutWindows)
{
    EXPECT_EQ(MayaUtils::getMainWindow(), nullptr);
}

TEST_F(MainWindow, IsNoDialogAndNoPlainWidget)
{
    const QDialog dialog;
    const QWidget plain;
    EXPECT_EQ(MayaUtils::getMainWindow(), nullptr);
}

TEST_F(MainWindow, IsFoundAmongDialogs)
{
    const QDialog before;
    QMainWindow window;
    const QDialog after;
    EXPECT_EQ(MayaUtils::getMainWindow(), &window);
}

TEST_F(MainWindow, IsFoundWhetherItIsShownOrNot)
{
    QMainWindow window;
    EXPECT_EQ(MayaUtils::getMainWindow(), &window);
    window.show();
    EXPECT_EQ(MayaUtils::getMainWindow(), &window);
}

TEST_F(MainWindow, IsNoneThatHasAParent)
{
    QDialog dialog;
    const QMainWindow floating(&dialog);
    ASSERT_TRUE(floating.isWindow());
    EXPECT_EQ(MayaUtils::getMainWindow(), nullptr);
    QMainWindow window;
    const QMainWindow tornOff(&window);
    EXPECT_EQ(MayaUtils::getMainWindow(), &window);
}

TEST_F(MainWindow, IsNoneThatIsEmbedded)
{
    QWidget frame;
    QMainWindow embedded(&frame);
    embedded.setWindowFlags(Qt::Widget);
    ASSERT_FALSE(embedded.isWindow());
    EXPECT_EQ(MayaUtils::getMainWindow(), nullptr);
}

TEST_F(MainWindow, IsTheFirstOfTwoInTheOrderOfTheApplication)
{
    QMainWindow one;
    QMainWindow two;
    const auto widgets = QApplication::topLevelWidgets();
    ASSERT_EQ(widgets.size(), 2);
    EXPECT_EQ(MayaUtils::getMainWindow(), widgets[0]);
}

} // namespace
} // namespace tarvox::crowd

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
