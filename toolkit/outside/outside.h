// The one way out of the program: whatever asks the user in a box of its own, or reaches another
// program. The last one made and still alive is the one in use; tests make one that follows a
// script.
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
    std::string fileName{};  // where the dialog starts
    std::string folder{};    // the same while no file was chosen yet; empty: the user's own folder
    std::string suffix{};    // of a name that is typed without one, "docx"
};

class Outside {
  public:
    Outside();
    virtual ~Outside();
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

    static Outside& Current();

    // Style: the buttons (0 OK, 3 Yes No Cancel, 4 Yes No) plus the picture (16, 32, 48, 64).
    virtual Answer MsgBox(const std::string& text, int style, const std::string& title) = 0;
    // Whether a file that another program changed is replaced: Yes, No, or Other: the user wants to
    // save under another name.
    virtual Answer AskToReplace(const std::string& text) = 0;
    // The full path chosen; empty if the user drew back.
    virtual std::string AskFile(const FileQuestion& question) = 0;

    // What is put replaces all that the clipboard held.
    virtual void PutText(const std::string& text) = 0;
    virtual void PutPicture(const QImage& picture) = 0;
    virtual QImage Picture() const = 0;  // a null image if the clipboard holds none

    // Opens a document with the program that the desktop has for it. False: there is none.
    virtual bool OpenDocument(const std::string& path) = 0;
    // The default printer; where there is none, an A4 PDF file whose name is asked for. Null if
    // the user drew back.
    virtual std::unique_ptr<QPrinter> OpenPrinter(const std::string& documentName) = 0;
    // What OpenPrinter would print on.
    virtual Paper DefaultPaper() const = 0;
    // Ends the run once the handler that is under way returns.
    virtual void End() = 0;

  private:
    Outside* former_;
};

}  // namespace trabeon
