#include "editors/panels/FigurePanel.h"

#include "controls/ControlArrays.h"
#include "controls/HandCursor.h"
#include "editors/panels/FrameCaption.h"
#include "editors/rules/FigureSentence.h"
#include "ui_FigurePanel.h"

#include <QFocusEvent>

namespace quillford {

namespace {

/// Shows a caption in its full width, and its star behind it.
void showCaption(QLabel& label, QWidget& star, const QString& text) {
    constexpr int GapBeforeStar = 2;
    label.setText(text);
    label.resize(label.sizeHint().width(), label.height());
    star.move(label.x() + label.width() + GapBeforeStar, star.y());
}

} // namespace

FigurePanel::FigurePanel(int figure, QWidget& view, BoundFields& bound) : QWidget(&view) {
    Ui::FigurePanel parts;
    parts.setupUi(this);
    showFrameCaption(*parts.lblFigN, figureCaption(figure));
    showCaption(*parts.lblAttachFig, *parts.imgFigureValidate, attachFigureCaption(figure));
    showCaption(*parts.lblFigureDetail, *parts.imgDetailFigValidate, figureDetailCaption(figure));
    parts.txtAttachFig->setReadOnly(true);
    // The path is shown and never typed; the keys go from the view to the two buttons.
    parts.txtAttachFig->setFocusPolicy(Qt::ClickFocus);
    parts.txtAttachFig->setAccessibleName(attachFigureCaption(figure));
    parts.cboFigureType->setAccessibleName(figureCaption(figure) + QStringLiteral(": view"));
    parts.txtFigureDetail->setAccessibleName(figureDetailCaption(figure));
    sentence_ = parts.lblFiegureType;
    type_ = parts.cboFigureType;
    typeStar_ = parts.imgFigureType;
    picture_ = parts.imgFigure;
    noFigure_ = parts.lblNoFigure;
    picture_->setScaledContents(true);
    for (myImageButton* button : {parts.imgBrowse, parts.imgRemove})
        button->setCursor(handCursor());
    parts.imgBrowse->setAccessibleName(QStringLiteral("Browse for ") + figureCaption(figure));
    parts.imgRemove->setAccessibleName(QStringLiteral("Remove ") + figureCaption(figure));
    connect(parts.imgBrowse, &myImageButton::clicked, this, &FigurePanel::imgBrowse_Click);
    connect(parts.imgRemove, &myImageButton::clicked, this, &FigurePanel::imgRemove_Click);
    imgBrowse_ = parts.imgBrowse;
    imgBrowse_->installEventFilter(this);
    nameRepeated(*this, figure);
    bound.bindAll(*this);
}

void FigurePanel::showSentence(const QString& sentence) {
    constexpr int GapBeforeStar = 8;
    sentence_->setText(sentence);
    sentence_->resize(sentence_->sizeHint().width(), sentence_->height());
    type_->move(figureTypeLeft(sentence_->x(), sentence_->width()), type_->y());
    typeStar_->move(type_->geometry().right() + GapBeforeStar, typeStar_->y());
}

void FigurePanel::showPicture(const QImage& picture, const QRect& place) {
    picture_->setGeometry(place);
    picture_->setPixmap(QPixmap::fromImage(picture));
}

bool FigurePanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == imgBrowse_ && event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            Q_EMIT browseReachedByTab(*imgBrowse_);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quillford
