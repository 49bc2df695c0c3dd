#include "core/rules/FigureSize.h"

#include "support/FakePictureReader.h"
#include "support/PrintQt.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Sizes {
    QSize picture;
    QSize draft;
};

template <std::size_t count>
void expectEach(const Sizes (&sizes)[count]) {
    for (const auto& [picture, draft] : sizes)
        EXPECT_EQ(computeFigureSize(picture), draft)
            << picture.width() << " by " << picture.height();
}

/// Figures whose files lie in a folder of their own.
class MeasuredFigures : public testing::Test {
protected:
    QString makeFile(const QString& name) const {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
        return path;
    }

    QTemporaryDir folder;
    ProjectFields fields;
    FakePictureReader pictures;
};

} // namespace

TEST(FigureSize, is_the_pictures_own_below_both_limits) {
    expectEach({{{100, 100}, {100, 100}},
                {{659, 809}, {659, 809}},
                {{1, 809}, {1, 809}},
                {{659, 1}, {659, 1}},
                {{1, 1}, {1, 1}},
                {{0, 0}, {0, 0}}});
}

TEST(FigureSize, fits_the_width_of_a_picture_that_is_only_too_wide) {
    expectEach({{{800, 600}, {660, 495}},
                {{660, 809}, {660, 809}},
                {{660, 1}, {660, 1}},
                {{661, 809}, {660, 808}},
                {{809, 809}, {660, 660}},
                {{100'000, 1}, {660, 0}}});
}

TEST(FigureSize, squeezes_a_picture_that_is_only_too_high) {
    expectEach({{{500, 1000}, {405, 660}},
                {{659, 810}, {659, 660}},
                {{1, 810}, {1, 660}},
                {{659, 811}, {658, 660}},
                {{1, 100'000}, {0, 660}}});
}

TEST(FigureSize, fits_the_width_of_a_large_picture_that_is_wide_or_square) {
    expectEach({{{810, 810}, {660, 660}},
                {{1000, 1000}, {660, 660}},
                {{1000, 900}, {660, 594}},
                {{4000, 3000}, {660, 495}}});
}

TEST(FigureSize, fits_the_height_of_a_large_high_picture_where_the_width_then_fits) {
    expectEach({{{700, 1000}, {567, 810}},
                {{660, 810}, {660, 810}},
                {{660, 811}, {659, 810}},
                {{1320, 1620}, {660, 810}},
                {{1000, 5000}, {162, 810}}});
}

TEST(FigureSize, fits_the_width_of_a_large_high_picture_where_it_would_not_fit) {
    expectEach({{{900, 1000}, {660, 733}},
                {{661, 810}, {660, 809}},
                {{1321, 1620}, {660, 809}},
                {{999, 1000}, {660, 661}}});
}

TEST(FigureSize, rounds_a_half_to_the_even_number_in_every_case) {
    expectEach({{{1320, 601}, {660, 300}}, // 300.5
                {{1320, 603}, {660, 302}}, // 301.5
                {{601, 1620}, {300, 660}},
                {{603, 1620}, {302, 660}},
                {{1320, 1001}, {660, 500}},
                {{1320, 1003}, {660, 502}},
                {{661, 1620}, {330, 810}},
                {{663, 1620}, {332, 810}},
                {{1320, 1401}, {660, 700}},
                {{1320, 1403}, {660, 702}}});
}

TEST(FigureSize, holds_for_sizes_that_would_overflow_a_product_of_integers) {
    constexpr int Huge = 2'147'483'647;
    expectEach({{{Huge, Huge}, {660, 660}},
                {{Huge, 810}, {660, 0}},
                {{660, Huge}, {0, 810}},
                {{30'000, 40'000}, {608, 810}}});
}

TEST_F(MeasuredFigures, have_their_size_beside_the_field_in_plain_decimal) {
    fields.setPanelCount(FieldGroup::Figures, 2);
    for (const auto& [index, size] : {std::pair(0, QSize(700, 1000)), std::pair(1, QSize(20, 9))}) {
        const QString path = makeFile(QString::number(index) + u".png"_s);
        fields.txtAttachFig(index).setText(path);
        pictures.sizes.insert(path, size);
    }
    measureFigures(fields, pictures);
    EXPECT_EQ(fields.figureState(0).sizeText, u"567, 810"_s);
    EXPECT_EQ(fields.figureState(1).sizeText, u"20, 9"_s);
}

TEST_F(MeasuredFigures, are_measured_by_the_working_copy_when_the_file_has_gone) {
    fields.txtAttachFig(0).setText(folder.filePath(u"gone.png"_s));
    fields.figureState(0).workingCopy = u"/copies/gone.png"_s;
    pictures.sizes.insert(u"/copies/gone.png"_s, QSize(800, 600));
    measureFigures(fields, pictures);
    EXPECT_EQ(pictures.asked, QStringList{u"/copies/gone.png"_s});
    EXPECT_EQ(fields.figureState(0).sizeText, u"660, 495"_s);
}

TEST_F(MeasuredFigures, lose_their_size_when_the_picture_cannot_be_read) {
    fields.txtAttachFig(0).setText(makeFile(u"broken.png"_s));
    fields.figureState(0).sizeText = u"1, 2"_s;
    measureFigures(fields, pictures);
    EXPECT_EQ(fields.figureState(0).sizeText, QString());
}

TEST_F(MeasuredFigures, keep_their_size_when_no_picture_is_attached) {
    for (const QString& nothing : {u""_s, u"   "_s}) {
        fields.txtAttachFig(0).setText(nothing);
        fields.figureState(0) = {u"/copies/removed.png"_s, u"1, 2"_s};
        pictures.sizes.insert(u"/copies/removed.png"_s, QSize(800, 600));
        measureFigures(fields, pictures);
        EXPECT_TRUE(pictures.asked.isEmpty());
        EXPECT_EQ(fields.figureState(0).sizeText, u"1, 2"_s);
    }
}

TEST_F(MeasuredFigures, change_no_field) {
    fields.txtAttachFig(0).loadText(makeFile(u"a.png"_s));
    measureFigures(fields, pictures);
    EXPECT_FALSE(fields.txtAttachFig(0).isChanged());
}

TEST_F(MeasuredFigures, take_the_attached_file_before_the_working_copy) {
    const QString path = makeFile(u"a.png"_s);
    fields.txtAttachFig(0).setText(path);
    fields.figureState(0).workingCopy = makeFile(u"copy.png"_s);
    EXPECT_EQ(figurePath(fields, 0), path);
}

TEST_F(MeasuredFigures, take_the_attached_path_as_it_stands) {
    // Blanks are characters of a file's name like others.
    const QString path = makeFile(u"drawing.png "_s);
    fields.figureState(0).workingCopy = u"/copies/0.png"_s;
    fields.txtAttachFig(0).setText(path);
    EXPECT_EQ(figurePath(fields, 0), path);
    fields.txtAttachFig(0).setText(path + u' ');
    EXPECT_EQ(figurePath(fields, 0), u"/copies/0.png"_s);
}

TEST_F(MeasuredFigures, do_not_take_a_folder_for_a_file) {
    fields.txtAttachFig(0).setText(folder.path());
    fields.figureState(0).workingCopy = u"/copies/0.png"_s;
    EXPECT_EQ(figurePath(fields, 0), u"/copies/0.png"_s);
}

TEST_F(MeasuredFigures, name_the_working_copy_even_when_it_is_missing_too) {
    EXPECT_EQ(figurePath(fields, 0), QString());
    fields.figureState(0).workingCopy = u"/copies/missing.png"_s;
    EXPECT_EQ(figurePath(fields, 0), u"/copies/missing.png"_s);
}
