#include "controls/LineField.h"
#include "editors/pages/FiguresPageFixture.h"
#include "editors/pages/PageFigures.h"
#include "support/PeakMemory.h"

#include <QClipboard>
#include <QMimeData>
#include <QTest>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

/// Pictures as users attach them to the page of Section 4, good ones and bad ones.
namespace {

class FigurePicturesTest : public FiguresPageFixture {
protected:
    [[nodiscard]] QString attached() const { return control<LineField>(u"txtAttachFig", 0).text(); }

    [[nodiscard]] QString sizeText() const { return fields.figureState(0).sizeText; }

    [[nodiscard]] bool saysNoPreview() const {
        return control(u"lblNoFigure", 0).isVisibleTo(&control(u"picFigures", 0));
    }

    [[nodiscard]] QStringList titles() const {
        QStringList found;
        for (const FakePrompts::Box& box : prompts.boxes)
            found.append(box.title);
        return found;
    }

    /// A white square of this side, in a file that is small enough to be attached.
    [[nodiscard]] QString plainPicture(const QString& name, int side, QImage::Format format) const {
        QImage image(side, side, format);
        image.fill(Qt::white);
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path));
        EXPECT_LE(QFileInfo(path).size(), 2097152);
        return path;
    }

    /// The bytes of a file, with zeros behind them up to this size; a decoder stops before those.
    [[nodiscard]] QString paddedTo(qint64 bytes, const QString& path) const {
        QFile grown(path);
        EXPECT_TRUE(grown.open(QIODevice::ReadWrite) && grown.resize(bytes));
        return path;
    }
};

/// An animation of two frames of 2 by 1 pixels: the first white, the second black.
QByteArray animation() {
    const QByteArray frame = "21f9040464000000"      // shown for a second
                             "2c000000000200010000"; // at the left top, 2 by 1
    return QByteArray::fromHex("474946383961"        // GIF89a
                               "02000100"            // 2 by 1
                               "800000"              // a table of two colours
                               "000000ffffff" +
                               frame + "02024c0a00" + // two white pixels
                               frame + "0202040a00" + // two black pixels
                               "3b");
}

} // namespace

TEST_F(FigurePicturesTest, the_size_for_the_final_draft_is_kept_beside_the_field) {
    const struct {
        QSize pixels;
        QString text;
    } cases[] = {{{700, 1000}, u"567, 810"_s},
                 {{900, 1000}, u"660, 733"_s},
                 {{500, 1000}, u"405, 660"_s},
                 {{800, 600}, u"660, 495"_s},
                 {{100, 100}, u"100, 100"_s}};

    for (const auto& [pixels, text] : cases) {
        browse(picture(u"scan.png"_s, pixels));
        EXPECT_EQ(sizeText(), text);
    }
}

TEST_F(FigurePicturesTest, a_picture_is_fitted_into_the_square_and_centred) {
    EXPECT_TRUE(saysNoPreview());
    browse(picture(u"wide.png"_s, {800, 600}));
    EXPECT_FALSE(saysNoPreview());
    EXPECT_EQ(previewPlace(), QRect(0, 16, 128, 96));
    EXPECT_EQ(preview().size(), QSize(128, 96));
    EXPECT_EQ(preview().pixelColor(64, 10), QColor(Qt::black));
    EXPECT_EQ(preview().pixelColor(64, 85), QColor(Qt::white));
    browse(picture(u"small.png"_s, {40, 20}));
    EXPECT_EQ(previewPlace(), QRect(44, 54, 40, 20));
    EXPECT_EQ(attached(), folder.filePath(u"small.png"_s));
}

