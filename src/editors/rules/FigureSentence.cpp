#include "editors/rules/FigureSentence.h"

#include "base/Text.h"
#include "draft/language/Articles.h"

#include <algorithm>
#include <cmath>

namespace quillford {

namespace {

/// The rounding mode of a program that never sets one is half to even.
int scaled(int length, int other) {
    return static_cast<int>(std::nearbyint(double{FigureBoxSide} * length / other));
}

QSize previewSize(QSize pixels) {
    const int width = pixels.width();
    const int height = pixels.height();
    if (std::max(width, height) <= FigureBoxSide)
        return pixels;
    if (width >= height)
        return {FigureBoxSide, scaled(height, width)};
    return {scaled(width, height), FigureBoxSide};
}

} // namespace

QString figureCaption(int figure) {
    return QStringLiteral("Figure %1").arg(figure + 1);
}

QString attachFigureCaption(int figure) {
    return QStringLiteral("Attach Figure %1 Image File").arg(figure + 1);
}

QString figureDetailCaption(int figure) {
    return QStringLiteral("Detailed Description of Figure %1").arg(figure + 1);
}

QString figureSentence(int figure, const QString& view) {
    return figureCaption(figure) + QStringLiteral(" is ") + isVowelInitial(trimBlanks(view));
}

int figureTypeLeft(int labelLeft, int labelWidth) {
    constexpr int Gap = 6;
    return labelLeft + labelWidth + Gap;
}

QRect figurePreviewPlace(QSize pixels) {
    const QSize size = previewSize(pixels);
    return {QPoint((FigureBoxSide - size.width()) / 2, (FigureBoxSide - size.height()) / 2), size};
}

} // namespace quillford
