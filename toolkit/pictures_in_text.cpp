#include "toolkit/pictures_in_text.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QUrl>

namespace trabeon {

namespace {

QImage ImageOf(const QTextDocument& text, const QTextImageFormat& format) {
    return text.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
}

class SmoothDrawer : public QObject, public QTextObjectInterface {
  public:
    using QObject::QObject;

    // How the layout asks for the interface.
    void* qt_metacast(const char* name) override {
        if (qstrcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0)
            return static_cast<QTextObjectInterface*>(this);
        return QObject::qt_metacast(name);
    }

    QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override {
        const QTextImageFormat picture = format.toImageFormat();
        return {picture.width(), picture.height()};
    }

    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* text, int,
                    const QTextFormat& format) override {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(place, ImageOf(*text, format.toImageFormat()));
    }
};

}  // namespace

std::vector<PictureInText> PicturesOf(const QTextDocument& text) {
    std::vector<PictureInText> pictures;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (!format.isValid())
                continue;
            for (int i = 0; i < part.fragment().length(); ++i)
                pictures.push_back({part.fragment().position() + i, format, ImageOf(text, format),
                                    format.name().toInt()});
        }
    }
    return pictures;
}

void InsertPicture(QTextCursor& cursor, const QImage& image, int number) {
    const QString name = QString::number(number);
    cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
    QTextImageFormat format;
    format.setName(name);
    format.setWidth(image.width() / image.devicePixelRatio());
    format.setHeight(image.height() / image.devicePixelRatio());
    cursor.beginEditBlock();
    if (!cursor.atBlockStart())
        cursor.insertBlock();
    const bool lineGoesOn = !cursor.atBlockEnd();
    cursor.insertImage(format);
    if (lineGoesOn) {
        cursor.insertBlock();
        cursor.movePosition(QTextCursor::PreviousCharacter);
    }
    cursor.endEditBlock();
}

void DrawPicturesSmoothly(QTextDocument& text) {
    text.documentLayout()->registerHandler(QTextFormat::ImageObject, new SmoothDrawer(&text));
}

}  // namespace trabeon
