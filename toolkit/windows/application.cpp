#include "toolkit/windows/application.h"

#include <malloc.h>

#include <QApplication>
#include <QIcon>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "toolkit/look/look.h"
#include "toolkit/windows/memory.h"

namespace trabeon {

namespace {

QtMessageHandler formerHandler = nullptr;
bool started = false;
QString saidBefore;  // what the toolkit reported before it had started

// Says in a sentence why the toolkit cannot start, from what it reported.
QString WhyNotStarted() {
    if (!saidBefore.contains("connect to display") && !saidBefore.contains("wl_display"))
        return "Trabeon's windows cannot be shown: " + saidBefore.simplified();
    const QString x11 = qEnvironmentVariable("DISPLAY");
    const QString display = x11.isEmpty() ? qEnvironmentVariable("WAYLAND_DISPLAY") : x11;
    const QString missing = display.isEmpty()
                                ? "neither DISPLAY nor WAYLAND_DISPLAY names one"
                                : "\"" + display + "\" does not answer or does not let it in";
    return "Trabeon needs a display for its windows, and " + missing +
           ". Start it on a desktop; trabeon-batch analyses and designs without a display.";
}

// The toolkit aborts if it cannot start. It waits for ever for a thread that it could not start.
void OnMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.contains("Thread creation error"))
        EndWithoutMemory();
    if (started) {
        formerHandler(type, context, text);
        return;
    }
    saidBefore += text + '\n';
    if (type == QtFatalMsg) {
        if (saidBefore.contains("Cannot allocate memory"))
            EndWithoutMemory();
        std::fprintf(stderr, "%s\n", WhyNotStarted().toStdString().c_str());
        std::_Exit(1);
    }
}

std::unique_ptr<QApplication> Start(int& argc, char** argv) {
    // One pool of memory for all threads. Each further pool would reserve 64 MiB, which counts if
    // memory is limited.
    mallopt(M_ARENA_MAX, 1);
    formerHandler = qInstallMessageHandler(OnMessage);
    auto application = std::make_unique<QApplication>(argc, argv);
    started = true;
    if (!saidBefore.isEmpty())
        qWarning("%s", saidBefore.trimmed().toStdString().c_str());
    return application;
}

}  // namespace

Application::Application(int& argc, char** argv) : application_(Start(argc, argv)) {
    // Numbers in files have a decimal point in every country, and Qt has just set the user's
    // locale.
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    QApplication::setApplicationName("Trabeon");
    ApplyLook();
}

Application::~Application() = default;

void Application::SetIcon(const std::string& path) {
    QApplication::setWindowIcon(QIcon(QString::fromStdString(path)));
}

int Application::Run() {
    return QApplication::exec();
}

void Application::YieldToPainting() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

std::string Application::Folder() {
    return QCoreApplication::applicationDirPath().toStdString();
}

}  // namespace trabeon
