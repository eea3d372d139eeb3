#include "toolkit/look/look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <array>

namespace trabeon {

namespace {

struct Substitute {
    const char* name;
    const char* family;
};

constexpr std::array<Substitute, 7> Substitutes{{{"Times New Roman", "Liberation Serif"},
                                                 {"Arial", "Liberation Sans"},
                                                 {"Arial Black", "Liberation Sans"},
                                                 {"Arial Narrow", "Liberation Sans Narrow"},
                                                 {"Courier", "Liberation Mono"},
                                                 {"Courier New", "Liberation Mono"},
                                                 {"Terminal", "Liberation Mono"}}};

QPalette ProgramPalette() {
    QPalette palette(QColor(0xf0f0f0));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf4f7fa));
    palette.setColor(QPalette::Dark, QColor(0x8a97a6));  // the area behind the forms
    palette.setColor(QPalette::Highlight, QColor(HighlightColour));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(0x1a1a1a));
        palette.setColor(QPalette::Disabled, role, QColor(0x8a8a8a));
    }
    // The selected row of a list can still be seen while another control has the focus.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x5d93c2));
    palette.setColor(QPalette::ToolTipBase, QColor(0xffffe8));
    palette.setColor(QPalette::ToolTipText, QColor(0x1a1a1a));
    return palette;
}

}  // namespace

void ApplyLook() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(FontNamed("Arial", 9, false));
}

QFont FontNamed(const std::string& name, double points, bool bold) {
    QString family = QString::fromStdString(name);
    for (const Substitute& substitute : Substitutes)
        if (name == substitute.name)
            family = substitute.family;
    QFont font(family);
    font.setPointSizeF(points);
    font.setBold(bold);
    if (name == "Arial Black")
        font.setWeight(QFont::Black);
    if (family == "Liberation Mono")
        font.setStyleHint(QFont::TypeWriter);
    return font;
}

}  // namespace trabeon
