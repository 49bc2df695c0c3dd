#include "PairedTimes.h"
#include "RunBench.h"
#include "base/Error.h"
#include "base/Files.h"
#include "persistence/project/ProjectFileReader.h"
#include "persistence/project/ProjectReader.h"
#include "persistence/project/ProjectWriter.h"
#include "persistence/project/WorkingCopies.h"
#include "support/FakeFolders.h"
#include "support/UnattendedPrompts.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

/// The largest project with 50 pictures of 2 MB saved new, saved over and opened, beside a plain
/// program that moves the same bytes: to save, it reads each picture and writes it into one file;
/// to open, it reads the file and writes each picture's working copy. Nobody syncs, and neither
/// side decodes a picture.
namespace quillford {

namespace {

constexpr double MostTimesPlain = 1.3;
const QString PictureBytes = QStringLiteral("2000000");

/// Asks no picture for its size: decoding is no part of the file.
class NoPictures final : public PictureReader {
public:
    std::optional<QSize> pixelSize(const QString&) override { return std::nullopt; }
};

class Bench {
public:
    Bench() {
        folders_.temporary = in("ours");
        if (!folder_.isValid() || !QDir().mkpath(in("ours")) || !QDir().mkpath(in("plain")))
            throw Error(0, folder_.errorString(), folder_.path());
        makeLargest();
        readProject(in("largest.json"), project_);
        for (int i = 0; i < project_.fields.panelCount(FieldGroup::Figures); ++i)
            pictures_.append(project_.fields.txtAttachFig(i).text());
        save();
        texts_ = QByteArray(QFileInfo(file_).size() - sizeOfPictures(), 't');
        savePlainly();
    }

    void run() {
        std::printf("%-12s %12s %12s %7s  %-20s %6s\n", "project", "ours [us]", "plain [us]",
                    "ratio", "aim", "runs");
        row(
            "saved new",
            [this] {
                QFile::remove(file_);
                save();
            },
            [this] {
                QFile::remove(plain_);
                savePlainly();
            });
        row(
            "saved over", [this] { save(); }, [this] { savePlainly(); });
        row(
            "opened", [this] { open(); }, [this] { openPlainly(); });
    }

private:
    [[nodiscard]] QString in(const char* name) const {
        return folder_.filePath(QString::fromLatin1(name));
    }

    void makeLargest() const {
        const int status =
            QProcess::execute(QStringLiteral(QUILLFORD_PYTHON),
                              {QStringLiteral(QUILLFORD_SAMPLES "/make_largest_project.py"),
                               folder_.path(), QStringLiteral("--picture-bytes"), PictureBytes});
        if (status != 0)
            throw Error(status, QStringLiteral("did not succeed"),
                        QStringLiteral("make_largest_project.py"));
    }

    [[nodiscard]] qint64 sizeOfPictures() const {
        qint64 size = 0;
        for (const QString& picture : pictures_)
            size += QFileInfo(picture).size();
        return size;
    }

    void save() {
        ProjectWriter(project_, prompts_).write(file_, ProjectWriter::Durability::Flushed);
    }

    void open() {
        Project opened;
        NoPictures sizes;
        WorkingCopies copies(opened.fields, folders_, sizes);
        const ReadReport report = ProjectFileReader(opened, copies).read(file_);
        if (report.failure || !report.missing.isEmpty())
            throw Error(0, QStringLiteral("was not read whole"), file_);
    }

    void savePlainly() const {
        QFile out;
        openPlainFile(out, plain_);
        writeAll(out, texts_, plain_);
        for (const QString& picture : pictures_)
            writeAll(out, contentOfFile(picture), plain_);
    }

    void openPlainly() const {
        QFile in(plain_);
        if (!in.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            raiseFileError(in);
        (void)in.read(texts_.size());
        for (const QString& picture : pictures_) {
            const QString copy = this->in("plain/") + QFileInfo(picture).fileName();
            QFile out;
            openPlainFile(out, copy);
            writeAll(out, in.read(QFileInfo(picture).size()), copy);
        }
    }

    static void row(const char* what, const std::function<void()>& ours,
                    const std::function<void()>& peer) {
        const PairedTimes times = measuredInTurns(ours, peer);
        std::printf("%-12s %12.0f %12.0f %7.2f  at most %.1f, %-7s %6d\n", what, times.ours,
                    times.peer, times.ratio(), MostTimesPlain,
                    times.ratio() <= MostTimesPlain ? "met" : "missed", times.runs);
        std::fflush(stdout);
    }

    QTemporaryDir folder_;
    FakeFolders folders_;
    UnattendedPrompts prompts_;
    Project project_;
    QStringList pictures_;
    QByteArray texts_;
    QString file_ = folder_.filePath(QStringLiteral("project.ivd"));
    QString plain_ = folder_.filePath(QStringLiteral("plain.bytes"));
};

} // namespace

} // namespace quillford

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return quillford::runBench("bench_project", [&] { quillford::Bench().run(); });
}
