// The only way out of the program: everything that asks the user in a separate box or reaches
// another program. The object that was made last is in use until it is destroyed. Tests make one
// that follows a script.
#pragma once

#include <memory>
#include <string>

#include "toolkit/outside/paper.h"

class QImage;
class QPrinter;

namespace trabeon {

enum class Answer { Ok, Yes, No, Cancel, Other };

struct FileQuestion {
    bool saves = false;
    bool asksBeforeOverwriting = false;
    bool asksBeforeCreating = false;
    bool folderMustExist = false;
    std::string title{};
    std::string filter{};    // "Trabeon File (*.TB) |*.TB"
    std::string fileName{};  // the file that the dialog shows first
    std::string folder{};  // where the dialog starts if no file was chosen yet; empty: home folder
    std::string suffix{};  // added to a name that is typed without one, for example "docx"
};

class Outside {
  public:
    Outside();
    virtual ~Outside();
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

    [[nodiscard]] static Outside& Current();

    /// Shows a message box and waits. Style: the buttons (0 OK, 3 Yes No Cancel, 4 Yes No) plus the
    /// icon (16 critical, 32 question, 48 warning, 64 information).
    virtual Answer MsgBox(const std::string& text, int style, const std::string& title) = 0;
    /// Asks whether to replace a file that another program has changed. Yes, No, or Other to save
    /// under another name.
    virtual Answer AskToReplace(const std::string& text) = 0;
    /// Shows a file dialog and waits. The full path, or empty if the user cancels.
    virtual std::string AskFile(const FileQuestion& question) = 0;

    /// Replaces the content of the clipboard.
    virtual void PutText(const std::string& text) = 0;
    virtual void PutPicture(const QImage& picture) = 0;
    /// The picture on the clipboard; a null image if there is none.
    [[nodiscard]] virtual QImage Picture() const = 0;

    /// Opens a document with the desktop's program for it. False: there is no such program.
    [[nodiscard]] virtual bool OpenDocument(const std::string& path) = 0;
    /// The default printer. If there is none, an A4 PDF file; the user is asked for its name. Null
    /// if the user cancels.
    [[nodiscard]] virtual std::unique_ptr<QPrinter> OpenPrinter(
        const std::string& documentName) = 0;
    /// The paper that OpenPrinter would print on.
    [[nodiscard]] virtual Paper DefaultPaper() const = 0;
    /// Ends the program after the current handler has returned.
    virtual void End() = 0;

  private:
    Outside* former_;
};

}  // namespace trabeon
