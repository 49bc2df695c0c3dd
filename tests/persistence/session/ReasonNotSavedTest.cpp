#include "persistence/session/ReasonNotSaved.h"

#include "persistence/compound/StorageError.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

TEST(ReasonNotSaved, tells_what_the_storage_has_met) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"easel.ivd"_s);
    const auto reason = [&](StorageCode code) {
        return reasonNotSaved(path, storageError(code, path));
    };
    EXPECT_EQ(reason(StorageCode::MediumFull), u"disk full");
    EXPECT_EQ(reason(StorageCode::ShareViolation), u"file in use");
    EXPECT_EQ(reason(StorageCode::InvalidHeader), u"file damaged");
    EXPECT_EQ(reason(StorageCode::DocumentCorrupt), u"file damaged");
    EXPECT_EQ(reason(StorageCode::FileAlreadyExists), u"file damaged");
    EXPECT_EQ(reason(StorageCode::WriteFault), u"The file could not be written.");
}

TEST(ReasonNotSaved, looks_at_the_folder_where_the_file_cannot_be_reached) {
    const QTemporaryDir folder;
    const QString inNone = folder.filePath(u"none/easel.ivd"_s);
    EXPECT_EQ(reasonNotSaved(inNone, storageError(StorageCode::PathNotFound, inNone)),
              u"folder does not exist");
    EXPECT_EQ(reasonNotSaved(folder.path(), storageError(StorageCode::AccessDenied, folder.path())),
              u"a folder has this name");
}

TEST(ReasonNotSaved, does_not_lay_a_picture_that_is_gone_at_the_folders_door) {
    const QTemporaryDir folder;
    const Error picture(SubscriptNumber, u"the picture holds no bytes"_s, u"/p/fig1.png"_s);
    EXPECT_EQ(reasonNotSaved(folder.filePath(u"none/easel.ivd"_s), picture),
              u"the picture holds no bytes");
}
