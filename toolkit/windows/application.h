// The toolkit's part of the program: made before the first window and destroyed last.
#pragma once

#include <memory>
#include <string>

class QApplication;

namespace trabeon {

class Application {
  public:
    /// Removes the toolkit's own arguments from argv. argc and argv must outlive this.
    Application(int& argc, char** argv);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Sets the icon of all windows.
    static void SetIcon(const std::string& path);
    /// The folder of the program file.
    [[nodiscard]] static std::string Folder();
    /// Handles events until Outside::End is called or the last window is closed. The exit code.
    [[nodiscard]] int Run();
    /// Lets the windows repaint. Keys and clicks wait until the current handler has ended.
    static void YieldToPainting();

  private:
    std::unique_ptr<QApplication> application_;
};

}  // namespace trabeon