TEST_F(FigurePicturesTest, every_kind_that_may_be_attached_is_shown) {
    for (const char* kind : {"JPG", "BMP", "PNG"}) {
        const QString path = picture(u"scan."_s + QString::fromLatin1(kind), {40, 20}, kind);
        browse(path);
        EXPECT_EQ(attached(), path);
        EXPECT_EQ(preview().size(), QSize(40, 20)) << kind;
        remove(0);
        EXPECT_TRUE(preview().isNull());
    }
    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FigurePicturesTest, of_an_animation_the_first_frame_is_shown) {
    browse(file(u"moving.gif"_s, animation()));
    ASSERT_EQ(preview().size(), QSize(2, 1));
    EXPECT_EQ(preview().pixelColor(0, 0), QColor(Qt::white));
    QTest::qWait(50);
    EXPECT_EQ(preview().pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(FigurePicturesTest, a_picture_under_the_ending_of_another_kind_is_shown) {
    browse(picture(u"really-png.jpg"_s, {40, 20}, "PNG"));
    EXPECT_EQ(preview().size(), QSize(40, 20));
    EXPECT_EQ(sizeText(), u"40, 20"_s);
}

TEST_F(FigurePicturesTest, what_cannot_be_decoded_is_attached_under_the_old_preview) {
    browse(picture(u"good.png"_s, {40, 20}));
    for (const QString& path : {file(u"empty.png"_s, {}), file(u"text.png"_s, "not a picture"),
                                file(u"half.png"_s, "\x89PNG\r\n\x1a\n")}) {
        browse(path);
        EXPECT_EQ(attached(), path);
        EXPECT_FALSE(saysNoPreview());
        EXPECT_EQ(preview().size(), QSize(40, 20));
        EXPECT_EQ(sizeText(), u"40, 20"_s);
    }
    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FigurePicturesTest, a_path_that_vanishes_while_it_is_chosen_ends_silently) {
    browse(picture(u"good.png"_s, {40, 20}));
    browse(folder.filePath(u"gone.png"_s));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(preview().size(), QSize(40, 20));
    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FigurePicturesTest, a_file_that_vanishes_later_leaves_path_and_preview) {
    const QString path = picture(u"good.png"_s, {40, 20});
    browse(path);
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(attached(), path);
    EXPECT_EQ(preview().size(), QSize(40, 20));
}

TEST_F(FigurePicturesTest, a_picture_over_the_limit_of_memory_counts_as_undecodable) {
    for (const auto format : {QImage::Format_Mono, QImage::Format_Grayscale8}) {
        const QString path = plainPicture(u"huge.png"_s, 20000, format);
        const PeakMemory memory;
        browse(path);
        EXPECT_LT(memory.growthInBytes(), 256LL << 20);
        EXPECT_EQ(attached(), path);
        EXPECT_TRUE(preview().isNull());
        EXPECT_EQ(sizeText(), QString());
    }
}

TEST_F(FigurePicturesTest, a_picture_just_below_the_limit_is_previewed_without_a_copy_of_it) {
    const QString path = plainPicture(u"large.png"_s, 8000, QImage::Format_Grayscale8);
    const PeakMemory memory;
    browse(path);
    EXPECT_LT(memory.growthInBytes(), 128LL << 20);
    EXPECT_EQ(sizeText(), u"660, 660"_s);
    ASSERT_EQ(preview().size(), QSize(128, 128));
    EXPECT_EQ(preview().pixelColor(64, 64), QColor(Qt::white));
}

TEST_F(FigurePicturesTest, one_byte_over_2_megabytes_is_refused_and_takes_the_preview_away) {
    browse(picture(u"good.png"_s, {40, 20}));
    browse(paddedTo(2097153, picture(u"large.png"_s, {40, 20})));
    EXPECT_EQ(prompts.boxes,
              std::vector<FakePrompts::Box>({{UserPrompts::Icon::Information, u"Information"_s,
                                              u"Figure size is greater than 1024k."_s}}));
    EXPECT_EQ(attached(), QString());
    EXPECT_TRUE(saysNoPreview());
    EXPECT_TRUE(preview().isNull());
}

TEST_F(FigurePicturesTest, a_file_over_1024_kilobytes_passes_without_a_message) {
    for (const qint64 bytes : {1500000, 2097152}) {
        browse(paddedTo(bytes, picture(u"scan.JPG"_s, {40, 20}, "PNG")));
        EXPECT_EQ(attached(), folder.filePath(u"scan.JPG"_s));
        EXPECT_EQ(preview().size(), QSize(40, 20));
    }
    EXPECT_EQ(titles(), QStringList());
}

TEST_F(FigurePicturesTest, a_tiff_whose_name_was_typed_is_refused_and_the_preview_stays) {
    browse(picture(u"good.png"_s, {40, 20}));
    browse(file(u"scan.tiff"_s, "II*"));
    EXPECT_EQ(titles(), QStringList({u"Incorrect File Type"_s}));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(preview().size(), QSize(40, 20));
}

TEST_F(FigurePicturesTest, a_name_with_two_points_is_judged_by_its_last_one) {
    browse(picture(u"scan.tiff.png"_s, {40, 20}));
    EXPECT_EQ(titles(), QStringList());
    browse(picture(u"scan.png.tiff"_s, {40, 20}, "PNG"));
    EXPECT_EQ(titles(), QStringList({u"Incorrect File Type"_s}));
}

TEST_F(FigurePicturesTest, a_cancelled_dialog_changes_nothing) {
    const QString path = picture(u"good.png"_s, {40, 20});
    browse(path);
    browse({});
    EXPECT_EQ(attached(), path);
    ASSERT_EQ(prompts.fileQuestions.size(), 2U);
    EXPECT_EQ(prompts.fileQuestions[0].name, QString());
    EXPECT_EQ(prompts.fileQuestions[1].name, path);
}

TEST_F(FigurePicturesTest, the_path_cannot_be_typed) {
    type(u"txtAttachFig(0)"_s, u"/home/ann/fig.png"_s);
    QTest::keyClick(&control(u"txtAttachFig", 0), Qt::Key_Delete);
    EXPECT_EQ(fields.txtAttachFig(0).text(), QString());
    browse(picture(u"good.png"_s, {40, 20}));
    type(u"txtAttachFig(0)"_s, u"x"_s);
    QTest::keyClick(&control(u"txtAttachFig", 0), Qt::Key_Backspace);
    EXPECT_EQ(fields.txtAttachFig(0).text(), folder.filePath(u"good.png"_s));
}

TEST_F(FigurePicturesTest, the_path_takes_nothing_pasted_dropped_or_composed) {
    auto& path = control<LineField>(u"txtAttachFig", 0);
    QGuiApplication::clipboard()->setText(u"pasted"_s);
    path.paste();
    QTest::mouseClick(&path, Qt::MiddleButton);
    QMimeData dragged;
    dragged.setText(u"dragged"_s);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&path, &drop);
    QInputMethodEvent composed;
    composed.setCommitString(u"composed"_s);
    QApplication::sendEvent(&path, &composed);
    EXPECT_EQ(path.text(), QString());
    EXPECT_EQ(fields.txtAttachFig(0).text(), QString());
}

TEST_F(FigurePicturesTest, a_picture_takes_the_tint_of_its_path_away) {
    guidance->TextHighLight(FiguresTab);
    EXPECT_TRUE(control<LineField>(u"txtAttachFig", 0).isTinted());
    browse(picture(u"good.png"_s, {40, 20}));
    EXPECT_FALSE(control<LineField>(u"txtAttachFig", 0).isTinted());
}

TEST_F(FigurePicturesTest, removing_takes_path_and_preview_and_nothing_else) {
    chooseCount(2);
    browse(picture(u"good.png"_s, {40, 20}));
    type(u"txtFigureDetail(0)"_s, u"stays"_s);
    remove(0);
    EXPECT_EQ(attached(), QString());
    EXPECT_TRUE(saysNoPreview());
    EXPECT_TRUE(preview().isNull());
    EXPECT_EQ(sizeText(), u"40, 20"_s);
    EXPECT_EQ(fields.txtFigureDetail(0).text(), u"stays"_s);
    EXPECT_EQ(titles(), QStringList());
    remove(1);
    EXPECT_EQ(prompts.boxes,
              std::vector<FakePrompts::Box>({{UserPrompts::Icon::Information, u"Information"_s,
                                              u"You have not Attached the figure 2 ."_s}}));
}

TEST_F(FigurePicturesTest, the_buttons_are_pressed_by_keys_as_well) {
    prompts.filesToOpen.push_back(picture(u"good.png"_s, {40, 20}));
    tabTo(u"imgBrowse", 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(attached(), folder.filePath(u"good.png"_s));
    tabTo(u"imgRemove", 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(attached(), QString());
}

TEST_F(FigurePicturesTest, a_loaded_figure_is_shown_from_its_working_copy) {
    fields.txtAttachFig(0).loadText(u"/gone/fig.png"_s);
    fields.figureState(0).workingCopy = picture(u"copy.png"_s, {800, 600});
    columns->showPicture(0);
    EXPECT_FALSE(saysNoPreview());
    EXPECT_EQ(preview().size(), QSize(128, 96));
    EXPECT_EQ(sizeText(), u"660, 495"_s);
    columns->removePicture(0);
    EXPECT_TRUE(saysNoPreview());
    EXPECT_TRUE(preview().isNull());
    EXPECT_EQ(attached(), u"/gone/fig.png"_s);
}

TEST_F(FigurePicturesTest, a_working_copy_that_cannot_be_decoded_does_not_leave_the_one_before) {
    browse(picture(u"good.png"_s, {40, 20}));
    fields.figureState(0).workingCopy = file(u"copy.png"_s, "not a picture");
    columns->showPicture(0);
    EXPECT_TRUE(preview().isNull());
    EXPECT_FALSE(saysNoPreview());
}
