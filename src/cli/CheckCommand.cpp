#include "cli/CheckCommand.h"

#include "cli/CheckedSections.h"
#include "cli/CliPrompts.h"
#include "cli/CliVerification.h"
#include "persistence/project/JsonText.h"
#include "verification/engine/ElementCell.h"

namespace quillford {

namespace {

const QString JsonOption = QStringLiteral("json");

/// What a check finds out.
struct Findings {
    QStringList verdicts; ///< on the sections 1 to 8
    bool complete = false;
    int cells = 0; ///< filled cells of the element tables
    VerificationState verification;
};

Findings findingsIn(const Project& project, UserPrompts& prompts) {
    const CheckedSections sections(project, prompts);
    Findings findings;
    for (int tab = 0; tab < SectionRules::SectionCount; ++tab)
        findings.verdicts.append(sections.rules().tag(tab));
    findings.complete = sections.rules().incompleteSections().isEmpty();
    findings.cells = getElementsEnterNum(project.fields);
    findings.verification = verifyProject(project.fields);
    return findings;
}

QString sectionObject(int number, const QString& verdict) {
    return QStringLiteral("{\"number\": %1, \"verdict\": %2}")
        .arg(QString::number(number), jsonString(verdict));
}

QString entryTexts(const MissingList& list) {
    QStringList texts;
    for (const MissingEntry& entry : list.entries())
        texts.append(jsonString(entry.text));
    return jsonList(texts);
}

QByteArray jsonOf(const Findings& findings) {
    QStringList sections;
    for (const QString& verdict : findings.verdicts)
        sections.append(sectionObject(static_cast<int>(sections.size()) + 1, verdict));
    const MissingLists& lists = findings.verification.lists;
    return jsonDocument({
        jsonEntry(u"sections", jsonList(sections)),
        jsonEntry(u"complete", jsonFlag(findings.complete)),
        jsonEntry(u"verifyErrorCount", QString::number(findings.verification.verifyErrorCount)),
        jsonEntry(u"missingMainElements", entryTexts(lists.missingMainElements)),
        jsonEntry(u"missingSubElements", entryTexts(lists.missingSubElements)),
        jsonEntry(u"missingNumerals", entryTexts(lists.missingNumerals)),
    });
}

QString summary(const Findings& findings) {
    const int misses = findings.verification.verifyErrorCount;
    if (findings.cells == 0)
        return QStringLiteral("nothing to verify");
    if (misses == 0)
        return QStringLiteral("nothing is missing");
    return QStringLiteral("%1 missing from the text").arg(misses);
}

/// The names stand in quotation marks, so that two blanks in a row can be seen and no control
/// character reaches a terminal.
QString nameLines(const QString& kind, const MissingList& list) {
    QString lines;
    for (const MissingEntry& entry : list.entries())
        lines +=
            QStringLiteral("  %1 %2: %3\n").arg(kind, entry.cell.numeral(), jsonString(entry.text));
    return lines;
}

QByteArray linesOf(const Findings& findings) {
    QString lines;
    for (int i = 0; i < findings.verdicts.size(); ++i)
        lines +=
            QStringLiteral("Section %1: %2\n").arg(QString::number(i + 1), findings.verdicts[i]);
    lines += QStringLiteral("Verification: %1\n").arg(summary(findings));
    const MissingLists& lists = findings.verification.lists;
    lines += nameLines(QStringLiteral("Main Element"), lists.missingMainElements);
    lines += nameLines(QStringLiteral("Sub-Element"), lists.missingSubElements);
    if (!lists.missingNumerals.isEmpty())
        lines += QStringLiteral("  Reference Numerals %1\n").arg(lists.missingNumerals.text());
    return lines.toUtf8();
}

} // namespace

void CheckCommand::addOptions(QCommandLineParser& parser) const {
    parser.addOption(QCommandLineOption(JsonOption));
}

void CheckCommand::checkOptions(const QCommandLineParser&, const QString&) const {}

ExitStatus CheckCommand::executeOn(const QCommandLineParser& parser, Project& project,
                                   const ReadReport&, CliContext& context) {
    CliPrompts prompts(context.errors);
    const Findings findings = findingsIn(project, prompts);
    context.print(parser.isSet(JsonOption) ? jsonOf(findings) : linesOf(findings));
    const bool isClean = findings.complete && findings.verification.verifyErrorCount == 0;
    return isClean ? ExitStatus::Done : ExitStatus::Found;
}

} // namespace quillford
