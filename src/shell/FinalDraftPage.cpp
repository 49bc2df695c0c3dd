#include "shell/FinalDraftPage.h"

#include "controls/ControlArrays.h"
#include "controls/HtmlView.h"
#include "ui_FinalDraftPage.h"

namespace quillford {

namespace {

constexpr int BlankHeight = 428;
constexpr int PreviewHeight = 385;
constexpr int GapUnderAdvice = 5;

} // namespace

FinalDraftPage::FinalDraftPage(QWidget& panel, FinalDraftEntry& entry, PictureLoader& pictures)
    : entry_(entry), pictures_(pictures) {
    const auto designed = fillPanel<Ui::FinalDraftPage>(panel);
    preview_ = designed.webPreview;
    advice_ = designed.lblPopTab9;
    preview_->setFrameShape(QFrame::NoFrame);
    preview_->lock();
    advice_->setTextFormat(Qt::PlainText);
    showBlankPreview();
}

void FinalDraftPage::entered() {
    advice_->resize(preview_->width(), advice_->height());
}

void FinalDraftPage::switched() {
    const QString missing = entry_.switched(build_);
    if (!missing.isEmpty())
        preview_->showHtml(missing, pictures_);
}

void FinalDraftPage::showPreview(const QString& html) {
    preview_->showBlank();
    advice_->show();
    advice_->resize(preview_->width(), advice_->height());
    preview_->setGeometry(preview_->x(), advice_->height() + GapUnderAdvice, preview_->width(),
                          PreviewHeight);
    preview_->showHtml(html, pictures_);
}

void FinalDraftPage::showBlankPreview() {
    preview_->showBlank();
    advice_->hide();
    preview_->setGeometry(preview_->x(), 1, preview_->width(), BlankHeight);
}

} // namespace quillford
