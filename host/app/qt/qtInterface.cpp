// The Qt application and main window of tvxhost --qt.
#include "app/userInterface.h"
#include "mel/commands/interfaceTree.h"

#include <QApplication>
#include <QMainWindow>

#include <array>
#include <cstdlib>

namespace tvxhost::app {

namespace {

/// Without a display windows are kept in memory. The user's own choice of a platform counts.
void choosePlatform()
{
    const bool hasDisplay = std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
    if (!hasDisplay)
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
}

class QtInterface final : public UserInterface
{
public:
    QtInterface() : m_application(m_argumentCount, m_arguments.data())
    {
        m_window.setObjectName(mel::InterfaceTree::kMainWindow);
        m_window.setWindowTitle("tvxhost");
        m_window.resize(960, 600);
        m_window.show();
        processEvents();
    }

    void processEvents() override { QCoreApplication::processEvents(); }

private:
    // Qt keeps references to both.
    char m_name[8] = "tvxhost";
    std::array<char*, 2> m_arguments = {m_name, nullptr};
    int m_argumentCount = 1;
    QApplication m_application;
    QMainWindow m_window;
};

} // namespace

} // namespace tvxhost::app

extern "C" __attribute__((visibility("default"))) tvxhost::app::UserInterface* tvxMakeUserInterface()
{
    if (QCoreApplication::instance())
        return nullptr;
    tvxhost::app::choosePlatform();
    return new tvxhost::app::QtInterface;
}
