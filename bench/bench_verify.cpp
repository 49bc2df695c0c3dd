#include "BenchProjects.h"
#include "PairedTimes.h"
#include "RunBench.h"
#include "base/Error.h"
#include "base/Text.h"
#include "cli/CliVerification.h"
#include "core/rules/ReferenceNumerals.h"
#include "persistence/project/ProjectReader.h"
#include "verification/engine/EnterBoxText.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>

/// The verification of the largest project beside one sweep of memmem over the same text for each
/// name and numeral, once with every cell found and once with none. Making the text and putting it
/// into upper case is counted on both sides.
namespace quillford {

namespace {

constexpr double MostTimesMemmem = 1.5;
constexpr auto UnitSize = static_cast<qsizetype>(sizeof(char16_t));

/// What a sweep looks for, in upper case.
QStringList needlesOf(const ProjectFields& fields) {
    QStringList needles;
    for (int panel = 0; panel < fields.panelCount(FieldGroup::SubElements); ++panel)
        for (int part = 0; part <= SubElementCount; ++part) {
            const ElementCell cell{panel, part};
            if (cell.field(fields).isFilled())
                needles << upperCase(cell.field(fields).trimmedText()) << cell.numeral();
        }
    return needles;
}

/// True when memmem finds the needle at a character, not between the halves of two.
bool isSwept(const QString& text, const QString& needle) {
    const char* const begin = reinterpret_cast<const char*>(text.utf16());
    const char* const end = begin + text.size() * UnitSize;
    for (const char* from = begin; from < end; ++from) {
        const void* found = memmem(from, static_cast<std::size_t>(end - from), needle.utf16(),
                                   static_cast<std::size_t>(needle.size() * UnitSize));
        if (!found)
            return false;
        from = static_cast<const char*>(found);
        if ((from - begin) % UnitSize == 0)
            return true;
    }
    return false;
}

/// The peer: how many needles the text does not hold.
int missesOfSweeps(const ProjectFields& fields) {
    int boxes = 0;
    const QString text = upperCase(getAllEnterBoxWord(fields, boxes));
    int misses = 0;
    for (const QString& needle : needlesOf(fields))
        misses += isSwept(text, needle) ? 0 : 1;
    return misses;
}

/// Makes every cell a near miss: two blanks in each name, and no two digits together in the text.
void hideAll(ProjectFields& fields) {
    static const QRegularExpression betweenDigits(QStringLiteral("(?<=\\d)(?=\\d)"));
    for (const FieldRow& row : fieldTable())
        for (int i = 0; i < fields.count(row.id); ++i) {
            QString text = fields.at(row.id, i).text();
            if (row.group == FieldGroup::SubElements)
                text.replace(u' ', QStringLiteral("  "));
            else if (row.kind == FieldKind::Text || row.kind == FieldKind::MultiLine ||
                     row.kind == FieldKind::MultiLineNoBar)
                text.replace(betweenDigits, QStringLiteral("-"));
            fields.at(row.id, i).setText(text);
        }
}

void bench(const char* what, const ProjectFields& fields, int expectedMisses) {
    const int ours = verifyProject(fields).verifyErrorCount;
    const int peer = missesOfSweeps(fields);
    if (ours != expectedMisses || peer != expectedMisses)
        throw Error(
            0,
            QStringLiteral("%1 and %2 misses, %3 expected").arg(ours).arg(peer).arg(expectedMisses),
            QString::fromUtf8(what));
    const PairedTimes times = measuredInTurns([&] { (void)verifyProject(fields); },
                                              [&] { (void)missesOfSweeps(fields); });
    std::printf("%-14s %-28s %12.1f %12.1f %7.2f  at most %.1f, %s %6d\n", what,
                "verification / memmem", times.ours, times.peer, times.ratio(), MostTimesMemmem,
                times.ratio() <= MostTimesMemmem ? "met" : "missed", times.runs);
}

void benchAll() {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw Error(0, folder.errorString(), folder.path());
    Project project;
    readProject(benchProjects(folder.path()).constLast().path, project);
    int boxes = 0;
    std::printf("largest project: %d cells, %lld characters of text\n",
                getElementsEnterNum(project.fields),
                static_cast<long long>(getAllEnterBoxWord(project.fields, boxes).size()));
    std::printf("%-14s %-28s %12s %12s %7s  %-16s %6s\n", "cells", "ours / peer", "ours [us]",
                "peer [us]", "ratio", "aim", "runs");
    bench("all found", project.fields, 0);
    hideAll(project.fields);
    bench("none found", project.fields, 2 * getElementsEnterNum(project.fields));
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return quillford::runBench("bench_verify", quillford::benchAll);
}
