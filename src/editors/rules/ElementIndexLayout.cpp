#include "editors/rules/ElementIndexLayout.h"

#include "core/rules/ReferenceNumerals.h"
#include "core/text/LineBreaks.h"
#include "draft/language/Capitals.h"

#include <algorithm>
#include <utility>

namespace quillford {

namespace {

/// Prints entries below each other, and lets the surface grow with them.
class IndexPrinter {
public:
    explicit IndexPrinter(const TextMeasure& measure) : measure_(measure) {}

    void addGap() {
        constexpr int Gap = 5;
        y_ += Gap;
        index_.height += Gap;
    }

    /// The number stands beside the first line of the text.
    void PrintIndexEntry(const QString& number, const Field& entry, TextWeight weight) {
        constexpr int NumberLeft = 6;
        constexpr int Indent = 30;
        constexpr int RightMargin = 3;
        if (!entry.isFilled())
            return;
        index_.lines.append({NumberLeft, y_, number, weight});
        const QString text = properCaseIndexEntry(entry.text());
        const QStringList lines =
            wrapIntoLines(text, ElementIndexWidth - Indent - RightMargin, weight, measure_);
        for (const QString& line : lines) {
            index_.lines.append({Indent, y_, line, weight});
            y_ += measure_.lineHeight();
            index_.height += measure_.lineHeight();
        }
    }

    /// The drawing; gaps alone are none.
    [[nodiscard]] ElementIndex result() && {
        return index_.lines.isEmpty() ? ElementIndex() : std::move(index_);
    }

private:
    const TextMeasure& measure_;
    ElementIndex index_;
    int y_ = 0;
};

void printSubElements(IndexPrinter& printer, const ProjectFields& fields, int element) {
    for (int part = 1; part <= SubElementCount; ++part)
        printer.PrintIndexEntry(referenceLabel(element, part),
                                fields.at(subElementField(part), element), TextWeight::Regular);
}

} // namespace

ElementIndex layOutElementIndex(const ProjectFields& fields, const TextMeasure& measure) {
    IndexPrinter printer(measure);
    const int count =
        std::min(fields.cboMainElementNum.number(), fields.panelCount(FieldGroup::MainElements));
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            printer.addGap();
        printer.PrintIndexEntry(referenceLabel(i), fields.txtElementName(i), TextWeight::Bold);
        if (i < fields.panelCount(FieldGroup::SubElements))
            printSubElements(printer, fields, i);
    }
    return std::move(printer).result();
}

ScrollBarState elementIndexBar(int surfaceHeight, int viewHeight) {
    constexpr int Margin = 10;
    const int maximum = surfaceHeight - viewHeight + Margin;
    if (maximum <= 0)
        return {false, 0, 0, viewHeight};
    return {true, 0, maximum, viewHeight};
}

} // namespace quillford
