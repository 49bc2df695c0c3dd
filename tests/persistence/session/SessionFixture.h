#pragma once

#include "core/commands/NewProject.h"
#include "core/commands/ProjectCommands.h"
#include "core/fields/SaveFlag.h"
#include "core/settings/PathParts.h"
#include "core/wizard/WizardFixture.h"
#include "persistence/project/ProjectReader.h"
#include "persistence/project/ProjectWriter.h"
#include "persistence/project/WorkingCopies.h"
#include "persistence/session/AutoSave.h"
#include "persistence/session/ProjectFiler.h"
#include "support/FakeClock.h"
#include "support/FakeFolders.h"
#include "support/FakePictureReader.h"
#include "support/FakeSaveStateLine.h"
#include "support/FakeSpellEngine.h"
#include "support/Files.h"
#include "support/FullDisk.h"

#include <QTemporaryDir>

#include <tuple>

namespace quillford {

/// The program without its window: commands, files and the recent list in a home of their own, from
/// the moment the form stands under the Welcome page.
class SessionFixture : public WizardFixture {
protected:
    using Answer = UserPrompts::Answer;

    SessionFixture() {
        folders.documents = home.path();
        folders.temporary = home.filePath(QStringLiteral("temp"));
        folders.localData = home.filePath(QStringLiteral("data"));
        folders.state = home.filePath(QStringLiteral("state"));
        EXPECT_TRUE(QDir().mkpath(folders.temporary));
        workDir = workFolders.getWorkDir();
        clock.factor = 0;
        newProject.NewFile();
    }

    /// No test here asks what a power cut leaves, and each save waits for the disk.
    static QString folderInMemory() {
        const QFileInfo memory(QStringLiteral("/dev/shm"));
        return memory.isDir() && memory.isWritable() ? memory.filePath() : QDir::tempPath();
    }

    QString inProjects(const QString& name) const {
        return workDir + QStringLiteral("/Projects/") + name;
    }

    QString inDrafts(const QString& name) const {
        return workDir + QStringLiteral("/Drafts/") + name;
    }

    QStringList drafts() const {
        return QDir(inDrafts({})).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    void type(Field& field, const QString& text) { field.setText(text); }

    void type(const QString& text) { type(project.fields.txtOperation, text); }

    /// Six ticks of the timer, if it is on: a save when there are changes.
    void waitForAutosave() {
        for (int i = 0; i < 6 && screen.autoSave; ++i)
            autoSave.tmrAutoSave_Timer();
    }

    /// Writes a project of its own into a file: its file number, and what it does.
    QString makeProject(const QString& path, const QString& number, const QString& operation) {
        Project other;
        other.fields.txtFileNo.setText(number);
        other.fields.txtOperation.setText(operation);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        ProjectWriter(other).write(path, ProjectWriter::Durability::Flushed);
        return path;
    }

    /// `txtOperation` as it stands in a file.
    static QString operationIn(const QString& path) {
        Project read;
        try {
            readProject(path, read);
        } catch (const Error& error) {
            return QStringLiteral("not read: ") + error.description();
        }
        return read.fields.txtOperation.text();
    }

    QString setting(const QString& name) const {
        return settings.regRead(Hive::CurrentUser, settingsNames::SettingsKey, name);
    }

    /// Values of the recent list, those that are missing left out.
    QStringList listed() const {
        QStringList entries;
        for (int i = 1; i <= 5; ++i)
            entries.append(setting(QStringLiteral("file%1").arg(i)));
        entries.removeAll(QString());
        return entries;
    }

    std::tuple<QString, QString, QString> names3() const {
        const ProjectState& state = project.state;
        return {state.projectFileName, state.draftFileName, state.shadowFileName};
    }

    bool isChanged() { return GetSaveFlag(project.fields, project.state); }

    void openFromDialog(const QString& path) {
        prompts.filesToOpen.push_back(path);
        commands.mnuFileOpen_Click();
    }

    void saveUnder(const QString& path) {
        prompts.filesToSave.push_back(path);
        commands.mnuFileSave_Click();
    }

    QTemporaryDir home{folderInMemory() + QStringLiteral("/session-XXXXXX")};
    FakeFolders folders;
    WorkFolders workFolders{settings, folders};
    QString workDir;
    FakeSaveStateLine saveState;
    WindowTitle title{screen};
    SaveDialog saveDialog{project.fields, workFolders, prompts};
    RecentProjects recent{settings, project};
    DraftNames names{project.fields, workFolders};
    ShadowCopy shadow;
    FakeClock clock;
    Backups backups{folders, clock};
    ProjectSaver saver{project, workFolders, saveDialog, recent,  shadow,
                       backups, title,       saveState,  prompts, clock};
    FakePictureReader pictures;
    WorkingCopies copies{project.fields, folders, pictures};
    ProjectOpener opener{
        project,    system,
        rules,      navigator,
        screen.all, {saver, names, workFolders, recent, copies, title, saveState, prompts},
        clock};
    ProjectFiler filer{project.state, saver, opener, recent, shadow, prompts};
    FakeSpellEngine spelling;
    NewProject newProject{project, system, rules, navigator, screen.all, filer, spelling, clock};
    ProjectCommands commands{project,    navigator,   screen.all, newProject, filer,
                             saveDialog, workFolders, title,      saveState,  prompts};
    QTimer timer;
    AutoSave autoSave{timer, project, filer, names, saveState, clock};
};

} // namespace quillford
