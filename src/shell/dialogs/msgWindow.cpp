#include "shell/dialogs/msgWindow.h"

#include "controls/ControlArrays.h"
#include "ui_msgWindow.h"

#include <QKeyEvent>
#include <QTextLayout>

namespace quillford {

namespace {

const auto IncompleteText = QStringLiteral(
    "Certain required fields have not been completed in this section. You will not be able to "
    "preview your final draft until all required fields are completed. Incomplete sections will be "
    "marked with      until they have been completed. Do you wish to continue?");

const auto DrawingsText = QStringLiteral(
    "You will need to prepare detailed drawings for your invention showing your invention from "
    "different views (e.g. front view, side view, perspective view, rear view, exploded view, "
    "etc.). It is important to show every important detail of your invention from various "
    "different views to provide a reader of your application a solid understanding of what your "
    "invention is. The drawings should also emphasize the unique features of your invention. The "
    "drawings can be hand drawn, but it is recommended you use a CAD software program. We have a "
    "listing of free CAD software programs under the Resources section.");

const auto ExportText = QStringLiteral(
    "If you would like to edit your provisional patent application prior to submitting to the "
    "USPTO, you need to edit it with Microsoft Word or other editor.  Please select the file "
    "format that you would like to export your provisional patent application to.");

constexpr int GapUnderText = 50;
constexpr int GapOverFormats = 18;
constexpr int BottomMargin = 19;

} // namespace

msgWindow::msgWindow(QWidget* parent) : FormDialog(parent), ui_(new Ui::msgWindow) {
    ui_->setupUi(this);
    nameControlArrays(*this);
    ui_->lblShowMessage->setTextFormat(Qt::PlainText);
    const auto ends = [this](myImageButton* button, int result) {
        connect(button, &myImageButton::clicked, this, [this, result] { done(result); });
    };
    for (myImageButton* button : {ui_->cmdYes, ui_->cmdOK, ui_->cmdExport})
        ends(button, Accepted);
    for (myImageButton* button : {ui_->cmdNo, ui_->cmdCancel})
        ends(button, Rejected);
}

msgWindow::~msgWindow() = default;

bool msgWindow::showMsgWindow(const UserPrompts::NotAgainChanged& changed) {
    setTitle(QStringLiteral("Section Not Complete"));
    ui_->lblShowMessage->setText(IncompleteText);
    arrange({ui_->cmdYes, ui_->cmdNo, ui_->chkShowMsg, ui_->imgMsgMark});
    placeMark();
    tellChanges(changed);
    ui_->cmdYes->setFocus();
    return exec() == Accepted;
}

void msgWindow::showTab4MsgWindow(const UserPrompts::NotAgainChanged& changed) {
    setTitle(QStringLiteral("Drawings - Important Information!"));
    ui_->lblShowMessage->setText(DrawingsText);
    arrange({ui_->cmdOK, ui_->chkShowMsg});
    const QLabel& text = *ui_->lblShowMessage;
    moveButtonsTo(text.y() + text.heightForWidth(text.width()) + GapUnderText);
    tellChanges(changed);
    ui_->cmdOK->setFocus();
    exec();
}

UserPrompts::ExportChoice msgWindow::showExportToFileMsgWindow(bool wordInstalled) {
    setTitle(QStringLiteral("Export to File"));
    ui_->lblShowMessage->setText(ExportText);
    arrange({ui_->cmdExport, ui_->cmdCancel, ui_->optFormat_0, ui_->optFormat_1,
             ui_->lblExportToFileFormat});
    placeFormats();
    ui_->optFormat_0->setEnabled(wordInstalled);
    (wordInstalled ? ui_->optFormat_0 : ui_->optFormat_1)->setChecked(true);
    ui_->cmdExport->setFocus();
    if (exec() != Accepted)
        return UserPrompts::ExportChoice::Cancel;
    return ui_->optFormat_0->isChecked() ? UserPrompts::ExportChoice::Word
                                         : UserPrompts::ExportChoice::Html;
}

void msgWindow::keyPressEvent(QKeyEvent* event) {
    const bool asks = !ui_->cmdYes->isHidden();
    if (asks && event->key() == Qt::Key_Y)
        return accept();
    if (asks && event->key() == Qt::Key_N)
        return reject();
    FormDialog::keyPressEvent(event);
}

void msgWindow::arrange(std::initializer_list<QWidget*> shown) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             ui_->cmdYes, ui_->cmdNo, ui_->cmdOK, ui_->cmdExport, ui_->cmdCancel, ui_->chkShowMsg,
             ui_->imgMsgMark, ui_->optFormat_0, ui_->optFormat_1, ui_->lblExportToFileFormat})
        control->setVisible(std::find(shown.begin(), shown.end(), control) != shown.end());
}

void msgWindow::tellChanges(const UserPrompts::NotAgainChanged& changed) {
    connect(ui_->chkShowMsg, &QCheckBox::toggled, this, [changed](bool on) { changed(on); });
}

/// The text leaves a gap of blanks for the mark of an incomplete section, wherever it wraps.
void msgWindow::placeMark() {
    const QLabel& label = *ui_->lblShowMessage;
    const qsizetype gap = label.text().indexOf(QStringLiteral("      "));
    QTextLayout layout(label.text(), label.font());
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label.width());
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    const QTextLine line = layout.lineForTextPosition(static_cast<int>(gap));
    const qreal left = line.cursorToX(static_cast<int>(gap)) + 2;
    ui_->imgMsgMark->move(label.pos() + QPoint(qRound(left), qRound(line.y())));
}

/// The label of the formats and their buttons stand under the text.
void msgWindow::placeFormats() {
    QLabel& text = *ui_->lblShowMessage;
    text.resize(text.width(), text.heightForWidth(text.width()));
    const int top = text.y() + text.height() + GapOverFormats;
    const int shift = top - ui_->optFormat_0->y();
    for (QWidget* control : std::initializer_list<QWidget*>{ui_->lblExportToFileFormat,
                                                            ui_->optFormat_0, ui_->optFormat_1})
        control->move(control->x(), control->y() + shift);
}

void msgWindow::moveButtonsTo(int top) {
    ui_->cmdOK->move(ui_->cmdOK->x(), top);
    ui_->lblShowMessage->resize(ui_->lblShowMessage->width(), top - ui_->lblShowMessage->y());
    ui_->chkShowMsg->move(ui_->chkShowMsg->x(), top + 5);
    resize(width(), top + ui_->cmdOK->height() + BottomMargin);
}

} // namespace quillford
