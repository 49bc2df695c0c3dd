#include "core/fields/FieldTable.h"
#include "core/wizard/FocusOrder.h"
#include "persistence/project/PictureList.h"
#include "persistence/project/ProjectReader.h"
#include "support/Files.h"
#include "typed/ProjectTypist.h"

#include <QCryptographicHash>
#include <QTextEdit>

using namespace quillford;

namespace {

class WholeProject : public ProjectTypist {
protected:
    WholeProject()
        : ProjectTypist(QStringLiteral(QUILLFORD_SAMPLES "/folding-easel/folding-easel.json")) {}

    void expectWarning(const Answer& answer) { whenAsked(u"Section Not Complete"_s, answer); }

    void expectAdvice(const Answer& answer) {
        whenAsked(u"Drawings - Important Information!"_s, answer);
    }

    void next() {
        hands->click(u"btnStep(1)"_s);
        hands->comeBack();
    }

    void back() { hands->click(u"btnStep(0)"_s); }

    [[nodiscard]] bool isMarkedComplete(int tab) const {
        return hands->control(controlName(u"picTab", tab)).accessibleName().contains(u"complete");
    }

    void typeIntroduction() {
        expectWarning(presses(u"cmdNo"_s));
        next();
        typeSection(1);
        next();
    }

    void typeInventors() {
        chooseCount(u"cboInventorsNum"_s, told.fields.cboInventorsNum.number());
        whenAsked(u"Information"_s, QMessageBox::Yes,
                  u"Do you want Quillford 3.1 to use the information provided in section "
                  "1.Introduction for the First Inventor?"_s);
        hands->tabTo(u"chkSameAsContact"_s);
        hands->press(Qt::Key_Space);
        hands->comeBack();
        typeSection(2);
        clickTab(2);
    }

    void typeObjects() {
        chooseCount(u"cboObjectNum"_s, told.fields.cboObjectNum.number());
        typeSection(3);
        expectAdvice(presses(u"cmdOK"_s));
        next();
    }

    void typeFigures() {
        chooseCount(u"cboFiguresNum"_s, told.fields.cboFiguresNum.number());
        attachPictures();
        // A look back at the section before, and in again.
        expectWarning(ticksAndPresses(u"cmdYes"_s));
        clickTab(2);
        expectAdvice(ticksAndPresses(u"cmdOK"_s));
        next();
        typeSection(4);
        back();
        next();
        next();
    }

    void typeElements() {
        chooseCount(u"cboMainElementNum"_s, told.fields.cboMainElementNum.number());
        typeSection(5);
        next();
        typeSection(6);
        clickTab(6);
        typeSection(7);
        next();
        typeSection(8);
    }

    void typeAll() {
        typeIntroduction();
        typeInventors();
        typeObjects();
        typeFigures();
        typeElements();
    }
};

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
    for (int tab = 0; tab <= 8; ++tab)
        EXPECT_TRUE(isMarkedComplete(tab)) << tab;
    EXPECT_TRUE(hands->control(u"imgCreateToFile(1)"_s).isEnabled());
    const QString draft = hands->control<QTextEdit>(u"webPreview"_s).toPlainText();
    for (const QString& part : {told.fields.txtInventionTitle.text(), u"tilting mast 40"_s})
        EXPECT_TRUE(draft.contains(part, Qt::CaseInsensitive)) << qPrintable(part);
}
