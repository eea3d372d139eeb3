// The run of the program: made first, ended last.
#pragma once

#include <memory>
#include <string>

class QApplication;

namespace trabeon {

class Application {
  public:
    // Takes the toolkit's own arguments out of argv, which must outlive this.
    Application(int& argc, char** argv);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // The picture in the corner of every window.
    static void SetIcon(const std::string& path);
    // The folder of the program file.
    static std::string Folder();
    // Handles events until Outside::End or until the last window has closed.
    int Run();
    // Lets the windows repaint; keys and clicks wait until the handler has ended.
    static void YieldToPainting();

  private:
    std::unique_ptr<QApplication> application_;
};

}  // namespace trabeon
