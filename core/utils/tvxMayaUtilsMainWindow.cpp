// The application's main window; the one place where Qt is needed, in the versions of all Mayas: 4.8, 5
// and 6.
#include "core/utils/tvxMayaUtils.h"

#include <QApplication>
#include <QMainWindow>
#include <QWidget>

namespace tarvox::crowd {

QMainWindow* MayaUtils::getMainWindow()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (!widget->isWindow())
            continue;
        QMainWindow* const window = qobject_cast<QMainWindow*>(widget);
        if (window && !window->parent())
            return window;
    }
    return nullptr;
}

} // namespace tarvox::crowd
