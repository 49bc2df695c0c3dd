#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/session/SessionFixture.h"

#include <QDirIterator>
#include <QMap>

#include <cstdlib>
#include <optional>
#include <random>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A user who does anything at any time, answers questions by chance, and whose disk is full now
/// and then. What must hold after every command is checked against what was there before it.
class RandomSession : public SessionFixture {
public:
    explicit RandomSession(unsigned seed) : random_(seed) {
        for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
            makeProject(inProjects(name + u".ivd"_s), number(), nextText());
        writeFile(inProjects(u"letters.ivd"_s), "letters");
        makeHigherVersion();
        startProgram();
    }

    void TestBody() override {}

    /// One thing that happens. False when something was wrong, which is told by the failure.
    bool step() {
        remember();
        act();
        forgetScript();
        checkState();
        checkFiles();
        checkText();
        return !testing::Test::HasFailure();
    }

    QStringList done;

private:
    using Files = QMap<QString, QByteArray>;

    unsigned below(unsigned bound) {
        return std::uniform_int_distribution<unsigned>(0, bound - 1)(random_);
    }

    QString number() { return QStringList{QString(), u"1"_s, u"2/3"_s}[below(3)]; }

    QString nextText() { return u"text %1."_s.arg(++texts_); }

    void makeHigherVersion() {
        const QString path = makeProject(inProjects(u"higher.ivd"_s), u"9"_s, nextText());
        Storage root = OpenStorageFile(path);
        root.CreateStream(u"Section Version"_s, StorageMode::ExclusiveCreate).WriteData(u"4"_s);
        root.Commit(0);
    }

    void startProgram() {
        project.state = ProjectState();
        shadow.forget();
        newProject.NewFile();
        recent.loadRecentProjects(false);
        navigator.showWelcomePage();
        explicit_.reset();
    }

    Files filesOnDisk() const {
        Files files;
        QDirIterator found(workDir, {u"*.ivd"_s}, QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            const QString path = found.next();
            files.insert(path, contentOf(path));
        }
        return files;
    }

    // What the user does

    QString anyFile(const QStringList& others) {
        const QStringList files = filesOnDisk().keys() + others;
        return files[static_cast<int>(below(static_cast<unsigned>(files.size())))];
    }

    void script() {
        prompts.boxes.clear();
        answer_ = static_cast<Answer>(below(3));
        prompts.yesNoCancelAnswers = {answer_};
        if (below(3) == 0)
            prompts.filesToSave = {inDrafts(u"x.ivd"_s)};
        const QStringList targets{QString(), inProjects(u"new %1.ivd"_s.arg(below(3))),
                                  inProjects(u"a.ivd"_s), inProjects(u"letters.ivd"_s)};
        chosen_ = targets[static_cast<int>(below(4))];
        prompts.filesToSave.push_back(chosen_);
        prompts.filesToSave.push_back({});
        prompts.filesToSave.push_back({});
        prompts.filesToOpen = {anyFile({QString(), inProjects(u"missing.ivd"_s)})};
    }

    void forgetScript() {
        prompts.yesNoCancelAnswers.clear();
        prompts.filesToSave.clear();
        prompts.filesToOpen.clear();
        prompts.fileQuestions.clear();
        log.calls.clear();
        saveState.text.clear();
    }

    void act() {
        script();
        std::optional<FullDisk> fault;
        if (below(12) == 0)
            fault.emplace(1000 + below(20000));
        QString what = command();
        autosaveFailed_ = saveState.text.startsWith(u"not saved"_s);
        done.append(fault ? what + u" on a full disk"_s : what);
        command_ = what;
    }

    QString command() {
        switch (below(13)) {
        case 0:
        case 1:
        case 2:
            if (screen.welcome)
                commands.lblRecentPatents_Click(0);
            type(nextText());
            if (below(3) == 0)
                type(project.fields.txtFileNo, number());
            return u"types"_s;
        case 3:
        case 4:
            waitForAutosave();
            return u"waits"_s;
        case 5:
            commands.mnuFileSave_Click();
            return u"saves"_s;
        case 6:
            commands.mnuFileSaveAs_Click();
            return u"saves as"_s;
        case 7:
            commands.mnuFileNew_Click();
            return u"new"_s;
        case 8:
            commands.mnuFileOpen_Click();
            return u"opens"_s;
        case 9:
            commands.lblRecentPatents_Click(static_cast<int>(below(6)));
            return u"opens a recent one"_s;
        case 10:
            if (!screen.welcome)
                commands.mnuGotoWelcomePage_Click();
            return u"welcome"_s;
        case 11:
            exit();
            return u"exits"_s;
        default:
            startProgram();
            crashed_ = true;
            return u"is killed"_s;
        }
    }

    void exit() {
        const QString file = project.state.realFileName;
        const bool hasShadow = shadow.isOwn(project.state.shadowFileName) &&
                               !project.state.isRefused && project.state.draftFileName.isEmpty();
        if (!commands.queryUnload())
            return;
        if (hasShadow && wasAskedToSave() && answer_ == Answer::No && explicit_) {
            EXPECT_EQ(operationIn(file), *explicit_) << "what the user saved last";
        }
        startProgram();
    }

