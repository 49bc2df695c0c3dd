#include "shell/HelpPane.h"

#include "controls/HandCursor.h"
#include "controls/Picture.h"

namespace quillford {

namespace {

/// The test is on the text of the address alone.
bool isStartPage(const QString& address) {
    return address.contains(u"index.htm");
}

} // namespace

HelpPane::HelpPane(QWidget& form, const QString& appFolder)
    : QObject(&form),
      folder_(appFolder + QStringLiteral("help/")),
      pane_(form.findChild<QWidget*>(QStringLiteral("picHelpOn"))),
      view_(form.findChild<HtmlView*>(QStringLiteral("webHelpOn"))),
      backPicture_(form.findChild<Picture*>(QStringLiteral("picHelpOnBack"))),
      backCaption_(form.findChild<QWidget*>(QStringLiteral("lblBack"))),
      backArea_(form.findChild<ClickLabel*>(QStringLiteral("lblBackClick"))),
      print_(form.findChild<Picture*>(QStringLiteral("imgHelpPrint"))),
      hand_(handCursor()) {
    view_->setFrameShape(QFrame::NoFrame);
    connect(view_, &HtmlView::pageLoaded, this, &HelpPane::pageLoaded);
    connect(backPicture_, &ClickLabel::clicked, this, &HelpPane::goBack);
    connect(backArea_, &ClickLabel::clicked, this, &HelpPane::goBack);
    connect(print_, &ClickLabel::clicked, this, &HelpPane::imgHelpPrint_Click);
}

void HelpPane::HelpOn(int tab) {
    view_->setSource(QStringLiteral("%1Section %2/index.htm").arg(folder_).arg(tab + 1));
    view_->clearHistory(); // the keys of a browser would go back into the help of another tab
}

void HelpPane::pageLoaded(const QString& address) {
    const bool start = isStartPage(address);
    backPicture_->setFile(start ? QStringLiteral("HELPBACKGRAY") : QStringLiteral("HELPBACK"));
    backCaption_->setEnabled(!start);
    for (QWidget* area : {static_cast<QWidget*>(backPicture_), static_cast<QWidget*>(backArea_)}) {
        if (start)
            area->unsetCursor();
        else
            area->setCursor(hand_);
    }
    if (start) {
        print_->setEnabled(true);
        print_->setCursor(hand_);
    }
}

void HelpPane::goBack() {
    if (!isStartPage(view_->address()))
        view_->back();
}

} // namespace quillford
