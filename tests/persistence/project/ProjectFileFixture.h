#pragma once

#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/project/ProjectFileReader.h"
#include "persistence/project/ProjectWriter.h"
#include "persistence/project/WorkingCopies.h"
#include "support/FakeFolders.h"
#include "support/FakePictureReader.h"
#include "support/FakePrompts.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillford {

/// A project file in a folder of its own, and what writing and reading one needs.
class ProjectFileFixture : public testing::Test {
protected:
    ProjectFileFixture() { folders.temporary = folder.path() + QStringLiteral("/temp"); }

    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        ASSERT_TRUE(QDir().mkpath(folders.temporary));
    }

    [[nodiscard]] QString inFolder(const QString& name) const {
        return folder.path() + u'/' + name;
    }

    [[nodiscard]] QString file() const { return inFolder(QStringLiteral("project.ivd")); }

    void write(const Project& project) {
        ProjectWriter(project, prompts).write(file(), ProjectWriter::Durability::Flushed);
    }

    ReadReport read(Project& project) {
        WorkingCopies copies(project.fields, folders, pictures);
        return ProjectFileReader(project, copies).read(file());
    }

    /// Does something to the root of the file as it lies there.
    template <typename Change>
    void change(Change&& step) {
        Storage root = OpenStorageFile(file());
        step(root);
        root.Commit(0);
    }

    /// The values of a stream, read as the types that are given.
    [[nodiscard]] std::vector<FieldValue> values(const QString& name,
                                                 const std::vector<qint32>& types) {
        Storage root = OpenStorageFile(file());
        Stream stream = root.OpenStream(name, StorageMode::Exclusive);
        std::vector<FieldValue> read;
        for (const qint32 type : types)
            read.push_back(stream.ReadData(type));
        return read;
    }

    [[nodiscard]] QStringList texts(const QString& name, std::size_t count) {
        QStringList read;
        for (const FieldValue& value : values(name, std::vector<qint32>(count, FieldType::String)))
            read.append(std::get<QString>(value));
        return read;
    }

    [[nodiscard]] qint64 sizeOf(const QString& name) {
        Storage root = OpenStorageFile(file());
        return root.OpenStream(name, StorageMode::Exclusive).Stat().Size();
    }

    QString makeFile(const QString& name, const QByteArray& content) const {
        writeFile(inFolder(name), content);
        return inFolder(name);
    }

    /// Gives the project `count` figures, each attached from a file of its own.
    void attachFigures(Project& project, int count) {
        project.fields.cboFiguresNum.setText(QString::number(count));
        project.fields.setPanelCount(FieldGroup::Figures, count);
        for (int i = 0; i < count; ++i)
            project.fields.txtAttachFig(i).setText(makeFile(
                QStringLiteral("fig%1.png").arg(i), QByteArray("picture ") + char('0' + i)));
    }

    QTemporaryDir folder;
    FakeFolders folders;
    FakePictureReader pictures;
    FakePrompts prompts;
};

} // namespace quillford
