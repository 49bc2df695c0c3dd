#include "core/rules/FigureSize.h"

#include <QFileInfo>

#include <cmath>

namespace quillford {

namespace {

constexpr int MaxWidth = 660;
constexpr int MaxHeight = 810;

/// The rounding mode of a program that never sets one is half to even.
int rounded(double length) {
    return static_cast<int>(std::nearbyint(length));
}

} // namespace

QSize computeFigureSize(QSize pixels) {
    const double width = pixels.width();
    const double height = pixels.height();
    const bool tooWide = pixels.width() >= MaxWidth;
    const bool tooHigh = pixels.height() >= MaxHeight;
    const double widthAtMaxHeight = width * MaxHeight / height;

    if (!tooWide && !tooHigh)
        return pixels;
    if (!tooWide)
        return {rounded(widthAtMaxHeight), MaxWidth};
    if (!tooHigh || width >= height)
        return {MaxWidth, rounded(height * MaxWidth / width)};
    if (widthAtMaxHeight <= MaxWidth)
        return {rounded(widthAtMaxHeight), MaxHeight};
    return {MaxWidth, rounded(double{MaxWidth} * MaxHeight / widthAtMaxHeight)};
}

QString figureSizeText(QSize pixels) {
    const QSize size = computeFigureSize(pixels);
    return QStringLiteral("%1, %2").arg(size.width()).arg(size.height());
}

QString figurePath(const ProjectFields& fields, int index) {
    const Field& attached = fields.txtAttachFig(index);
    if (attached.isFilled() && QFileInfo(attached.text()).isFile())
        return attached.text();
    return fields.figureState(index).workingCopy;
}

void measureFigure(ProjectFields& fields, int index, const QString& path, PictureReader& pictures) {
    const auto pixels = pictures.pixelSize(path);
    fields.figureState(index).sizeText = pixels ? figureSizeText(*pixels) : QString();
}

void measureFigures(ProjectFields& fields, PictureReader& pictures) {
    for (int i = 0; i < fields.panelCount(FieldGroup::Figures); ++i)
        if (fields.txtAttachFig(i).isFilled())
            measureFigure(fields, i, figurePath(fields, i), pictures);
}

} // namespace quillford
