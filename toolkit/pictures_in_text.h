// The pictures that stand in a text as characters: found, put in, and drawn as sharp as they are.
// Toolkit inside.
#pragma once

#include <QImage>
#include <QTextCursor>
#include <QTextImageFormat>
#include <vector>

class QTextDocument;

namespace trabeon {

struct PictureInText {
    int position;
    QTextImageFormat format;  // its size in 1/96 inch
    QImage image;
    int number;  // in the order in which the text took its pictures up
};

std::vector<PictureInText> PicturesOf(const QTextDocument& text);

// Puts a picture at the cursor, on a line of its own: pictures that share a line are all given the
// height of the tallest. The cursor ends behind it.
void InsertPicture(QTextCursor& cursor, const QImage& image, int number);

// Pictures have more dots than the screen: they are scaled smoothly wherever this text is drawn.
void DrawPicturesSmoothly(QTextDocument& text);

}  // namespace trabeon
