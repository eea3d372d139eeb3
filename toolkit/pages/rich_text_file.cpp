#include "toolkit/pages/rich_text_file.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "toolkit/look/placement.h"
#include "toolkit/outside/picture_file.h"
#include "toolkit/pages/page_layout.h"
#include "toolkit/pages/pictures_in_text.h"

namespace trabeon {

namespace {

constexpr qsizetype HexPerLine = 128;

std::string Number(const char* word, double value) {
    return word + std::to_string(std::lround(value));
}

std::string Head(const QFont& font, const Paper& paper, int margin) {
    std::string head = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\froman Times New Roman;}}\n";
    head += Number("\\paperw", paper.Width) + Number("\\paperh", paper.Height);
    for (const char* side : {"\\margl", "\\margr", "\\margt", "\\margb"})
        head += Number(side, margin);
    return head + "\n\\f0" + (font.bold() ? "\\b" : "") + Number("\\fs", 2 * font.pointSizeF()) +
           "\n";
}

std::string Escaped(const QString& text) {
    std::string escaped;
    for (const QChar character : text) {
        const int code = character.unicode();
        if (character == '\\' || character == '{' || character == '}')
            escaped += '\\';
        if (code == 0x2028)
            escaped += "\\line ";
        else if (code == '\t')
            escaped += "\\tab ";
        else if (code < 0x80)
            escaped += static_cast<char>(code);
        else  // signed 16 bits, and "?" for readers without Unicode
            escaped += "\\u" + std::to_string(static_cast<short>(code)) + "?";
    }
    return escaped;
}

std::string PictureText(const PictureInText& picture, const QSizeF& area) {
    const QByteArray hex = picture.png.toHex();
    const QSize dots = DotsOf(picture.png);
    const QSizeF size = FittedSize(picture.size, area / TwipsPerPixel) * TwipsPerPixel;
    std::string text = "{\\pict\\pngblip" + Number("\\picw", dots.width()) +
                       Number("\\pich", dots.height()) + Number("\\picwgoal", size.width()) +
                       Number("\\pichgoal", size.height()) + "\n";
    for (qsizetype at = 0; at < hex.size(); at += HexPerLine)
        text += hex.mid(at, HexPerLine).toStdString() + "\n";
    return text + "}";
}

}  // namespace

std::string RichTextOf(const QTextDocument& text, const Paper& paper, int margin) {
    const QSizeF area(std::max(1, paper.Width - 2 * margin),
                      std::max(1, paper.Height - 2 * margin));
    std::string file = Head(text.defaultFont(), paper, margin);
    const std::vector<PictureInText> pictures = PicturesOf(text);
    auto picture = pictures.begin();
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const QString characters = block.text();
        for (int i = 0; i < characters.size(); ++i) {
            if (picture != pictures.end() && picture->position == block.position() + i)
                file += PictureText(*picture++, area);
            else
                file += Escaped(characters.mid(i, 1));
        }
        file += "\\par\n";  // the last one too, else readers add an empty paragraph
    }
    return file + "}\n";
}

}  // namespace trabeon
