#pragma once

#include "PropertySetTesting.h"
#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/project/DocProperties.h"

#include <QFile>
#include <QTemporaryDir>

namespace quillford {

/// A compound file in a folder of its own, with the three sets of a new project file.
class DocPropertiesFixture : public testing::Test {
protected:
    static inline const QString SummaryStream = QStringLiteral("\005SummaryInformation");
    static inline const QString DocumentStream = QStringLiteral("\005DocumentSummaryInformation");

    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        create(false);
    }

    [[nodiscard]] QString inFolder(const QString& name) const {
        return folder.path() + u'/' + name;
    }

    [[nodiscard]] QString file() const { return inFolder(QStringLiteral("project.ivd")); }

    [[nodiscard]] QByteArray bytes() const { return contentOfFile(file()); }

    /// Makes the file anew; with narrow texts when `ansi` is set.
    void create(bool ansi) const {
        QFile::remove(file());
        bool createProps = true;
        bool overwrite = false;
        CreateStorageFile(file(), createProps, ansi, overwrite).Commit(0);
    }

    /// The path of a copy of the file as it lies there now.
    [[nodiscard]] QString copyOfFile() const {
        const QString copy = inFolder(QStringLiteral("copy.ivd"));
        QFile::remove(copy);
        EXPECT_TRUE(QFile::copy(file(), copy));
        return copy;
    }

    /// Puts `content` in the place of a stream.
    void replaceStream(const QString& name, const QByteArray& content) const {
        Storage root = OpenStorageFile(file());
        Stream stream = root.CreateStream(name, StorageMode::ExclusiveCreate);
        stream.write(propertyset::bytesOf(content));
        stream.Commit(0);
    }

    [[nodiscard]] QByteArray contentOfStream(const QString& name) const {
        QByteArray content;
        Storage root = OpenStorageFile(file());
        Stream stream = root.OpenStream(name, StorageMode::Exclusive);
        const auto size = static_cast<qint32>(stream.Stat().Size());
        EXPECT_EQ(stream.ReadBuf(content, size), size);
        return content;
    }

    QTemporaryDir folder;
};

} // namespace quillford
