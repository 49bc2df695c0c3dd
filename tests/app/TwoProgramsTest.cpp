#include "app/ProgramFixture.h"
#include "core/settings/Settings.h"
#include "core/settings/SettingsNames.h"
#include "persistence/project/ProjectReader.h"
#include "persistence/project/ProjectWriter.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/LinuxFolders.h"
#include "support/Files.h"

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProcess>

#include <csignal>
#include <sys/stat.h>
#include <thread>

using namespace quillford;

namespace {

constexpr int Patience = 60'000; // milliseconds, on a machine that has much else to do

/// The program in a process of its own, before a user who is told each step.
class OtherProgram {
public:
    OtherProgram() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationDirPath() + u"/driven_program"_s, {});
        EXPECT_TRUE(process_.waitForStarted());
    }

    ~OtherProgram() {
        process_.kill();
        process_.waitForFinished();
    }

    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    void tell(const QString& step) { process_.write(step.toUtf8() + '\n'); }

    /// Lets all steps that were told go out.
    void begin() { EXPECT_TRUE(process_.waitForBytesWritten(Patience)); }

    [[nodiscard]] QString answer() {
        while (!process_.canReadLine() && process_.waitForReadyRead(Patience)) {
        }
        EXPECT_TRUE(process_.canReadLine()) << "the other program does not answer";
        return QString::fromUtf8(process_.readLine()).remove(u'\n');
    }

    QString take(const QString& step) {
        tell(step);
        return answer();
    }

    void signal(int number) const { ::kill(static_cast<pid_t>(process_.processId()), number); }

private:
    QProcess process_;
};

/// Whether any program holds a lock on the file. Asking for the lock would disturb who wants it.
bool isLocked(const QString& path) {
    struct stat status {};

    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    QFile locks(u"/proc/locks"_s);
    EXPECT_TRUE(locks.open(QIODevice::ReadOnly));
    const QByteArray inode = ':' + QByteArray::number(status.st_ino) + ' ';
    for (const QByteArray& line : locks.readAll().split('\n'))
        if (line.contains("FLOCK") && line.contains(inode))
            return true;
    return false;
}

class TwoProgramsTest : public ProgramFixture {
protected:
    static QString settingsFile() { return LinuxFolders().configurationFolder() + u"/settings"_s; }

    /// The paths in the recent list, in its order.
    static QStringList listed() {
        FileSettingsStore store(settingsFile());
        const Settings settings(store);
        QStringList paths;
        for (int i = 1; i <= 5; ++i)
            paths.append(
                settings.regRead(Hive::CurrentUser, settingsNames::SettingsKey, u"file%1"_s.arg(i))
                    .section(u'|', 0, 0));
        paths.removeAll(QString());
        return paths;
    }

    static QStringList sorted(QStringList list) {
        list.sort();
        return list;
    }

    /// Both users open their projects again and again, write, and save, at the same time.
    static void workAtOnce(const QStringList& of, const QStringList& ofOther) {
        constexpr int Rounds = 5;
        OtherProgram one;
        OtherProgram two;
        const auto tellAll = [](OtherProgram& program, const QStringList& paths) {
            int steps = 0;
            for (int round = 0; round < Rounds; ++round)
                for (const QString& path : paths)
                    for (const QString& step : {u"open "_s + path, u"write round %1"_s.arg(round),
                                                u"tick"_s, u"save"_s}) {
                        program.tell(step);
                        ++steps;
                    }
            return steps;
        };
        int ofOne = tellAll(one, of);
        int ofTwo = tellAll(two, ofOther);
        one.begin();
        two.begin();
        while (ofOne-- > 0)
            EXPECT_EQ(one.answer(), u"done"_s);
        while (ofTwo-- > 0)
            EXPECT_EQ(two.answer(), u"done"_s);
        EXPECT_EQ(one.take(u"close"_s), u"done"_s);
        EXPECT_EQ(two.take(u"close"_s), u"done"_s);
    }

    [[nodiscard]] QStringList samples(const QString& name, int count) const {
        QStringList paths;
        for (int i = 1; i <= count; ++i)
            paths.append(
                const_cast<TwoProgramsTest*>(this)->sampleProject(u"%1-%2.ivd"_s.arg(name).arg(i)));
        return paths;
    }

    static QString operationIn(const QString& path) {
        Project read;
        EXPECT_NO_THROW(readProject(path, read)) << qPrintable(path);
        return read.fields.txtOperation.text();
    }

