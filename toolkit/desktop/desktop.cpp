#include "toolkit/desktop/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPageSize>
#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QUrl>

#include "toolkit/desktop/page_window.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/pages/printer.h"

namespace trabeon {

namespace {

constexpr int ButtonBits = 0x07;
constexpr int PictureBits = 0x70;

QMessageBox::StandardButtons ButtonsOf(int style) {
    switch (style & ButtonBits) {
        case 1:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case 3:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case 4:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

QMessageBox::Icon PictureOf(int style) {
    switch (style & PictureBits) {
        case 16:
            return QMessageBox::Critical;
        case 32:
            return QMessageBox::Question;
        case 48:
            return QMessageBox::Warning;
        case 64:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

// The window that a box belongs to. It becomes active again when the box is closed: some platforms
// leave no window active, and then no focus event ever comes again.
class Owner {
  public:
    Owner() : window_(QApplication::activeWindow()) {
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);  // the program now waits for the user
    }
    ~Owner() {
        QGuiApplication::restoreOverrideCursor();
        if (window_)
            window_->activateWindow();
    }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    QWidget* Window() const { return window_; }

  private:
    QPointer<QWidget> window_;
};

// "Text (*.A) |*.A" contains the pattern twice, and the dialog needs "Text (*.A)".
QString DialogFilter(const std::string& filter) {
    const QStringList parts = ShownText(filter).split('|');
    if (parts.size() < 2)
        return parts.value(0);
    const QString text = parts.at(0).section('(', 0, 0).trimmed();
    return text + " (" + parts.at(1).trimmed() + ");;All files (*)";
}

// The system's default printer. If there is none, A4 sheets in a PDF file without a name yet.
std::unique_ptr<QPrinter> DefaultPrinter() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (!info.isNull()) {
        // Qt takes a printer that says nothing about itself for one without colour.
        if (info.supportedPageSizes().isEmpty())
            printer->setColorMode(QPrinter::Color);
        return printer;
    }
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setPageSize(QPageSize(QPageSize::A4));
    return printer;
}

}  // namespace

Desktop::Desktop() = default;

Desktop::~Desktop() = default;

Answer Desktop::MsgBox(const std::string& text, int style, const std::string& title) {
    const Owner owner;
    QMessageBox box(PictureOf(style), ShownText(title), ShownText(text), ButtonsOf(style),
                    owner.Window());
    box.setTextFormat(Qt::PlainText);
    return AnswerOf(box.exec());
}

Answer Desktop::AskToReplace(const std::string& text) {
    const Owner owner;
    QMessageBox box(QMessageBox::Warning, "Trabeon", QString::fromStdString(text),
                    QMessageBox::Yes | QMessageBox::No, owner.Window());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    const auto* other = box.addButton("Save &As...", QMessageBox::ActionRole);
    const int button = box.exec();
    return box.clickedButton() == other ? Answer::Other : AnswerOf(button);
}

std::string Desktop::AskFile(const FileQuestion& question) {
    const Owner owner;
    QFileDialog dialog(owner.Window(), ShownText(question.title));
    dialog.setNameFilters(DialogFilter(question.filter).split(";;"));
    dialog.setAcceptMode(question.saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(question.saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !question.asksBeforeOverwriting);
    dialog.setDefaultSuffix(QString::fromStdString(question.suffix));
    const QString start =
        lastFolder_.isEmpty() ? QString::fromStdString(question.folder) : lastFolder_;
    dialog.setDirectory(start.isEmpty() ? QDir::homePath() : start);
    if (!question.fileName.empty())
        dialog.selectFile(QString::fromStdString(question.fileName));
    QString chosen;
    do {  // the dialog comes back with what was typed
        if (dialog.exec() != QDialog::Accepted)
            return {};
        chosen = dialog.selectedFiles().value(0);
    } while (!IsAgreed(chosen, question));
    lastFolder_ = QFileInfo(chosen).absolutePath();
    return chosen.toStdString();
}

bool Desktop::IsAgreed(const QString& chosen, const FileQuestion& question) {
    const QFileInfo file(chosen);
    if (file.exists())
        return true;  // the dialog itself asks before it replaces a file
    const QString folder = file.absolutePath();
    if (question.folderMustExist && !QFileInfo(folder).isDir()) {
        const QString text = "The folder \"" + folder +
                             "\" does not exist: choose one that does, or create it first.";
        MsgBox(text.toStdString(), 48, question.title);
        return false;
    }
    if (!question.asksBeforeCreating)
        return true;
    const QString text = '"' + file.fileName() + "\" does not exist. Create it?";
    return MsgBox(text.toStdString(), 36, question.title) == Answer::Yes;
}

void Desktop::PutText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ShownText(text));
}

void Desktop::PutPicture(const QImage& picture) {
    QGuiApplication::clipboard()->setImage(picture);
}

QImage Desktop::Picture() const {
    return QGuiApplication::clipboard()->image();
}

bool Desktop::OpenDocument(const std::string& path) {
    const QString file = QString::fromStdString(path);
    auto* messages = QLoggingCategory::defaultCategory();
    messages->setEnabled(QtWarningMsg, false);  // a missing browser is our answer, not a warning
    const bool opened = QDesktopServices::openUrl(QUrl::fromLocalFile(file));
    messages->setEnabled(QtWarningMsg, true);
    if (opened)
        return true;
    const bool isPage = file.endsWith(".htm", Qt::CaseInsensitive) && QFile::exists(file);
    if (!isPage)
        return false;
    if (!page_)
        page_ = std::make_unique<PageWindow>();
    page_->Open(file);
    return true;
}

std::unique_ptr<QPrinter> Desktop::OpenPrinter(const std::string& documentName) {
    auto printer = DefaultPrinter();
    printer->setDocName(ShownText(documentName));
    if (printer->outputFormat() == QPrinter::NativeFormat)
        return printer;
    const std::string path = AskFile({.saves = true,
                                      .asksBeforeOverwriting = true,
                                      .folderMustExist = true,
                                      .title = "Print to a PDF File",
                                      .filter = "PDF File (*.pdf) |*.pdf",
                                      .suffix = "pdf"});
    if (path.empty())
        return nullptr;
    printer->setOutputFileName(QString::fromStdString(path));
    return printer;
}

Paper Desktop::DefaultPaper() const {
    return PaperOf(*DefaultPrinter());
}

void Desktop::End() {
    QCoreApplication::exit(0);
}

}  // namespace trabeon
