#include "output/docx_xml.h"

#include <cmath>

namespace trabeon {

QString whole(double value) {
    return QString::number(std::llround(value));
}

DocxXml::Element DocxXml::element(const char* name, Attributes attributes) {
    start(name, attributes);
    return Element(xml_);
}

void DocxXml::empty(const char* name, Attributes attributes) {
    start(name, attributes);
    xml_.writeEndElement();
}

void DocxXml::start(const char* name, Attributes attributes) {
    xml_.writeStartElement(name);
    for (const auto& [key, value] : attributes)
        xml_.writeAttribute(key, value);
}

}  // namespace trabeon