    /// A project whose save takes long enough to be stopped within it.
    [[nodiscard]] QString largeProject() const {
        constexpr int Bytes = 30'000'000;
        writeFile(place(u"figure.png"_s), QByteArray(Bytes, 'p'));
        Project large;
        large.fields.cboFiguresNum.setText(u"1"_s);
        large.fields.setPanelCount(FieldGroup::Figures, 1);
        large.fields.txtAttachFig(0).setText(place(u"figure.png"_s));
        large.fields.txtFileNo.setText(u"QF-1"_s);
        large.fields.txtOperation.setText(u"It folds."_s);
        const QString path = place(u"large.ivd"_s);
        ProjectWriter(large).write(path, ProjectWriter::Durability::Flushed);
        return path;
    }

    /// Stops the other program in the middle of a save into the file.
    static void stopInSave(OtherProgram& other, const QString& path) {
        for (int tries = 0; tries < 100; ++tries) {
            other.tell(u"tick"_s);
            other.begin();
            QDeadlineTimer patience(Patience);
            while (!isLocked(path) && !patience.hasExpired())
                std::this_thread::yield();
            other.signal(SIGSTOP);
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            if (isLocked(path))
                return;
            other.signal(SIGCONT);
            EXPECT_EQ(other.answer(), u"done"_s);
        }
        FAIL() << "no save was caught";
    }
};

} // namespace

TEST_F(TwoProgramsTest, five_projects_of_two_programs_at_once_are_all_listed) {
    const QStringList mine = samples(u"mine"_s, 2);
    const QStringList others = samples(u"other"_s, 3);
    workAtOnce(mine, others);
    EXPECT_EQ(sorted(listed()), sorted(mine + others));
}

TEST_F(TwoProgramsTest, of_more_projects_the_last_five_are_listed_each_once) {
    const QStringList mine = samples(u"mine"_s, 4);
    const QStringList others = samples(u"other"_s, 4);
    workAtOnce(mine, others);
    QStringList left = listed();
    EXPECT_EQ(left.size(), 5);
    EXPECT_EQ(left.removeDuplicates(), 0);
    EXPECT_TRUE(left.contains(mine.last()) || left.contains(others.last()));
    for (const QString& path : left)
        EXPECT_TRUE(mine.contains(path) || others.contains(path)) << qPrintable(path);
}

TEST_F(TwoProgramsTest, a_project_that_is_being_saved_does_not_open_a_second_time) {
    const QString path = largeProject();
    const QString mine = sampleProject();
    OtherProgram other;
    ASSERT_EQ(other.take(u"open "_s + path), u"done"_s);
    ASSERT_EQ(other.take(u"write It turns."_s), u"done"_s);
    start({mine});
    const QStringList listBefore = listed();
    stopInSave(other, path);
    const QStringList draftsBefore = draftFiles();
    const QByteArray settingsBefore = contentOf(settingsFile());
    whenAskedForFile(path);
    whenAsked(u"File Does Not Exist or Has Been Renamed"_s, QMessageBox::Ok);
    choose(u"mnuFileOpen"_s);
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - easel.ivd"_s);
    EXPECT_EQ(shown(u"txtInventionTitle"_s), u"Folding Field Easel"_s);
    EXPECT_EQ(draftFiles(), draftsBefore);
    EXPECT_EQ(contentOf(settingsFile()), settingsBefore);
    EXPECT_EQ(listed(), listBefore);
    other.signal(SIGCONT);
    EXPECT_EQ(other.answer(), u"done"_s);
    EXPECT_EQ(operationIn(path), u"It turns."_s);
    EXPECT_EQ(operationIn(drafts() + u"/Project - QF-1.ivd"_s), u"It folds."_s);
    EXPECT_TRUE(other.take(u"state"_s).startsWith(u"saved "_s));
    EXPECT_EQ(other.take(u"save"_s), u"done"_s);
    EXPECT_EQ(other.take(u"close"_s), u"done"_s);
    type(u"txtCompany"_s, u"x"_s);
    letTimerSave();
    EXPECT_EQ(listed(), listBefore) << "this program goes on with its own project";
}

TEST_F(TwoProgramsTest, a_project_that_is_being_saved_is_not_saved_over) {
    const QString path = largeProject();
    OtherProgram other;
    ASSERT_EQ(other.take(u"open "_s + path), u"done"_s);
    ASSERT_EQ(other.take(u"write It turns."_s), u"done"_s);
    start({sampleProject()});
    stopInSave(other, path);
    // The dialog asks within itself whether the file is to be replaced.
    whenAsked(u"Save As"_s, [path](QDialog& dialog) {
        dialog.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    });
    whenAsked(u"Save As"_s, QMessageBox::Yes);
    whenAsked(u"Error"_s, [](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).text(), u"The file is in use."_s);
        dialog.accept();
    });
    choose(u"mnuFileSaveAs"_s);
    EXPECT_EQ(form().windowTitle(), u"Quillford 3.1 - easel.ivd"_s);
    other.signal(SIGCONT);
    EXPECT_EQ(other.answer(), u"done"_s);
    EXPECT_EQ(operationIn(path), u"It turns."_s);
}
