// SPDX-License-Identifier: MIT
// The application object that fonts and painting need in a host without a display.
#include "process/offscreen_application.h"

#include "process/CDefaultArithmetic.h"
#include "process/CMessageSilencer.h"
#include "process/font_gate.h"
#include "process/free_descriptors.h"
#include "process/message_filter.h"
#include "process/qt_threads.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPluginLoader>

#include <algorithm>
#include <clocale>
#include <mutex>
#include <pthread.h>
#include <string>
#include <sys/auxv.h>
#include <unistd.h>

namespace tovangl {

namespace {

std::mutex applicationMutex;

// Qt sets the C locale from the environment when an application object is made.
class CLocaleKeeper
{
public:
    CLocaleKeeper()
        : m_locale(std::setlocale(LC_ALL, nullptr))
    {}
    ~CLocaleKeeper() { static_cast<void>(std::setlocale(LC_ALL, m_locale.c_str())); }
    Q_DISABLE_COPY(CLocaleKeeper)

private:
    std::string m_locale;
};

// Qt searches beside the executable for plugins, and for a file that says where they are, but only
// once an application object exists.
bool hasPluginsBesideExecutable()
{
    const QDir folder = QFileInfo(QFile::symLinkTarget(QLatin1String("/proc/self/exe"))).dir();
    const auto names = {"qt.conf", "qt6.conf", "platforms"};
    return std::any_of(names.begin(), names.end(),
                       [&folder](const char* name) { return folder.exists(QLatin1String(name)); });
}

bool actsForAnotherUser()
{
    return geteuid() != getuid();
}

// Whether the user who started the program has fewer rights than it. Qt would load plugins from
// where the environment says, and the environment is that user's.
bool isEnvironmentForeign()
{
    return actsForAnotherUser() && getauxval(AT_SECURE) != 0;
}

// Qt ends a process that acts for another user, for fear of its environment. A daemon that took
// another user's rights by itself has nothing to fear.
class CUserPermit
{
public:
    CUserPermit()
        : m_wasAllowed(QCoreApplication::isSetuidAllowed())
    {
        QCoreApplication::setSetuidAllowed(m_wasAllowed || actsForAnotherUser());
    }
    ~CUserPermit() { QCoreApplication::setSetuidAllowed(m_wasAllowed); }
    Q_DISABLE_COPY(CUserPermit)

private:
    bool m_wasAllowed;
};

QStringList libraryPathsOfAnApplication()
{
    int count = 1;
    char empty[] = "";
    char* arguments[] = {empty, nullptr};
    const QCoreApplication application(count, arguments);
    return QCoreApplication::libraryPaths();
}

QStringList libraryPaths()
{
    if (QCoreApplication::instance() || !hasPluginsBesideExecutable())
        return QCoreApplication::libraryPaths();
    return libraryPathsOfAnApplication();
}

QStringList platformFolders()
{
    QStringList folders;
    const QByteArray own = qgetenv("QT_QPA_PLATFORM_PLUGIN_PATH");
    if (!own.isEmpty())
        folders << QString::fromLocal8Bit(own.constData());
    const QStringList paths = libraryPaths();
    for (const QString& path : paths)
        folders << path + QLatin1String("/platforms");
    return folders;
}

// Qt ends the process if it cannot load the platform plugin, so this tries to load it first.
bool canLoadOffscreenPlugin()
{
    const QStringList folders = platformFolders();
    for (const QString& folder : folders) {
        const QDir dir(folder);
        const QStringList files = dir.entryList(QStringList(QLatin1String("libqoffscreen*.so")));
        for (const QString& file : files) {
            QPluginLoader loader(dir.absoluteFilePath(file));
            if (loader.load())
                return true;
        }
    }
    return false;
}

// Whether fonts and painting work: there is an application object with a platform.
bool canPaint()
{
    return !QGuiApplication::platformName().isEmpty();
}

// Makes the application object, which lasts until the process ends. Its arguments win over
// QT_QPA_PLATFORM.
void makeApplication()
{
    static int count = 3;
    static char empty[] = "";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {empty, option, platform, nullptr};
    [[maybe_unused]] static QGuiApplication* application = nullptr; // where leak checkers find it
    application = new QGuiApplication(count, arguments);
}

} // namespace

bool ensureApplication()
{
    const std::lock_guard<std::mutex> lock(applicationMutex);
    if (canPaint())
        return true;
    if (isEnvironmentForeign() || !areDescriptorsFree())
        return false;
    const CDefaultArithmetic arithmetic;
    const CMessageSilencer silencer;
    const CLocaleKeeper keeper;
    const CUserPermit permit;
    if (!canLoadOffscreenPlugin())
        return false;
    makeApplication();
    return canPaint();
}

namespace {

// A forked child has only the thread that forked: locks that others held stay locked in it, and a
// pool of painting threads waits for them for ever. So pictures that other threads draw are
// finished before a fork, and the pool is emptied. A thread that forks while it draws itself, as a
// handler of signals may, cannot wait for its own picture.
void prepareFork()
{
    if (isSilenced())
        return;
    closeFontGate();
    qt::endPaintThreads();
}

void goOnAfterFork()
{
    if (!isSilenced())
        openFontGate();
}

void beginChild()
{
    if (!isSilenced())
        renewFontGate();
}

// Makes the object when the library is loaded, so that it does not belong to whichever thread
// happens to draw first.
[[maybe_unused]] const bool madeAtLoad = ensureApplication();
[[maybe_unused]] const bool preparedForForks =
    pthread_atfork(&prepareFork, &goOnAfterFork, &beginChild) == 0;

} // namespace

} // namespace tovangl
