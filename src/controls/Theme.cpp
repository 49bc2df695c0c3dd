#include "controls/Theme.h"

#include "controls/LookStyle.h"

#include <QApplication>
#include <QLabel>
#include <QPalette>
#include <QTextDocument>
#include <QWidget>

#include <algorithm>

namespace quillford::theme {

namespace {

QFont sans(int pixels, QFont::Weight weight) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

/// All roles are set together: a dark desktop would otherwise give white text on white fields.
QPalette lightPalette() {
    QPalette palette(White, Window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText})
        palette.setColor(role, Text);
    palette.setColor(QPalette::Base, White);
    palette.setColor(QPalette::AlternateBase, Window);
    palette.setColor(QPalette::ToolTipBase, White);
    palette.setColor(QPalette::Button, White);
    palette.setColor(QPalette::Highlight, Heading);
    palette.setColor(QPalette::HighlightedText, White);
    palette.setColor(QPalette::Link, Heading);
    palette.setColor(QPalette::LinkVisited, Heading);
    palette.setColor(QPalette::PlaceholderText, MutedText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, MutedText);
    palette.setColor(QPalette::Disabled, QPalette::Base, Window);
    return palette;
}

} // namespace

QFont captionFont() {
    return sans(CaptionPixels, QFont::Normal);
}

QFont headingFont() {
    return sans(CaptionPixels + 2, QFont::Bold);
}

QFont fieldFont() {
    return sans(FieldPixels, QFont::Normal);
}

void makeHeading(QLabel& label) {
    label.setFont(headingFont());
    colour(label, Heading);
}

void makeHeadings(QWidget& form, std::initializer_list<QStringView> names) {
    for (QLabel* label : form.findChildren<QLabel*>()) {
        const QString name = label->objectName().section(u'(', 0, 0);
        if (std::find(names.begin(), names.end(), name) != names.end())
            makeHeading(*label);
    }
}

void setPlainToolTip(QWidget& control, const QString& text) {
    control.setToolTip(Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
}

void colour(QWidget& widget, const QColor& colour) {
    QPalette colours = widget.palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        colours.setColor(group, QPalette::WindowText, colour);
    widget.setPalette(colours);
}

void apply(QApplication& application) {
    application.setStyle(new LookStyle);
    application.setPalette(lightPalette());
    application.setFont(captionFont());
    // The small sans of the pages that the program writes for its own preview.
    QFont::insertSubstitution(QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"));
    for (const char* field : {"QLineEdit", "QPlainTextEdit", "QComboBox", "QAbstractItemView"})
        QApplication::setFont(fieldFont(), field);
}

void setTint(QWidget& field, bool on) {
    QPalette own;
    if (on)
        own.setColor(QPalette::Base, Tint);
    field.setPalette(own);
}

} // namespace quillford::theme
