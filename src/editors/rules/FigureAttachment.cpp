#include "editors/rules/FigureAttachment.h"

#include "core/fields/FieldLists.h"
#include "core/rules/FigureSize.h"
#include "editors/rules/FigureFile.h"
#include "editors/rules/FigureSentence.h"

#include <QFileInfo>

namespace quillford {

FigureAttachment::FigureAttachment(ProjectFields& fields, PictureReader& pictures,
                                   UserPrompts& prompts, FigureView& view)
    : fields_(fields), pictures_(pictures), prompts_(prompts), view_(view) {}

void FigureAttachment::imgBrowse_Click(int figure) {
    Field& path = fields_.txtAttachFig(figure);
    const QString chosen =
        prompts_.chooseFileToOpen({QString(), path.text(), QStringLiteral("Picture File"),
                                   QStringLiteral("*.jpg;*.bmp;*.gif")});
    const QString fileTitle = QFileInfo(chosen).fileName();
    if (fileTitle.isEmpty())
        return;
    path.setText(QString());
    const QString extension = figureExtension(fileTitle);
    if (extension.isEmpty())
        return;
    if (!isFigureExtension(extension))
        refuseType();
    else if (QFileInfo(chosen).isFile())
        isFigureFileSizeOk(chosen) ? attach(figure, chosen) : refuseSize(figure);
}

void FigureAttachment::imgRemove_Click(int figure) {
    if (fields_.txtAttachFig(figure).text().isEmpty())
        tell(QStringLiteral("Information"),
             QStringLiteral("You have not Attached the figure %1 .").arg(figure + 1));
    else
        detach(figure);
}

void FigureAttachment::cboFiguresNum_Click() {
    const bool hasFigures = fields_.cboFiguresNum.number() != 0;
    view_.showFigures(hasFigures);
    if (hasFigures)
        return;
    detach(0);
    fields_.txtFigureDetail(0).setText(QString());
}

void FigureAttachment::cboFigureType_Click(int figure) {
    if (isViewHeading(fields_.cboFigureType(figure).text()))
        prompts_.showMessage(
            UserPrompts::Icon::None, QStringLiteral("Not a Proper Description of Figure"),
            QStringLiteral("The selection you have made is only a title within the proposed "
                           "drawing descriptions of this dropdown menu.  Please select a different "
                           "description or type a description for this figure."));
}

void FigureAttachment::showWorkingCopy(int figure) {
    view_.showNoFigure(figure, false);
    fitFigurePreview(figure, fields_.figureState(figure).workingCopy);
}

void FigureAttachment::fitFigurePreview(int figure, const QString& path) {
    const auto pixels = pictures_.pixelSize(path);
    if (!pixels)
        return;
    fields_.figureState(figure).sizeText = figureSizeText(*pixels);
    view_.showPicture(figure, path, figurePreviewPlace(*pixels));
}

void FigureAttachment::attach(int figure, const QString& path) {
    fields_.txtAttachFig(figure).setText(path);
    view_.showNoFigure(figure, false);
    fitFigurePreview(figure, path);
}

/// The preview stays as it is; only the path has gone.
void FigureAttachment::refuseType() {
    tell(
        QStringLiteral("Incorrect File Type"),
        QStringLiteral("The file you attempted to import into Quillford is not in a proper format. "
                       " Please import a different file or change your file to an acceptable "
                       "format (e.g. .jpg, gif, bmp, TIFF)."));
}

void FigureAttachment::refuseSize(int figure) {
    tell(QStringLiteral("Information"), QStringLiteral("Figure size is greater than 1024k."));
    detach(figure);
}

/// The values beside the field keep what they held.
void FigureAttachment::detach(int figure) {
    fields_.txtAttachFig(figure).setText(QString());
    view_.showNoFigure(figure, true);
    view_.clearPicture(figure);
}

void FigureAttachment::tell(const QString& title, const QString& text) {
    prompts_.showMessage(UserPrompts::Icon::Information, title, text);
}

} // namespace quillford
