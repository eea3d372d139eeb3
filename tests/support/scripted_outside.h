// A way out of the program that follows a script: each question must be the next one expected,
// and none may be left at the end.
#pragma once

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QPrinter>
#include <deque>
#include <map>
#include <string>

#include "toolkit/outside/outside.h"

namespace trabeon {

class ScriptedOutside : public Outside {
  public:
    ~ScriptedOutside() override {
        for (const Step& step : script_)
            ADD_FAILURE() << "Never asked: " << step.kind << " \"" << step.text << "\"";
    }

    void ExpectMsgBox(const std::string& text, Answer answer = Answer::Ok) {
        script_.push_back({"box", text, answer, ""});
    }
    void ExpectReplace(const std::string& text, Answer answer) {
        script_.push_back({"replace", text, answer, ""});
    }
    // An empty path: the user draws back.
    void ExpectOpen(const std::string& title, const std::string& path) {
        script_.push_back({"open", title, Answer::Ok, path});
    }
    void ExpectSave(const std::string& title, const std::string& path) {
        script_.push_back({"save", title, Answer::Ok, path});
    }
    // A document is opened; `opens` false: the desktop has no program for it.
    void ExpectDocument(const std::string& path, bool opens = true) {
        script_.push_back({"document", path, opens ? Answer::Yes : Answer::No, ""});
    }
    // The print comes out as this PDF file; an empty path: the user draws back.
    void ExpectPrinter(const std::string& documentName, const std::string& pdf) {
        script_.push_back({"printer", documentName, Answer::Ok, pdf});
    }
    void ExpectEnd() { script_.push_back({"end", "", Answer::Ok, ""}); }

    std::string clipboardText;
    QImage clipboardPicture;
    int lastStyle = 0;                   // of the last message box
    std::string lastTitle;               // of the last message box
    FileQuestion lastQuestion{};         // of the last file dialog
    std::map<std::string, bool> waited;  // whether the wait cursor showed, last time, by kind
    // A4, and 3.5 mm at each edge that a printer cannot reach.
    Paper paper{11900, 16840, 11500, 16440, 200, 200};

    Answer MsgBox(const std::string& asked, int style, const std::string& title) override {
        lastStyle = style;
        lastTitle = title;
        return Next("box", asked).answer;
    }
    Answer AskToReplace(const std::string& asked) override { return Next("replace", asked).answer; }
    std::string AskFile(const FileQuestion& question) override {
        lastQuestion = question;
        return Next(question.saves ? "save" : "open", question.title).path;
    }
    void PutText(const std::string& put) override {
        clipboardText = put;
        clipboardPicture = QImage();
    }
    void PutPicture(const QImage& put) override {
        NoteCursor("picture");
        clipboardPicture = put;
        clipboardText.clear();
    }
    QImage Picture() const override { return clipboardPicture; }
    bool OpenDocument(const std::string& path) override {
        return Next("document", path).answer == Answer::Yes;
    }
    std::unique_ptr<QPrinter> OpenPrinter(const std::string& documentName) override {
        const std::string pdf = Next("printer", documentName).path;
        if (pdf.empty())
            return nullptr;
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QString::fromStdString(pdf));
        return printer;
    }
    Paper DefaultPaper() const override { return paper; }
    void End() override { Next("end", ""); }

  private:
    struct Step {
        std::string kind;
        std::string text;
        Answer answer = Answer::Cancel;
        std::string path;
    };

    void NoteCursor(const std::string& kind) {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        waited[kind] = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    }

    Step Next(const std::string& kind, const std::string& asked) {
        NoteCursor(kind);
        if (script_.empty()) {
            ADD_FAILURE() << "Not expected: " << kind << " \"" << asked << "\"";
            return {kind, asked, Answer::Cancel, ""};
        }
        Step step = script_.front();
        script_.pop_front();
        EXPECT_EQ(asked, step.text);
        if (kind == step.kind)
            return step;
        ADD_FAILURE() << kind << " where " << step.kind << " was expected";
        return {kind, asked, Answer::Cancel, ""};  // a path to open must not be saved to
    }

    std::deque<Step> script_;
};

}  // namespace trabeon
