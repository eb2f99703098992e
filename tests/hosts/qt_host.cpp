// SPDX-License-Identifier: MIT
// A Qt host with an application object of its own: qt_host FOLDER core|gui before|after
// "before" makes it before the library is opened, "after" makes it afterwards.
#include "module.h"

#include <QGuiApplication>
#include <QTimer>

#include <memory>

namespace {

std::unique_ptr<QCoreApplication> makeApplication(const std::string& kind)
{
    static int count = 1;
    static char name[] = "qt_host";
    static char* arguments[] = {name, nullptr};
    if (kind == "gui")
        return std::make_unique<QGuiApplication>(count, arguments);
    return std::make_unique<QCoreApplication>(count, arguments);
}

std::unique_ptr<CModule> openModule()
{
    return std::make_unique<CModule>(MODULE);
}

// Draws inside the host's own event loop.
bool drawInLoop(const CModule& module, const std::string& folder)
{
    bool isDrawn = false;
    QTimer::singleShot(0, QCoreApplication::instance(), [&] {
        isDrawn = module.draw(folder, "loop");
        QCoreApplication::quit();
    });
    return QCoreApplication::exec() == 0 && isDrawn;
}

} // namespace

int main(int, char** arguments)
{
    const std::string folder = arguments[1];
    const bool isOpenedFirst = std::string(arguments[3]) == "after";
    std::unique_ptr<CModule> module = isOpenedFirst ? openModule() : nullptr;
    if (module && !module->draw(folder, "alone"))
        return 1;
    std::unique_ptr<QCoreApplication> application = makeApplication(arguments[2]);
    if (!module)
        module = openModule();
    if (!drawInLoop(*module, folder))
        return 2;
    // The library must also draw when the host's own object is gone.
    application.reset();
    return module->draw(folder, "afterwards") ? 0 : 3;
}
