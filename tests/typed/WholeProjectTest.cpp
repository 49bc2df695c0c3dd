#include "core/fields/FieldTable.h"
#include "persistence/project/PictureList.h"
#include "persistence/project/ProjectReader.h"
#include "support/Files.h"
#include "typed/SampleTypist.h"

#include <QCryptographicHash>
#include <QTextEdit>

using namespace quillford;

namespace {

using WholeProject = SampleTypist;

QByteArray sha256(const QString& path) {
    return QCryptographicHash::hash(contentOf(path), QCryptographicHash::Sha256);
}

} // namespace

TEST_F(WholeProject, typed_in_through_all_sections_is_saved_field_by_field_as_it_was_told) {
    typeAll();
    const QString path = place(u"easel.ivd"_s);
    saveAs(path);

    Project saved;
    PictureList pictures;
    readProject(path, saved, pictures);
    int compared = 0;
    for (const FieldRow& row : fieldTable()) {
        ASSERT_EQ(saved.fields.count(row.id), told.fields.count(row.id))
            << row.name.toString().toStdString();
        for (int i = 0; i < told.fields.count(row.id); ++i, ++compared)
            EXPECT_EQ(saved.fields.at(row.id, i).text(), told.fields.at(row.id, i).text())
                << row.name.toString().toStdString() << " " << i;
    }
    EXPECT_GT(compared, 150);
    ASSERT_EQ(pictures.pictures().size(), 5);
    for (const PictureList::Picture& picture : pictures.pictures())
        EXPECT_EQ(picture.sha256, sha256(picture.path)) << picture.figure;
}

TEST_F(WholeProject, typed_in_through_all_sections_completes_them_and_shows_the_final_draft) {
    typeAll();
    whenAsked(u"Save Project?"_s, QMessageBox::Yes,
              u"It is recommended you save your project before creating a final draft. Do you wish "
              "to save your project now?"_s);
    whenAskedForFile(place(u"easel.ivd"_s));
    next();
    EXPECT_TRUE(user.allCame());
    for (int index = 0; index < 8; ++index)
        EXPECT_EQ(tab(index).look(), TabLook::Complete) << index;
    EXPECT_EQ(tab(8).look(), TabLook::CompleteSelected);
    EXPECT_TRUE(control(u"imgCreateToFile(1)"_s).isEnabled());
    const QString draft = control<QTextEdit>(u"webPreview"_s).toPlainText();
    for (const QString& part : {told.fields.txtInventionTitle.text(), u"tilting mast 40"_s})
        EXPECT_TRUE(draft.contains(part, Qt::CaseInsensitive)) << qPrintable(part);
}
