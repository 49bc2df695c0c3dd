#include "shell/WindowChrome.h"

#include "controls/ClickLabel.h"
#include "controls/HandCursor.h"
#include "controls/RoundedOutline.h"

#include <QMenu>

namespace quillford {

WindowChrome::WindowChrome(QWidget& form)
    : QObject(&form),
      form_(form),
      drag_(new WindowDrag(*form.findChild<QWidget*>(QStringLiteral("lblTitleBar")))) {
    form.setMask(roundedOutline(form.size()));
    connect(drag_, &WindowDrag::menuWanted, this, &WindowChrome::showSystemMenu);
    auto* minimise = form.findChild<ClickLabel*>(QStringLiteral("lblMin"));
    auto* close = form.findChild<ClickLabel*>(QStringLiteral("lblClose"));
    connect(minimise, &ClickLabel::clicked, &form, &QWidget::showMinimized);
    connect(close, &ClickLabel::clicked, &form, &QWidget::close);
}

void WindowChrome::showSystemMenu(const QPoint& place) {
    auto* menu = new QMenu(&form_);
    menu->setObjectName(QStringLiteral("systemMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("Move"), this, &WindowChrome::StartMove);
    menu->addAction(QStringLiteral("Minimize"), &form_, &QWidget::showMinimized);
    menu->addSeparator();
    menu->addAction(QStringLiteral("Close"), &form_, &QWidget::close);
    menu->popup(place);
}

} // namespace quillford
