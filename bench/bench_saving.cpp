#include "BenchProjects.h"
#include "LoopGap.h"
#include "RunBench.h"
#include "app/Program.h"
#include "base/Error.h"
#include "base/Files.h"
#include "controls/Theme.h"
#include "persistence/project/ProjectReader.h"
#include "persistence/project/ProjectWriter.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

/// How long the running program stands still while it saves on its own, beside a plain function in
/// the same event loop that moves the same bytes: it reads the project file's tables, reads each
/// picture, writes texts and pictures into one file in the same folder, and reads the settings as
/// often, without their lock. Neither side syncs a save that nobody asked for. The timer's ticks
/// are sent without its pauses. The first save after the opening, which also makes the backup and
/// writes what the settings tell of the project, is counted apart.
namespace quillford {

namespace {

constexpr double MostTimesPlain = 1.3;
constexpr int PictureBytes = 2'000'000;
constexpr int Saves = 100;
constexpr int TicksOfASave = 6;

const char* verdict(double ratio) {
    return ratio <= MostTimesPlain ? "met" : "missed";
}

double medianOf(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// The plain function and what it moves.
class PlainSave {
public:
    PlainSave(const QString& project, QStringList pictures)
        : pictures_(std::move(pictures)), plain_(project + QStringLiteral(".plain")) {
        qint64 texts = QFileInfo(project).size();
        for (const QString& picture : pictures_)
            texts -= QFileInfo(picture).size();
        constexpr int BytesOfAnEntry = 128; // of the file's table: one for a sector of 512
        tables_ = QFileInfo(project).size() / BytesOfAnEntry;
        texts_ = QByteArray(texts, 't');
        write();
    }

    void operator()() const {
        {
            QFile in(plain_);
            if (!in.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
                raiseFileError(in);
            (void)in.read(tables_);
        }
        write();
        for (int changes = 0; changes < ChangesOfSettings; ++changes)
            (void)contentOfFile(settings_);
    }

private:
    static constexpr int ChangesOfSettings = 2;

    void write() const {
        QFile out;
        openPlainFile(out, plain_);
        writeAll(out, texts_, plain_);
        for (const QString& picture : pictures_)
            writeAll(out, contentOfFile(picture), plain_);
    }

    QStringList pictures_;
    QString plain_;
    QString settings_ = LinuxFolders().configurationFolder() + QStringLiteral("/settings");
    QByteArray texts_;
    qint64 tables_ = 0;
};

/// The program with a project open in it.
class OpenProgram {
public:
    OpenProgram(const BenchProject& project, const QString& folder) {
        Project made;
        readProject(project.path, made);
        path_ = folder + u'/' + project.name + QStringLiteral(".ivd");
        ProjectWriter(made).write(path_, ProjectWriter::Durability::Flushed);
        for (int i = 0; i < made.fields.panelCount(FieldGroup::Figures); ++i)
            if (made.fields.txtAttachFig(i).isFilled())
                pictures_.append(made.fields.txtAttachFig(i).text());
        if (!program_.start({path_}))
            throw Error(0, QStringLiteral("the project does not open"), path_);
        field_ = control<QWidget>("txtCompany");
        timer_ = control<QTimer>("tmrAutoSave");
        saveState_ = control<QLabel>("lblSaveState");
        QCoreApplication::processEvents();
    }

    [[nodiscard]] const QString& path() const { return path_; }

    [[nodiscard]] const QStringList& pictures() const { return pictures_; }

    /// The window is painted, with the letter, before anything is measured: the toolkit paints some
    /// milliseconds later.
    void typeLetter() {
        constexpr int UntilPainted = 20; // milliseconds
        QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QCoreApplication::sendEvent(field_, &key);
        for (const QDeadlineTimer painted(UntilPainted); !painted.hasExpired();)
            QCoreApplication::processEvents();
    }

    /// The longest gap of the loop in the ticks that lead to a save, and in the save.
    [[nodiscard]] double saveGap() {
        typeLetter();
        double longest = 0;
        for (int tick = 0; tick < TicksOfASave; ++tick)
            longest = std::max(
                longest, longestGapOf([this] { QMetaObject::invokeMethod(timer_, "timeout"); }));
        if (!saveState_->text().startsWith(QStringLiteral("saved ")))
            throw Error(0, saveState_->text(), path_);
        return longest;
    }

private:
    template <typename Control>
    [[nodiscard]] Control* control(const char* name) {
        return program_.window()->form().findChild<Control*>(QString::fromLatin1(name));
    }

    QString path_;
    QStringList pictures_;
    Program program_;
    QWidget* field_ = nullptr;
    QTimer* timer_ = nullptr;
    QLabel* saveState_ = nullptr;
};

void row(const QString& project, const char* what, double ours, double peer, std::size_t runs,
         bool hasAim) {
    std::printf("%-14s %-22s %10.2f %10.2f %7.2f", qPrintable(project), what, ours / 1000,
                peer / 1000, ours / peer);
    if (hasAim)
        std::printf("  at most %.1f, %-6s", MostTimesPlain, verdict(ours / peer));
    else
        std::printf("  %-19s", "none");
    std::printf(" %5zu\n", runs);
    std::fflush(stdout);
}

void benchProject(const BenchProject& project, const QString& folder) {
    OpenProgram program(project, folder);
    const PlainSave plain(program.path(), program.pictures());
    row(project.name, "first save", program.saveGap(), longestGapOf(plain), 1, false);
    std::vector<double> ours;
    std::vector<double> peer;
    for (int save = 0; save < Saves; ++save) {
        ours.push_back(program.saveGap());
        // The same pause as before the other, which leaves the caches alike.
        program.typeLetter();
        peer.push_back(longestGapOf(plain));
    }
    row(project.name, "later saves, median", medianOf(ours), medianOf(peer), ours.size(), true);
    row(project.name, "later saves, longest", *std::max_element(ours.begin(), ours.end()),
        *std::max_element(peer.begin(), peer.end()), ours.size(), true);
}

void benchAll() {
    const QTemporaryDir folder;
    std::printf("%-14s %-22s %10s %10s %7s  %-19s %5s\n", "project", "longest gap of the loop",
                "ours [ms]", "plain [ms]", "ratio", "aim", "runs");
    for (const BenchProject& project : benchProjects(folder.path(), {.pictureBytes = PictureBytes}))
        benchProject(project, folder.path());
}

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    const quillford::BenchHome home;
    QApplication application(argc, argv);
    quillford::theme::apply(application);
    return quillford::runBench("bench_saving", quillford::benchAll);
}
