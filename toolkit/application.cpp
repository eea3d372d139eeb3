#include "toolkit/application.h"

#include <QApplication>
#include <QIcon>
#include <clocale>

#include "toolkit/look.h"

namespace trabeon {

Application::Application(int& argc, char** argv)
    : application_(std::make_unique<QApplication>(argc, argv)) {
    // Numbers in files have a point, wherever the user lives; Qt has just taken the user's locale.
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

void Application::Yield() {
    QApplication::processEvents();
}

void Application::YieldToPainting() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

std::string Application::Folder() {
    return QCoreApplication::applicationDirPath().toStdString();
}

}  // namespace trabeon
