#include "platform/linux/LibreOffice.h"

#include "platform/linux/WriterTesting.h"
#include "support/ErrorOf.h"
#include "support/PrintQt.h"

#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <csignal>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

class LibreOfficeTest : public WriterTesting {
protected:
    /// A folder of programs in which this script stands for LibreOffice.
    [[nodiscard]] QString programsWith(const QByteArray& script) const {
        const QString programs = path(u"programs"_s);
        writeFile(programs + u"/soffice.bin"_s, "#!/bin/sh\n" + script);
        QFile::setPermissions(programs + u"/soffice.bin"_s,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        writeFile(programs + u"/libmswordlo.so"_s);
        QDir().mkpath(programs + u"/types"_s);
        QFile::link(LibreOffice::usualPrograms() + u"/types/offapi.rdb"_s,
                    programs + u"/types/offapi.rdb"_s);
        return programs;
    }

    /// A document as LibreOffice tells it in one file of text.
    [[nodiscard]] QByteArray flatOdf(const QString& document) const {
        QProcess soffice;
        soffice.start(LibreOffice::usualPrograms() + u"/soffice"_s,
                      {u"--headless"_s, u"-env:UserInstallation=file://"_s + path(u"reader"_s),
                       u"--convert-to"_s, u"fodt"_s, u"--outdir"_s, path(u"flat"_s), document});
        EXPECT_TRUE(soffice.waitForFinished(60'000));
        return contentOf(path(u"flat/"_s) + QFileInfo(document).baseName() + u".fodt"_s);
    }

    /// Writes a document with the lists "One", "Two" and "Three", of three levels each.
    void writeLists() const {
        QString styles;
        QString items;
        for (const QString& name : {u"One"_s, u"Two"_s, u"Three"_s}) {
            styles += u"<text:list-style style:name=\"%1\">"_s.arg(name);
            for (int level = 1; level <= 3; ++level)
                styles += u"<text:list-level-style-number text:level=\"%1\" "
                          "style:num-format=\"1\" style:num-suffix=\".\"/>"_s.arg(level);
            styles += u"</text:list-style>"_s;
            items +=
                u"<text:list text:style-name=\"%1\"><text:list-item><text:list><text:list-item>"
                "<text:p text:style-name=\"plain\">item</text:p></text:list-item></text:list>"
                "</text:list-item></text:list>"_s.arg(name);
        }
        QString flat = QString::fromUtf8(contentOf(document({u"plain|start"_s})));
        flat.replace(u"</office:styles>"_s, styles + u"</office:styles>"_s);
        flat.replace(u"</office:text>"_s, items + u"</office:text>"_s);
        writeFile(path(u"lists.fodt"_s), flat.toUtf8());
    }

    /// The named sockets on which a process listens, each once.
    [[nodiscard]] static QStringList pipesOf(const QString& process) {
        QStringList found;
        const QDir files(u"/proc/%1/fd"_s.arg(process));
        const QByteArray sockets = contentOf(u"/proc/%1/net/unix"_s.arg(process));
        for (const QByteArray& line : sockets.split('\n')) {
            const QByteArrayList columns = line.simplified().split(' ');
            if (columns.size() < 8)
                continue;
            const QString socket = u"socket:[%1]"_s.arg(QString::fromLatin1(columns[6]));
            const QStringList open = files.entryList(QDir::System | QDir::Files);
            if (std::any_of(open.begin(), open.end(), [&](const QString& file) {
                    return QFile::symLinkTarget(files.filePath(file)).endsWith(socket);
                }))
                found.append(QString::fromLocal8Bit(columns[7]));
        }
        found.removeDuplicates();
        return found;
    }

    /// One that has a document open and no more patience than that took on this machine.
    [[nodiscard]] std::unique_ptr<WordApplication>
    impatientWithDocument(std::chrono::seconds& patience) {
        const QString text = document({u"plain|text"_s});
        for (patience = 2s; patience < 60s; patience *= 2) {
            try {
                auto word = LibreOffice(folders, LibreOffice::usualPrograms(), patience).start();
                word->openDocument(text);
                return word;
            } catch (const Error& error) {
                RecordProperty("impatience", error.description().toStdString());
            }
        }
        return nullptr;
    }

    /// Sends a signal to the LibreOffice that works in the test's folder.
    void signalOffice(int number) const {
        const QStringList processes = processesOf(folders.temporary);
        ASSERT_EQ(processes.size(), 1);
        ASSERT_EQ(::kill(processes[0].toInt(), number), 0);
    }
};

} // namespace

// Installation

TEST_F(LibreOfficeTest, it_is_installed_when_module_program_and_filter_are_there) {
    EXPECT_TRUE(libreOffice.isInstalled());
    EXPECT_FALSE(LibreOffice(folders, path(u"nowhere"_s)).isInstalled());
    const QString programs = programsWith("");
    EXPECT_TRUE(LibreOffice(folders, programs).isInstalled());
    QFile::remove(programs + u"/libmswordlo.so"_s);
    EXPECT_FALSE(LibreOffice(folders, programs).isInstalled());
    folders.program = u"/nowhere/quillford"_s;
    EXPECT_FALSE(libreOffice.isInstalled());
}

TEST_F(LibreOfficeTest, one_that_is_not_installed_does_not_start) {
    folders.program = u"/nowhere/quillford"_s;
    EXPECT_EQ(errorOf([&] { (void)libreOffice.start(); }).description(),
              u"LibreOffice Writer is not installed"_s);
}

TEST_F(LibreOfficeTest, a_module_that_cannot_be_loaded_is_named) {
    folders.program = path(u"broken/quillford"_s);
    writeFile(path(u"broken/quillford_writer.so"_s), "no library");
    EXPECT_EQ(errorOf([&] { (void)libreOffice.start(); }).source(),
              path(u"broken/quillford_writer.so"_s));
}

TEST_F(LibreOfficeTest, a_document_is_open_while_its_lock_file_stands_beside_it) {
    const QString document = path(u"Final - 1.doc"_s);
    EXPECT_FALSE(libreOffice.isDocumentOpen(document));
    writeFile(path(u".~lock.Final - 1.doc#"_s));
    EXPECT_TRUE(libreOffice.isDocumentOpen(document));
    EXPECT_FALSE(libreOffice.isDocumentOpen(path(u"Final - 2.doc"_s)));
    EXPECT_FALSE(libreOffice.isDocumentOpen(path(u"other/Final - 1.doc"_s)));
}

// The process

TEST_F(LibreOfficeTest, a_run_leaves_no_process_and_no_profile) {
    {
        const auto word = libreOffice.start();
        EXPECT_TRUE(word->version().contains(u'.'));
        word->openDocument(document({u"plain|text"_s}));
        EXPECT_FALSE(QDir(folders.temporary).isEmpty());
    }
    expectNothingIsLeft();
}

TEST_F(LibreOfficeTest, one_that_ends_at_its_start_is_an_error_at_once) {
    LibreOffice ending(folders, programsWith("exit 7\n"));
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(errorOf([&] { (void)ending.start(); }).description(),
              u"LibreOffice ended at its start with status 7"_s);
    EXPECT_LT(time.elapsed(), 5000);
    expectNothingIsLeft();
}

TEST_F(LibreOfficeTest, one_that_only_ever_makes_its_profile_is_not_started_for_ever) {
    LibreOffice restarting(folders, programsWith("exit 81\n"));
    EXPECT_EQ(errorOf([&] { (void)restarting.start(); }).description(),
              u"LibreOffice ended at its start with status 81"_s);
    expectNothingIsLeft();
}

TEST_F(LibreOfficeTest, one_that_never_answers_is_killed_when_the_patience_is_over) {
    LibreOffice silent(folders, programsWith("sleep 600\n"), 300ms);
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(errorOf([&] { (void)silent.start(); })
                    .description()
                    .startsWith(u"LibreOffice did not start within 0.3"_s));
    EXPECT_LT(time.elapsed(), 5000);
    expectNothingIsLeft();
}

TEST_F(LibreOfficeTest, without_a_folder_to_work_in_it_does_not_start) {
    folders.temporary = path(u"a file"_s);
    writeFile(folders.temporary);
    EXPECT_EQ(errorOf([&] { (void)libreOffice.start(); }).source(), folders.temporary);
}

TEST_F(LibreOfficeTest, one_that_dies_at_work_makes_every_later_call_an_error) {
    auto word = libreOffice.start();
    word->openDocument(document({u"plain|text"_s}));
    signalOffice(SIGKILL);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(errorOf([&] { word->find(u"text"_s); }).description(),
                  u"LibreOffice has ended unexpectedly"_s);
    EXPECT_EQ(errorOf([&] { word->saveDocument(path(u"saved.doc"_s)); }).number(), 462);
    word.reset();
    expectNothingIsLeft();
    EXPECT_FALSE(QFileInfo::exists(path(u"saved.doc"_s)));
    EXPECT_TRUE(libreOffice.start()->version().contains(u'.')); // the next run is a new one
}

TEST_F(LibreOfficeTest, a_broken_pipe_to_one_that_died_does_not_end_the_program) {
    const auto word = libreOffice.start();
    EXPECT_EQ(std::raise(SIGPIPE), 0);
}

TEST_F(LibreOfficeTest, one_that_was_killed_leaves_no_pipe) {
    auto word = libreOffice.start();
    const QStringList pipes = pipesOf(processesOf(folders.temporary).value(0));
    EXPECT_EQ(pipes.size(), 2) << pipes.join(u'\n').toStdString();
    signalOffice(SIGKILL);
    word.reset();
    for (const QString& pipe : pipes)
        EXPECT_FALSE(QFileInfo::exists(pipe)) << pipe.toStdString();
}

TEST_F(LibreOfficeTest, one_that_hangs_at_work_is_killed_when_the_patience_is_over) {
    std::chrono::seconds patience{};
    auto word = impatientWithDocument(patience);
    ASSERT_TRUE(word);
    signalOffice(SIGSTOP);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(errorOf([&] { word->find(u"text"_s); }).description(),
              u"LibreOffice did not answer within %1 seconds"_s.arg(patience.count()));
    EXPECT_GE(time.elapsed(), 900 * patience.count());
    EXPECT_LT(time.elapsed(), 2000 * patience.count());
    word.reset();
    expectNothingIsLeft();
}

// What only the real one can show

TEST_F(LibreOfficeTest, characters_that_are_no_text_do_no_harm) {
    const auto word = libreOffice.start();
    word->openDocument(document({u"plain|{a} [x] {b}"_s}));
    EXPECT_TRUE(word->find(u"[x]"_s));
    QString text;
    for (char16_t character = 0; character < 32; ++character)
        if (character != u'\r' && character != u'\n')
            text += QChar(character);
    for (const int character : {0xFFF9, 0xFFFA, 0xFFFB, 0xFFFF, 0x2028, 0xD83D, 0x7C, 0xDD8B})
        text += QChar(character); // the last are two halves of a pair, apart
    word->setSelectedText(text + u"end"_s);
    EXPECT_TRUE(word->find(u"end {b}"_s));
    word->setHeader(u"head\u0001er \u0007of\u0013 all\uFFF9"_s);
    word->saveDocument(path(u"saved.doc"_s));
    const QString header = u"header of all"_s;
    const auto* const codes = reinterpret_cast<const char*>(header.utf16());
    EXPECT_TRUE(contentOf(path(u"saved.doc"_s)).contains(QByteArray(codes, 2 * header.size())));
    word->openDocument(path(u"saved.doc"_s));
    EXPECT_TRUE(word->find(u"{a} \t"_s));
    EXPECT_TRUE(word->find(u"end {b}"_s));
}

TEST_F(LibreOfficeTest, a_paragraph_keeps_its_page_break_when_the_empty_one_before_it_goes) {
    const auto word = libreOffice.start();
    word->openDocument(document({u"plain|one"_s, u"plain|[x]"_s, u"new-page|two"_s}));
    EXPECT_TRUE(word->find(u"[x]"_s));
    word->setSelectedText({});
    word->deleteForward();
    word->saveDocument(path(u"saved.doc"_s));
    const QByteArray flat = flatOdf(path(u"saved.doc"_s));
    static const QRegularExpression styleOfTwo(u"text:style-name=\"([^\"]*)\">two<"_s);
    const QString style = styleOfTwo.match(QString::fromUtf8(flat)).captured(1);
    const qsizetype at = flat.indexOf("style:name=\"" + style.toUtf8() + '"');
    EXPECT_TRUE(flat.sliced(at, flat.indexOf("</style:style>", at) - at).contains("break-before"))
        << style.toStdString();
}

TEST_F(LibreOfficeTest, a_file_that_is_no_document_is_refused) {
    const auto word = libreOffice.start();
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(path(u"picture.doc"_s), "PNG"));
    EXPECT_EQ(errorOf([&] { word->addDocument(path(u"picture.doc"_s)); }).source(),
              path(u"picture.doc"_s));
    EXPECT_EQ(errorOf([&] { word->find(u"x"_s); }).description(), u"no document is open"_s);
}

TEST_F(LibreOfficeTest, the_number_format_of_a_list_s_level_is_set) {
    const auto word = libreOffice.start();
    word->openDocument(document({u"plain|text"_s}));
    EXPECT_EQ(errorOf([&] { word->setListNumberFormat(3, 2, u"4.%2."_s); }).description(),
              u"there is no level 2 of a list 3"_s);
    writeLists();
    word->openDocument(path(u"lists.fodt"_s));
    word->setListNumberFormat(3, 2, u"4.%2."_s);
    EXPECT_GT(errorOf([&] { word->setListNumberFormat(3, 11, u"4.%2."_s); }).number(), 0);
    word->saveDocument(path(u"lists.doc"_s));
    EXPECT_TRUE(flatOdf(path(u"lists.doc"_s)).contains("4.%2%."));
}
