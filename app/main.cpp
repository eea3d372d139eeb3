// trabeon: the program with windows.
#include <cstdio>
#include <exception>

#include "core/store/temporary_file.h"
#include "forms/main/frmTrabeon.h"
#include "output/frmPrintOptions.h"
#include "report/registration.h"
#include "report/sent_pictures.h"
#include "toolkit/desktop/desktop.h"
#include "toolkit/windows/application.h"

int main(int argc, char** argv) try {
    using namespace trabeon;
    prepareSignals();
    Application application(argc, argv);
    const Desktop desktop;
    const auto folder = Application::Folder();
    Application::SetIcon((std::filesystem::path(folder) / "trabeon.png").string());
    frmTrabeon program(folder);
    registerReport(program.context());
    program.context().forms.Register<frmPrintOptions>(program.context());
    if (!program.Start())
        return 0;
    removeLentPictures(folder);
    const int exit = application.Run();
    removeLentPictures(folder);
    return exit;
} catch (const std::exception& error) {
    std::fprintf(stderr, "Trabeon cannot continue (%s).\n", error.what());
    return 1;
}
