// The real outside: boxes, dialogs, clipboard, printer and programs of the user's desktop.
#pragma once

#include <QString>
#include <memory>

#include "toolkit/outside/outside.h"

namespace trabeon {

class PageWindow;

class Desktop : public Outside {
  public:
    Desktop();
    ~Desktop() override;

    Answer MsgBox(const std::string& text, int style, const std::string& title) override;
    Answer AskToReplace(const std::string& text) override;
    /// Starts in the folder of the last answer. Before the first answer, in the folder of the
    /// question or in the home folder. If a name is refused, the dialog comes back as it was.
    std::string AskFile(const FileQuestion& question) override;
    void PutText(const std::string& text) override;
    void PutPicture(const QImage& picture) override;
    QImage Picture() const override;
    /// If the desktop has no browser, the program shows a page (.htm) in its own window, the same
    /// one each time.
    bool OpenDocument(const std::string& path) override;
    std::unique_ptr<QPrinter> OpenPrinter(const std::string& documentName) override;
    Paper DefaultPaper() const override;
    void End() override;

  private:
    /// Whether this name may be used. Tells the user why not, or asks.
    bool IsAgreed(const QString& chosen, const FileQuestion& question);

    std::unique_ptr<PageWindow> page_;
    QString lastFolder_;
};

}  // namespace trabeon
