#include "editors/rules/FigureAttachment.h"

#include "support/CallLog.h"
#include "support/FakePictureReader.h"
#include "support/FakePrompts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class RecordingFigureView final : public FigureView {
public:
    CallLog log;

    void showFigures(bool on) override { log.take(on ? "show figures" : "hide figures"); }

    void showPicture(int figure, const QString& path, const QRect& place) override {
        log.take(callText("picture", figure) + ' ' + path.section(u'/', -1).toStdString() + " at " +
                 std::to_string(place.left()) + ", " + std::to_string(place.top()) + ", " +
                 std::to_string(place.width()) + ", " + std::to_string(place.height()));
    }

    void clearPicture(int figure) override { log.take(callText("no picture", figure)); }

    void showNoFigure(int figure, bool on) override {
        log.take(callText("lblNoFigure", figure, on));
    }
};

class FigureAttachmentTest : public testing::Test {
protected:
    /// A file of this size that the reader takes for a picture of 800 by 600 pixels.
    QString picture(const QString& name, qint64 bytes = 100) {
        const QString path = file(name, bytes);
        pictures.sizes.insert(path, QSize(800, 600));
        return path;
    }

    QString file(const QString& name, qint64 bytes = 100) {
        QFile created(folder.filePath(name));
        EXPECT_TRUE(created.open(QIODevice::WriteOnly) && created.resize(bytes));
        return created.fileName();
    }

    void browse(const QString& answer, int figure = 0) {
        view.log.calls.clear();
        prompts.filesToOpen.push_back(answer);
        figures.imgBrowse_Click(figure);
    }

    [[nodiscard]] QString attached(int figure = 0) const {
        return fields.txtAttachFig(figure).text();
    }

    const Calls shown{"lblNoFigure 0 off", "picture 0 scan.png at 0, 16, 128, 96"};

    QTemporaryDir folder;
    ProjectFields fields;
    FakePictureReader pictures;
    FakePrompts prompts;
    RecordingFigureView view;
    FigureAttachment figures{fields, pictures, prompts, view};
};

} // namespace

TEST_F(FigureAttachmentTest, the_dialog_starts_with_the_path_that_is_attached) {
    fields.txtAttachFig(0).setText(u"/home/ann/old.gif"_s);
    browse({});
    ASSERT_EQ(prompts.fileQuestions.size(), 1U);
    EXPECT_EQ(prompts.fileQuestions[0].name, u"/home/ann/old.gif"_s);
    EXPECT_EQ(prompts.fileQuestions[0].filterDescription, u"Picture File"_s);
    EXPECT_EQ(prompts.fileQuestions[0].filterPattern, u"*.jpg;*.bmp;*.gif"_s);
}

TEST_F(FigureAttachmentTest, a_dialog_that_is_cancelled_changes_nothing) {
    fields.txtAttachFig(0).setText(u"/home/ann/old.gif"_s);
    browse({});
    EXPECT_EQ(attached(), u"/home/ann/old.gif"_s);
    EXPECT_EQ(view.log.calls, Calls());
}

TEST_F(FigureAttachmentTest, a_picture_is_attached_by_its_path_and_previewed) {
    const QString path = picture(u"scan.png"_s);
    browse(path);
    EXPECT_EQ(attached(), path);
    EXPECT_EQ(view.log.calls, shown);
    EXPECT_EQ(fields.figureState(0).sizeText, u"660, 495"_s);
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, the_working_copy_of_an_earlier_picture_stays_behind) {
    fields.figureState(0).workingCopy = u"/tmp/old.png"_s;
    browse(picture(u"scan.png"_s));
    EXPECT_EQ(fields.figureState(0).workingCopy, u"/tmp/old.png"_s);
}

TEST_F(FigureAttachmentTest, a_name_in_capitals_passes_and_is_judged_by_its_last_point) {
    for (const QString& name : {u"scan.JPG"_s, u"scan.tiff.Gif"_s, u"a.b.bmp"_s}) {
        const QString path = picture(name);
        browse(path);
        EXPECT_EQ(attached(), path);
    }
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, another_kind_of_file_is_refused_in_a_box) {
    browse(picture(u"scan.png"_s));
    browse(file(u"scan.tiff"_s));
    EXPECT_EQ(prompts.boxes,
              std::vector<FakePrompts::Box>(
                  {{UserPrompts::Icon::Information, u"Incorrect File Type"_s,
                    u"The file you attempted to import into Quillford is not in a proper format.  "
                    u"Please import a different file or change your file to an acceptable format "
                    u"(e.g. .jpg, gif, bmp, TIFF)."_s}}));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(view.log.calls, Calls()); // the old preview stays
}

TEST_F(FigureAttachmentTest, a_name_without_an_ending_ends_silently) {
    browse(file(u"scan"_s));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, a_file_that_does_not_exist_ends_silently) {
    browse(folder.filePath(u"gone.png"_s));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(prompts.boxes.size(), 0U);
    EXPECT_EQ(view.log.calls, Calls());
}

