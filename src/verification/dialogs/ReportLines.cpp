#include "verification/dialogs/ReportLines.h"

#include "base/Text.h"
#include "core/text/LineBreaks.h"

namespace quillford {

namespace {

constexpr int Indent = 40;
constexpr int HyphenWidth = 10;
constexpr int HeadLeft = 6;

class Setter {
public:
    Setter(Report& report, int width, const TextMeasure& measure)
        : report_(report), width_(width), measure_(measure) {}

    void head(const QString& name, bool isVerified) {
        const QString verdict =
            isVerified ? QStringLiteral(" (Verified)") : QStringLiteral(" (Possible Errors)");
        line(HeadLeft, name + verdict, TextWeight::Bold, std::nullopt);
        report_.height += measure_.lineHeight();
    }

    /// A name that was read from a file may have several lines; each stands for itself.
    void names(const MissingList& list) {
        for (const MissingEntry& missing : list.entries())
            for (const QString& text : missing.text.split(QStringLiteral("\r\n")))
                entry(text, missing.cell);
    }

    /// A blank entry draws nothing.
    void entry(const QString& text, ElementCell cell) {
        const qsizetype number = report_.cells.size();
        const QStringList lines =
            wrapIntoLines(text, width_ - Indent - HyphenWidth, TextWeight::Regular, measure_);
        if (lines.isEmpty())
            return;
        report_.cells.append(cell);
        line(Indent, QStringLiteral("-"), TextWeight::Regular, number);
        for (const QString& words : lines) {
            // A line that was filled exactly leaves the blank behind it to the next one.
            line(Indent + HyphenWidth, trimBlanks(words).toString(), TextWeight::Regular, number);
            report_.height += measure_.lineHeight();
        }
    }

private:
    void line(int x, const QString& text, TextWeight weight, std::optional<qsizetype> entry) {
        report_.lines.append({x, report_.height, text, weight, entry});
    }

    Report& report_;
    int width_;
    const TextMeasure& measure_;
};

} // namespace

Report layOutReport(const MissingLists& lists, int width, const TextMeasure& measure) {
    Report report;
    Setter set(report, width, measure);
    set.head(QStringLiteral("1.   Main Elements"), lists.missingMainElements.isEmpty());
    set.names(lists.missingMainElements);
    set.head(QStringLiteral("2.   Sub-Elements"), lists.missingSubElements.isEmpty());
    set.names(lists.missingSubElements);
    set.head(QStringLiteral("3.   Reference Numerals"), lists.missingNumerals.isEmpty());
    if (!lists.missingNumerals.isEmpty())
        set.entry(QStringLiteral("Reference Numerals %1 appear to be missing.")
                      .arg(lists.missingNumerals.text()),
                  lists.missingNumerals.entries().front().cell);
    return report;
}

} // namespace quillford
