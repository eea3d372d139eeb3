#include "output/docx_writer.h"

#include <quazip.h>
#include <quazipfile.h>

#include <QBuffer>
#include <QXmlStreamWriter>

#include "output/docx_body.h"

namespace trabeon {
namespace {

const QString package = "http://schemas.openxmlformats.org/package/2006/";
const QString office = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
const QString mainType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml";

QByteArray contentTypes() {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument("1.0", true);
    xml.writeStartElement("Types");
    xml.writeAttribute("xmlns", package + "content-types");
    for (const auto& [extension, type] :
         {std::pair{"rels", "application/vnd.openxmlformats-package.relationships+xml"},
          {"png", "image/png"}}) {
        xml.writeEmptyElement("Default");
        xml.writeAttribute("Extension", extension);
        xml.writeAttribute("ContentType", type);
    }
    xml.writeEmptyElement("Override");
    xml.writeAttribute("PartName", "/word/document.xml");
    xml.writeAttribute("ContentType", mainType);
    xml.writeEndDocument();
    return bytes;
}

struct Relation {
    QString id, type, target;
};

QByteArray relations(const std::vector<Relation>& relations) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument("1.0", true);
    xml.writeStartElement("Relationships");
    xml.writeAttribute("xmlns", package + "relationships");
    for (const auto& [id, type, target] : relations) {
        xml.writeEmptyElement("Relationship");
        xml.writeAttribute("Id", id);
        xml.writeAttribute("Type", office + type);
        xml.writeAttribute("Target", target);
    }
    xml.writeEndDocument();
    return bytes;
}

QString pictureName(std::size_t number) {
    return "media/picture" + QString::number(number) + ".png";
}

/// Writes a zip file in memory.
class Zip {
  public:
    Zip() : zip_(&buffer_), good_(zip_.open(QuaZip::mdCreate)) {}

    void add(const QString& name, const QByteArray& content) {
        QuaZipFile file(&zip_);
        QuaZipNewInfo info(name);
        info.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                            QFile::ReadOther);
        good_ =
            good_ && file.open(QIODevice::WriteOnly, info) && file.write(content) == content.size();
        file.close();
        good_ = good_ && file.getZipError() == ZIP_OK;
    }

    Outcome<std::string> bytes() {
        zip_.close();
        if (!good_ || zip_.getZipError() != ZIP_OK)
            return Refusal{"The document could not be packed into a file."};
        return buffer_.data().toStdString();
    }

  private:
    QBuffer buffer_;
    QuaZip zip_;
    bool good_;
};

}  // namespace

Outcome<std::string> docxBytes(const Document& document) {
    Zip zip;
    zip.add("[Content_Types].xml", contentTypes());
    zip.add("_rels/.rels", relations({{"document", "officeDocument", "word/document.xml"}}));
    zip.add("word/document.xml", docxBody(document));
    std::vector<Relation> related;
    const auto pictures = picturesOf(document);
    for (std::size_t number = 1; number <= pictures.size(); ++number) {
        const auto& png = pictures[number - 1]->png;
        zip.add("word/" + pictureName(number),
                QByteArray::fromRawData(png.data(), static_cast<qsizetype>(png.size())));
        related.push_back({"picture" + QString::number(number), "image", pictureName(number)});
    }
    zip.add("word/_rels/document.xml.rels", relations(related));
    return zip.bytes();
}

}  // namespace trabeon
