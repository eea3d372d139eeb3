// Writes the markup of a part of an Office Open XML document.
#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>
#include <initializer_list>
#include <utility>

namespace trabeon {

inline constexpr double twipsPerPoint = 20;
inline constexpr double emuPerPoint = 12700;  // English Metric Units, the measure of pictures

/// As text, rounded to a whole number.
[[nodiscard]] QString whole(double value);

class DocxXml {
  public:
    using Attributes = std::initializer_list<std::pair<const char*, QString>>;

    /// An element that is open as long as this object exists.
    class [[nodiscard]] Element {
      public:
        explicit Element(QXmlStreamWriter& xml) : xml_(xml) {}
        ~Element() { xml_.writeEndElement(); }
        Element(const Element&) = delete;
        Element& operator=(const Element&) = delete;

      private:
        QXmlStreamWriter& xml_;
    };

    /// Writes to the end of these bytes, which must outlive this object.
    explicit DocxXml(QByteArray& bytes) : xml_(&bytes) { xml_.writeStartDocument("1.0", true); }

    /// Names have their prefix: "w:p".
    Element element(const char* name, Attributes attributes = {});
    void empty(const char* name, Attributes attributes = {});
    void characters(const QString& text) { xml_.writeCharacters(text); }

  private:
    void start(const char* name, Attributes attributes);

    QXmlStreamWriter xml_;
};

}  // namespace trabeon
