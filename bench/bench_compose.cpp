#include "BenchDraft.h"
#include "BenchProjects.h"
#include "CtemplatePage.h"
#include "PairedTimes.h"
#include "RunBench.h"
#include "WriteFile.h"
#include "base/Error.h"
#include "base/Files.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <optional>

/// Composition beside its peers, for the middling and the largest project: the template engine
/// alone, with ready values, beside ctemplate with the same values, both loading the template from
/// its file; and the whole composition beside a plain copy of the output bytes.
namespace quillford {

namespace {

constexpr double MostTimesCtemplate = 3.0;

void printHead() {
    std::printf("%-14s %-28s %12s %12s %7s  %-14s %6s\n", "project", "ours / peer", "ours [us]",
                "peer [us]", "ratio", "aim", "runs");
}

void printRow(const BenchProject& project, const char* what, const PairedTimes& times,
              std::optional<double> aim) {
    const QString told =
        aim ? QStringLiteral("at most %1, %2")
                  .arg(*aim)
                  .arg(times.ratio() <= *aim ? QStringLiteral("met") : QStringLiteral("missed"))
            : QStringLiteral("none");
    std::printf("%-14s %-28s %12.1f %12.1f %7.2f  %-14s %6d\n", qPrintable(project.name), what,
                times.ours, times.peer, times.ratio(), qPrintable(told), times.runs);
}

void requireEqual(const QString& one, const QString& other, const char* what) {
    if (one == other)
        return;
    const auto [here, there] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
    const auto place = std::distance(one.begin(), here);
    throw Error(0,
                QStringLiteral("differs from character %1 on: \"%2\" and \"%3\"")
                    .arg(place)
                    .arg(one.mid(place, 40), other.mid(place, 40)),
                QString::fromUtf8(what));
}

void benchEngine(const BenchProject& project, BenchDraft& draft, const QString& folder) {
    const QString file = folder + QStringLiteral("/HTMLTEMPLATE.htm");
    writeFile(file, contentOfFile(QStringLiteral(":/templates/HTMLTEMPLATE.htm")));
    const QList<TemplateCall> calls = recordedCalls(project, folder);
    const CtemplatePage peer(calls, file, folder + QStringLiteral("/ctemplate.tpl"));

    const QString page = renderedByEngine(calls, file);
    requireEqual(draft.preview(), page, "the page of the recorded calls");
    requireEqual(page, QString::fromStdString(peer.rendered()), "the page of ctemplate");

    const PairedTimes times = measuredInTurns([&] { (void)renderedByEngine(calls, file); },
                                              [&] { (void)peer.rendered(); });
    printRow(project, "HTMLTemplate / ctemplate", times, MostTimesCtemplate);
}

/// The draft is written beside its file, synced to the disk and put in its place; the copy is only
/// written.
void benchComposition(const BenchProject& project, BenchDraft& draft, const QString& folder) {
    const QString output = folder + QStringLiteral("/draft.htm");
    const QString copy = folder + QStringLiteral("/copy.htm");
    draft.exportTo(output);
    const QByteArray bytes = contentOfFile(output);
    const PairedTimes times =
        measuredInTurns([&] { draft.exportTo(output); }, [&] { writeFile(copy, bytes); });
    printRow(project, "composition / copy of bytes", times, {});
}

void benchAll() {
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw Error(0, folder.errorString(), folder.path());
    printHead();
    for (const BenchProject& project : benchProjects(folder.path())) {
        BenchDraft draft(project.path);
        benchEngine(project, draft, folder.path());
        benchComposition(project, draft, folder.path());
    }
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return quillford::runBench("bench_compose", quillford::benchAll);
}
