// The pictures in a text, where each is one character: finding, inserting and drawing them. They
// are kept as PNG files, because many large pictures would not fit into memory. Only for the
// toolkit's own sources.
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
    int number;        // the pictures of a text are numbered as they come in
    int position = 0;  // in the text, from 0
};

[[nodiscard]] PictureInText PictureFrom(const QImage& image, int number);
[[nodiscard]] QImage ImageOf(const PictureInText& picture);

/// In the order of the text.
[[nodiscard]] std::vector<PictureInText> PicturesOf(const QTextDocument& text);

/// Inserts a picture at the cursor, on a separate line, because pictures on one line all get the
/// height of the tallest. Leaves the cursor after the picture.
void InsertPicture(QTextCursor& cursor, const PictureInText& picture);

/// Changes the size of the picture at this position, in 1/96 inch. It keeps its dots.
void ResizePicture(QTextDocument& text, int position, const QSizeF& size);

/// Scales the pictures smoothly when this text is drawn, because they have more dots than a screen.
void DrawPicturesSmoothly(QTextDocument& text);

}  // namespace trabeon
