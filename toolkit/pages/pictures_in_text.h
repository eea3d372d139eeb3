// The pictures that stand in a text as characters: found, put in, and drawn as sharp as they are.
// They are kept as PNG files, since many large ones would not fit into memory otherwise.
// Toolkit inside.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QTextCursor>
#include <vector>

class QTextDocument;

namespace trabeon {

struct PictureInText {
    QByteArray png;
    QSizeF size;       // 1/96 inch
    int number;        // in the order in which the text took its pictures up
    int position = 0;  // in the text
};

PictureInText PictureFrom(const QImage& image, int number);
QImage ImageOf(const PictureInText& picture);

std::vector<PictureInText> PicturesOf(const QTextDocument& text);

// Puts a picture at the cursor, on a line of its own: pictures that share a line are all given the
// height of the tallest. The cursor ends behind it.
void InsertPicture(QTextCursor& cursor, const PictureInText& picture);

// The picture of that character keeps its dots and gets another size.
void ResizePicture(QTextDocument& text, int position, const QSizeF& size);

// Pictures have more dots than the screen: they are scaled smoothly wherever this text is drawn.
void DrawPicturesSmoothly(QTextDocument& text);

}  // namespace trabeon