TEST_F(FigureAttachmentTest, a_folder_is_no_picture) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"album.png"_s));
    browse(folder.filePath(u"album.png"_s));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, one_byte_too_many_is_refused_and_takes_the_preview_away) {
    browse(picture(u"scan.png"_s));
    browse(picture(u"large.png"_s, 2097153));
    EXPECT_EQ(prompts.boxes,
              std::vector<FakePrompts::Box>({{UserPrompts::Icon::Information, u"Information"_s,
                                              u"Figure size is greater than 1024k."_s}}));
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(view.log.calls, Calls({"lblNoFigure 0 on", "no picture 0"}));
}

TEST_F(FigureAttachmentTest, twice_the_size_that_the_message_names_still_passes) {
    const QString path = picture(u"scan.png"_s, 2097152);
    browse(path);
    EXPECT_EQ(attached(), path);
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, a_file_that_cannot_be_decoded_is_attached_under_the_old_preview) {
    browse(picture(u"scan.png"_s));
    const QString path = file(u"broken.png"_s);
    browse(path);
    EXPECT_EQ(attached(), path);
    EXPECT_EQ(view.log.calls, Calls({"lblNoFigure 0 off"}));
    EXPECT_EQ(fields.figureState(0).sizeText, u"660, 495"_s);
}

TEST_F(FigureAttachmentTest, removing_leaves_the_view_and_the_description) {
    fields.cboFigureType(0).setText(u"front view"_s);
    fields.txtFigureDetail(0).setText(u"shows it"_s);
    browse(picture(u"scan.png"_s));
    view.log.calls.clear();
    figures.imgRemove_Click(0);
    EXPECT_EQ(attached(), QString());
    EXPECT_EQ(fields.cboFigureType(0).text(), u"front view"_s);
    EXPECT_EQ(fields.txtFigureDetail(0).text(), u"shows it"_s);
    EXPECT_EQ(fields.figureState(0).sizeText, u"660, 495"_s);
    EXPECT_EQ(view.log.calls, Calls({"lblNoFigure 0 on", "no picture 0"}));
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, there_must_be_something_to_remove) {
    fields.setPanelCount(FieldGroup::Figures, 3);
    figures.imgRemove_Click(2);
    EXPECT_EQ(prompts.boxes,
              std::vector<FakePrompts::Box>({{UserPrompts::Icon::Information, u"Information"_s,
                                              u"You have not Attached the figure 3 ."_s}}));
    EXPECT_EQ(view.log.calls, Calls());
}

TEST_F(FigureAttachmentTest, no_figure_empties_the_first_panel_but_for_its_view) {
    fields.setPanelCount(FieldGroup::Figures, 2);
    for (int i = 0; i < 2; ++i) {
        fields.txtAttachFig(i).setText(u"/home/ann/fig.png"_s);
        fields.cboFigureType(i).setText(u"front view"_s);
        fields.txtFigureDetail(i).setText(u"shows it"_s);
    }
    fields.cboFiguresNum.setText(u"0"_s);
    figures.cboFiguresNum_Click();
    EXPECT_EQ(attached(0), QString());
    EXPECT_EQ(fields.txtFigureDetail(0).text(), QString());
    EXPECT_EQ(fields.cboFigureType(0).text(), u"front view"_s);
    EXPECT_EQ(attached(1), u"/home/ann/fig.png"_s); // its panel goes with the layout
    EXPECT_EQ(view.log.calls, Calls({"hide figures", "lblNoFigure 0 on", "no picture 0"}));
}

TEST_F(FigureAttachmentTest, some_figures_show_the_panels_and_empty_nothing) {
    fields.txtFigureDetail(0).setText(u"shows it"_s);
    fields.cboFiguresNum.setText(u"2"_s);
    figures.cboFiguresNum_Click();
    EXPECT_EQ(fields.txtFigureDetail(0).text(), u"shows it"_s);
    EXPECT_EQ(view.log.calls, Calls({"show figures"}));
}

TEST_F(FigureAttachmentTest, a_heading_that_is_chosen_is_told_and_left_as_it_is) {
    fields.cboFigureType(0).setText(u"--- 2 Dimensional Views ---"_s);
    figures.cboFigureType_Click(0);
    EXPECT_EQ(prompts.boxes,
              std::vector<FakePrompts::Box>(
                  {{UserPrompts::Icon::None, u"Not a Proper Description of Figure"_s,
                    u"The selection you have made is only a title within the proposed drawing "
                    u"descriptions of this dropdown menu.  Please select a different description "
                    u"or type a description for this figure."_s}}));
    EXPECT_EQ(fields.cboFigureType(0).text(), u"--- 2 Dimensional Views ---"_s);
}

TEST_F(FigureAttachmentTest, a_view_that_is_chosen_is_no_matter_for_a_box) {
    fields.cboFigureType(0).setText(u"front view"_s);
    figures.cboFigureType_Click(0);
    EXPECT_EQ(prompts.boxes.size(), 0U);
}

TEST_F(FigureAttachmentTest, a_loaded_picture_is_shown_from_its_working_copy) {
    fields.txtAttachFig(0).setText(u"/gone/scan.png"_s);
    fields.figureState(0).workingCopy = picture(u"scan.png"_s);
    figures.showWorkingCopy(0);
    EXPECT_EQ(view.log.calls, shown);
    EXPECT_EQ(fields.figureState(0).sizeText, u"660, 495"_s);
    EXPECT_EQ(attached(), u"/gone/scan.png"_s);
}