    bool wasAskedToSave() const { return boxes().contains(u"Save Project?"_s); }

    // What has to hold

    void remember() {
        filesBefore_ = filesOnDisk();
        stateBefore_ = project.state;
        textBefore_ = project.fields.txtOperation.text();
        changedBefore_ = isChanged();
        crashed_ = false;
    }

    /// The names stand in one of the five rows in which they can stand.
    void checkState() {
        const auto [name, draft, copy] = names3();
        const bool isNew = name.isEmpty() && draft.isEmpty() && copy.isEmpty();
        const bool isDraft = isDraftPath(name) && draft == name && copy.isEmpty();
        const bool isOpenedDraft = isDraftPath(name) && draft.isEmpty() && copy.isEmpty();
        const bool isNamed = !name.isEmpty() && !isDraftPath(name) && draft.isEmpty() &&
                             (copy.isEmpty() || isDraftPath(copy));
        EXPECT_TRUE(isNew || isDraft || isOpenedDraft || isNamed)
            << qPrintable(name + u" | "_s + draft + u" | "_s + copy);
        const ProjectState& state = project.state;
        EXPECT_EQ(state.commandsRunning, 0);
        EXPECT_FALSE(state.isAutoSaving || state.isLoading);
        EXPECT_EQ(screen.autoSave || screen.welcome, true) << "a shown project is saved on its own";
    }

    /// A command touches no file but those of the project before it and after it, and the one that
    /// the user was ready to have written over.
    void checkFiles() {
        const Files files = filesOnDisk();
        const ProjectState& state = project.state;
        const QStringList own{
            stateBefore_.projectFileName, stateBefore_.draftFileName, stateBefore_.realFileName,
            stateBefore_.shadowFileName,  state.projectFileName,      state.draftFileName,
            state.realFileName,           state.shadowFileName,       chosen_};
        for (auto file = filesBefore_.cbegin(); file != filesBefore_.cend(); ++file)
            if (!own.contains(file.key())) {
                EXPECT_TRUE(files.value(file.key()) == file.value()) << qPrintable(file.key());
            }
        EXPECT_FALSE(QDirIterator(workDir, {u".new*"_s}, QDir::AllEntries | QDir::Hidden,
                                  QDirIterator::Subdirectories)
                         .hasNext());
    }

    bool isOnDisk(const QString& text) const {
        const QStringList paths = filesOnDisk().keys();
        return std::any_of(paths.begin(), paths.end(),
                           [&](const QString& path) { return operationIn(path) == text; });
    }

    void checkText() {
        const QString text = project.fields.txtOperation.text();
        const bool failed = boxes().contains(u"Error"_s);
        const bool isLeft = text != textBefore_ && command_ != u"types";
        const bool gaveUp = wasAskedToSave() && answer_ == Answer::No;
        // Before its first save by the timer a text is only on the screen.
        if (isLeft && !gaveUp && !crashed_ && !textBefore_.isEmpty()) {
            EXPECT_TRUE(isOnDisk(textBefore_)) << "lost: " << qPrintable(textBefore_);
        }
        if (crashed_ && !changedBefore_ && !textBefore_.isEmpty() && !stateBefore_.isRefused) {
            EXPECT_TRUE(isOnDisk(textBefore_)) << "lost: " << qPrintable(textBefore_);
        }
        if (command_ == u"waits" && screen.autoSave && changedBefore_ && !autosaveFailed_) {
            const QString file = project.state.isRefused ? project.state.shadowFileName
                                                         : project.state.projectFileName;
            EXPECT_EQ(operationIn(file), text);
        }
        if (!project.state.projectFileName.isEmpty() && !isChanged() && !failed &&
            !project.state.isRefused) {
            EXPECT_EQ(operationIn(project.state.projectFileName), text);
            explicit_ = text;
        }
    }

    std::mt19937 random_;
    int texts_ = 0;
    Answer answer_ = Answer::Cancel;
    /// The name that the user takes, and lets be written over, if the command asks for one.
    QString chosen_;
    Files filesBefore_;
    ProjectState stateBefore_;
    QString textBefore_;
    QString command_;
    bool autosaveFailed_ = false;
    bool changedBefore_ = false;
    bool crashed_ = false;
    /// What the project held when it was last opened or saved by the user.
    std::optional<QString> explicit_;
};

unsigned fromEnvironment(const char* name, unsigned otherwise) {
    const char* const text = std::getenv(name);
    return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

} // namespace

// QUILLFORD_SESSIONS and QUILLFORD_FIRST_SESSION let the test run longer, or one session again.
TEST(RandomSessions, no_session_loses_a_text_or_mixes_up_its_files) {
    constexpr int Steps = 14;
    const unsigned first = fromEnvironment("QUILLFORD_FIRST_SESSION", 1);
    const unsigned count = fromEnvironment("QUILLFORD_SESSIONS", 1000);
    for (unsigned seed = first; seed < first + count; ++seed) {
        RandomSession session(seed);
        for (int i = 0; i < Steps; ++i)
            ASSERT_TRUE(session.step())
                << "session " << seed << ": " << qPrintable(session.done.join(u", "_s));
    }
}
