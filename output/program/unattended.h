// The outside of a program without a user: messages go to standard error, the clipboard is in
// memory, and questions have fixed answers.
#pragma once

#include <QImage>
#include <QPrinter>
#include <cstdio>

#include "toolkit/outside/outside.h"

namespace trabeon {

class Unattended : public Outside {
  public:
    std::string file;  // the answer to every file dialog; empty means Cancel

    Answer MsgBox(const std::string& text, int, const std::string&) override {
        std::fprintf(stderr, "%s\n", text.c_str());
        return Answer::Cancel;
    }
    Answer AskToReplace(const std::string&) override { return Answer::No; }
    std::string AskFile(const FileQuestion&) override { return file; }
    void PutText(const std::string&) override {}
    void PutPicture(const QImage& picture) override { picture_ = picture; }
    QImage Picture() const override { return picture_; }
    bool OpenDocument(const std::string&) override { return true; }
    std::unique_ptr<QPrinter> OpenPrinter(const std::string&) override { return nullptr; }
    Paper DefaultPaper() const override { return {11906, 16838, 11506, 16438, 200, 200}; }  // A4
    void End() override {}

  private:
    QImage picture_;
};

}  // namespace trabeon
