#include "toolkit/pages/pictures_in_text.h"

#include <QAbstractTextDocumentLayout>
#include <QCache>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QUrl>

#include "toolkit/outside/picture_file.h"

namespace trabeon {

namespace {

constexpr qsizetype CacheBytes = 64 << 20;

QByteArray PngIn(const QTextDocument& text, const QTextImageFormat& format) {
    return text.resource(QTextDocument::ImageResource, QUrl(format.name())).toByteArray();
}

// Draws each picture with as many dots as the device has for it. Keeps the pictures that it scaled
// down for the screen.
class SmoothDrawer : public QObject, public QTextObjectInterface {
  public:
    using QObject::QObject;

    // The layout asks for the interface with this.
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
        const QTransform toDots = painter->deviceTransform();
        const QRect dots = toDots.mapRect(place).toRect();
        const QImage image = Scaled(*text, format.toImageFormat(), dots.size());
        const bool fits = image.size() == dots.size();
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawImage(fits ? toDots.inverted().mapRect(QRectF(dots)) : place, image);
    }

  private:
    // Scales down only: if the device has more dots, the picture keeps its own.
    QImage Scaled(const QTextDocument& text, const QTextImageFormat& format, const QSize& size) {
        const QString key =
            QString("%1 %2 %3").arg(format.name()).arg(size.width()).arg(size.height());
        if (const QImage* known = scaled_.object(key))
            return *known;
        QImage whole = QImage::fromData(PngIn(text, format));
        if (size.width() >= whole.width() || size.height() >= whole.height())
            return whole;
        auto made = whole.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaled_.insert(key, new QImage(made), made.sizeInBytes());
        return made;
    }

    QCache<QString, QImage> scaled_{CacheBytes};
};

QTextImageFormat FormatOf(const QString& name, const QSizeF& size) {
    QTextImageFormat format;
    format.setName(name);
    format.setWidth(size.width());
    format.setHeight(size.height());
    return format;
}

}  // namespace

PictureInText PictureFrom(const QImage& image, int number) {
    return {PngOf(image), QSizeF(image.size()) / image.devicePixelRatio(), number};
}

QImage ImageOf(const PictureInText& picture) {
    QImage image = QImage::fromData(picture.png);
    SetRatio(image, image.width() / picture.size.width());
    return image;
}

std::vector<PictureInText> PicturesOf(const QTextDocument& text) {
    std::vector<PictureInText> pictures;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (!format.isValid())
                continue;
            for (int i = 0; i < part.fragment().length(); ++i)
                pictures.push_back({PngIn(text, format),
                                    {format.width(), format.height()},
                                    format.name().toInt(),
                                    part.fragment().position() + i});
        }
    }
    return pictures;
}

void InsertPicture(QTextCursor& cursor, const PictureInText& picture) {
    const QString name = QString::number(picture.number);
    cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), picture.png);
    cursor.beginEditBlock();
    if (!cursor.atBlockStart())
        cursor.insertBlock();
    const bool lineGoesOn = !cursor.atBlockEnd();
    cursor.insertImage(FormatOf(name, picture.size));
    if (lineGoesOn) {
        cursor.insertBlock();
        cursor.movePosition(QTextCursor::PreviousCharacter);
    }
    cursor.endEditBlock();
}

void ResizePicture(QTextDocument& text, int position, const QSizeF& size) {
    QTextCursor cursor(&text);
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    cursor.setCharFormat(FormatOf(cursor.charFormat().toImageFormat().name(), size));
}

void DrawPicturesSmoothly(QTextDocument& text) {
    text.documentLayout()->registerHandler(QTextFormat::ImageObject, new SmoothDrawer(&text));
}

}  // namespace trabeon
