#include "cli/CliProgram.h"

#include "cli/CliRun.h"

#include <new>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class CliProgramTest : public CliRun {};

/// Takes the first bytes and no more, as a full disk does.
class FullDevice final : public QIODevice {
public:
    explicit FullDevice(qint64 room) : room_(room) { open(QIODevice::WriteOnly | Unbuffered); }

protected:
    qint64 readData(char*, qint64) override { return -1; }

    qint64 writeData(const char*, qint64 size) override {
        const qint64 taken = std::min(size, room_);
        room_ -= taken;
        if (taken < size)
            setErrorString(u"No space left on device"_s);
        return taken > 0 ? taken : -1;
    }

private:
    qint64 room_;
};

class OutOfMemory final : public PictureReader {
public:
    [[nodiscard]] std::optional<QSize> pixelSize(const QString&) override {
        throw std::bad_alloc();
    }
};

} // namespace

TEST_F(CliProgramTest, prints_its_version) {
    EXPECT_EQ(run({u"--version"_s}), 0);
    EXPECT_EQ(output, "quillford-cli 3.1\n");
    EXPECT_EQ(error, QByteArray());
}

TEST_F(CliProgramTest, prints_every_command_in_its_help) {
    for (const QString& option : {u"--help"_s, u"-h"_s}) {
        EXPECT_EQ(run({option}), 0);
        EXPECT_TRUE(output.contains("  quillford-cli show PROJECT\n"));
        EXPECT_TRUE(output.contains("  quillford-cli export PROJECT [--html FILE]"));
        EXPECT_TRUE(output.contains("Exit status: 0 done;"));
        EXPECT_TRUE(output.endsWith('\n'));
        EXPECT_EQ(error, QByteArray());
    }
}

TEST_F(CliProgramTest, keeps_its_help_within_the_width_of_a_terminal) {
    run({u"--help"_s});
    for (const QByteArray& line : output.split('\n'))
        EXPECT_LE(line.size(), 100) << line.toStdString();
}

TEST_F(CliProgramTest, prints_the_help_of_one_command) {
    for (const QStringList& arguments : {QStringList{u"show"_s, u"--help"_s},
                                         {u"show"_s, u"-h"_s},
                                         {u"show"_s, u"x"_s, u"-h"_s}}) {
        EXPECT_EQ(run(arguments), 0);
        EXPECT_EQ(output, "  quillford-cli show PROJECT\n      prints the project as JSON\n");
        EXPECT_EQ(error, QByteArray());
    }
    EXPECT_EQ(run({u"export"_s, u"--help"_s}), 0);
    EXPECT_TRUE(output.startsWith("  quillford-cli export PROJECT ["));
    EXPECT_TRUE(output.contains("\n      refused while a section is incomplete"));
}

TEST_F(CliProgramTest, refuses_a_call_without_a_command) {
    const QString line =
        u"command line: expects a command; quillford-cli --help lists the commands"_s;
    expectFailure({}, line);
    expectFailure({u""_s}, line);
}

TEST_F(CliProgramTest, refuses_what_is_no_command) {
    for (const QString& name : {u"shew"_s, u"Show"_s, u"--verbose"_s, u" show"_s, u"\u00E9"_s})
        expectFailure({name, u"a.json"_s},
                      name + u": is no command; quillford-cli --help lists the commands"_s);
}

TEST_F(CliProgramTest, fails_when_its_output_takes_only_a_part) {
    QBuffer errors;
    errors.open(QIODevice::WriteOnly);
    for (const int room : {0, 1, 17}) {
        FullDevice full(room);
        CliContext context{full, errors, folders, pictures, word};
        EXPECT_EQ(CliProgram(context).run({u"--version"_s}), 2);
        EXPECT_EQ(errors.data(), "quillford-cli: standard output: No space left on device\n");
        errors.buffer().clear();
        errors.seek(0);
    }
    FullDevice wide(18);
    CliContext context{wide, errors, folders, pictures, word};
    EXPECT_EQ(CliProgram(context).run({u"--version"_s}), 0);
    EXPECT_EQ(errors.data(), QByteArray());
}

TEST_F(CliProgramTest, tells_an_unexpected_failure_in_one_line) {
    OutOfMemory greedy;
    QBuffer outputs;
    QBuffer errors;
    outputs.open(QIODevice::WriteOnly);
    errors.open(QIODevice::WriteOnly);
    CliContext context{outputs, errors, folders, greedy, word};
    const QString path = project(R"({"txtAttachFig": ["a.png"]})");
    const QString page = place(u"out.htm"_s);
    EXPECT_EQ(CliProgram(context).run({u"export"_s, u"--incomplete"_s, u"--html"_s, page, path}),
              2);
    EXPECT_EQ(errors.data(), "quillford-cli: export: std::bad_alloc\n");
    EXPECT_FALSE(QFileInfo::exists(page));
}
