#include "BenchDraft.h"
#include "BenchProjects.h"
#include "PairedTimes.h"
#include "RunBench.h"
#include "base/Error.h"
#include "controls/HtmlView.h"
#include "draft/commands/PageSetup.h"
#include "draft/pages/PdfFile.h"
#include "platform/linux/QtPictureReader.h"
#include "support/Chromium.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

/// The preview of the Final Draft, from the fields to the page on the screen, laid out to its last
/// line, beside chromium, which loads and lays out the exported page. Then a print of a hundred
/// pages as PDF beside chromium's. The browser runs already and has the page's file before it.
namespace quillford {

namespace {

constexpr int Width = 698; // as on the page of the Final Draft
constexpr int Height = 385;
constexpr int FewestRuns = 10;

void printHead() {
    std::printf("%-14s %-8s %10s %14s %7s  %-40s %6s\n", "project", "what", "ours [ms]",
                "chromium [ms]", "ratio", "aim", "runs");
}

/// One row; without a browser there is no ratio.
void printRow(const QString& project, const char* what, const PairedTimes& times, bool hasPeer,
              std::optional<double> most) {
    const double ours = times.ours / 1000;
    QString aim;
    if (most)
        aim += QStringLiteral("under %1 ms, %2; ")
                   .arg(*most)
                   .arg(ours < *most ? QStringLiteral("met") : QStringLiteral("missed"));
    aim += !hasPeer              ? QStringLiteral("no chromium to compare")
           : times.ratio() < 1.0 ? QStringLiteral("below chromium, met")
                                 : QStringLiteral("below chromium, missed");
    if (hasPeer)
        std::printf("%-14s %-8s %10.1f %14.1f %7.2f  %-40s %6d\n", qPrintable(project), what, ours,
                    times.peer / 1000, times.ratio(), qPrintable(aim), times.runs);
    else
        std::printf("%-14s %-8s %10.1f %14s %7s  %-40s %6d\n", qPrintable(project), what, ours, "-",
                    "-", qPrintable(aim), times.runs);
}

int pagesOf(const QByteArray& pdf) {
    static const QRegularExpression page(QStringLiteral("/Type\\s*/Page\\b"));
    return static_cast<int>(QString::fromLatin1(pdf).count(page));
}

void benchPreview(const BenchProject& project, double most, const QString& folder,
                  Chromium* chromium) {
    BenchDraft draft(project.path);
    const QString exported = folder + QStringLiteral("/exported.htm");
    draft.exportTo(exported);
    QtPictureReader pictures;
    HtmlView view;
    view.setFrameShape(QFrame::NoFrame);
    view.lock();
    view.resize(Width, Height);
    view.show();
    QCoreApplication::processEvents(); // what is not exposed yet is not painted either
    const auto preview = [&] {
        view.showBlank();
        view.showHtml(draft.preview(), pictures);
        (void)view.document()->size(); // lays out what would be laid out while the user reads
        view.viewport()->repaint();
    };
    const auto load = [&] {
        if (chromium != nullptr)
            chromium->load(exported);
    };
    printRow(project.name, "preview", measuredInTurns(preview, load, FewestRuns),
             chromium != nullptr, most);
}

void benchPdf(const QString& folder, Chromium* chromium) {
    constexpr int TextOfAHundredPages = 190000;
    const BenchProject project =
        madeProject(QStringLiteral("100 pages"), folder, {.textBytes = TextOfAHundredPages});
    BenchDraft draft(project.path);
    const QString exported = folder + QStringLiteral("/exported.htm");
    draft.exportTo(exported);
    QtPictureReader pictures;
    PrintJob job;
    job.footer = PageSetup::Footer.toString();
    QByteArray ours;
    QByteArray theirs;
    const auto print = [&] {
        job.html = draft.preview();
        ours = pdfOf(job, pictures);
    };
    const auto printTheirs = [&] {
        if (chromium != nullptr)
            theirs = chromium->printed();
    };
    if (chromium != nullptr)
        chromium->load(exported);
    const PairedTimes times = measuredInTurns(print, printTheirs, FewestRuns);
    printRow(project.name, "PDF", times, chromium != nullptr, {});
    std::printf("pages of the PDF: %d ours", pagesOf(ours));
    if (chromium != nullptr)
        std::printf(", %d chromium's", pagesOf(theirs));
    std::printf("\n");
}

void benchAll() {
    constexpr double MostOfMiddling = 50;
    constexpr double MostOfLargest = 1000;
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw Error(0, folder.errorString(), folder.path());
    std::unique_ptr<Chromium> chromium;
    if (Chromium::isInstalled())
        chromium = std::make_unique<Chromium>(folder.path(), Width, Height);
    else
        std::printf("chromium is not installed: its side is skipped\n");
    printHead();
    const QList<BenchProject> projects = benchProjects(folder.path());
    benchPreview(projects.front(), MostOfMiddling, folder.path(), chromium.get());
    benchPreview(projects.back(), MostOfLargest, folder.path(), chromium.get());
    benchPdf(folder.path(), chromium.get());
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    return quillford::runBench("bench_preview", quillford::benchAll);
}
