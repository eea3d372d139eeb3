#include "toolkit/look/shown_text.h"

#include <QByteArrayView>

namespace trabeon {

QString ShownText(std::string_view text) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

}  // namespace trabeon
