#include "verification/engine/ErrorReportComposer.h"

#include "draft/compose/TemplateFile.h"
#include "draft/compose/Trapped.h"

namespace quillford {

namespace {

const QString PageBlock = QStringLiteral("ERRORREPORT");
const QString Verified = QStringLiteral("Verified");
const QString PossibleErrors = QStringLiteral("Possible Errors");

/// The marks of one of the two lists of names.
struct NameMarks {
    QString state;
    QString block;
    QString target;
    QString entry;
};

/// An empty list renders its block once, before the entry's mark has an item: the mark then stands
/// in the rendered block until the page itself is rendered, and the empty item takes it out there.
void fillNames(HTMLTemplate& page, const MissingList& list, const NameMarks& marks) {
    page.SetBlock(PageBlock, marks.block, marks.target);
    if (list.isEmpty()) {
        page.Parse(marks.target, marks.block, {});
        page.SetItem(marks.state, Verified);
        page.SetItem(marks.entry, {});
        return;
    }
    page.SetItem(marks.state, PossibleErrors);
    for (const QString& line : list.text().split(QStringLiteral("\r\n"))) {
        page.SetItem(marks.entry, QStringLiteral("- ") + line);
        page.Parse(marks.target, marks.block, QStringLiteral(" "));
    }
}

} // namespace

ErrorReportComposer::ErrorReportComposer(const MissingLists& lists, Folders& folders,
                                         UserPrompts& prompts)
    : lists_(lists), folders_(folders), prompts_(prompts) {}

bool ErrorReportComposer::ExportToErrorReport(QString& html) {
    const QString out = QStringLiteral("out");
    return trapFailures(failure_, [&] {
        HTMLTemplate page;
        const QString file = writeTemplateFile(PageBlock, folders_);
        if (!loadTemplateFile(page, PageBlock, file, prompts_))
            return false;
        fillNames(page, lists_.missingMainElements,
                  {QStringLiteral("ErrorState-Main"),
                   QStringLiteral("Disclosing Error Main Member"), QStringLiteral("DEMM"),
                   QStringLiteral("- Error Main Member")});
        fillNames(page, lists_.missingSubElements,
                  {QStringLiteral("ErrorState-Sub"), QStringLiteral("Disclosing Error Sub Member"),
                   QStringLiteral("DESM"), QStringLiteral("- Error Sub Member")});
        fillNumerals(page);
        page.Parse(out, PageBlock, QStringLiteral("False"));
        html = page.p(out);
        return true;
    });
}

void ErrorReportComposer::fillNumerals(HTMLTemplate& page) const {
    const MissingList& list = lists_.missingNumerals;
    const QString entry = list.isEmpty() ? QString()
                                         : QStringLiteral("- Reference Numerals ") + list.text() +
                                               QStringLiteral(" appear to be missing.");
    page.SetItem(QStringLiteral("ErrorState-Reference"),
                 list.isEmpty() ? Verified : PossibleErrors);
    page.SetItem(QStringLiteral("- Reference Num"), entry);
}

} // namespace quillford
