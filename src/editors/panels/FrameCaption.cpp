#include "editors/panels/FrameCaption.h"

#include "controls/Theme.h"
#include "editors/rules/ElementCaptions.h"

namespace quillford {

void showFrameCaption(QLabel& label, const QString& text) {
    QFont bold = theme::captionFont();
    bold.setBold(true);
    label.setFont(bold);
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, theme::Heading);
    colours.setColor(QPalette::Window, theme::White);
    label.setPalette(colours);
    label.setAutoFillBackground(true);
    label.setAlignment(Qt::AlignCenter);
    label.setText(text);
    label.setGeometry(FrameCaptionLeft, label.y(),
                      label.fontMetrics().horizontalAdvance(text) + FrameCaptionExtraWidth,
                      label.height());
}

} // namespace quillford
