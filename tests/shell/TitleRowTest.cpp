#include "shell/TitleRow.h"

#include "shell/FormFixture.h"

#include <QLabel>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class TitleRowTest : public FormFixture {
protected:
    [[nodiscard]] QLabel& label(const QString& name) { return control<QLabel>(name); }

    TitleRow& title = form.title();
};

} // namespace

TEST_F(TitleRowTest, the_form_begins_with_the_programs_name_and_version) {
    EXPECT_EQ(form.windowTitle(), u"Quillford 3.1"_s);
    EXPECT_EQ(label(u"lblCaption"_s).text(), u"Quillford 3.1"_s);
}

TEST_F(TitleRowTest, a_caption_is_the_windows_title_and_stands_in_the_strip) {
    title.setCaption(u"Quillford 3.1 - easel"_s);
    EXPECT_EQ(form.windowTitle(), u"Quillford 3.1 - easel"_s);
    EXPECT_EQ(label(u"lblCaption"_s).text(), u"Quillford 3.1 - easel"_s);
}

TEST_F(TitleRowTest, a_caption_that_is_too_long_is_cut_in_the_strip_alone) {
    const QString caption = u"Quillford 3.1 - "_s + u"w"_s.repeated(200);
    title.setCaption(caption);
    EXPECT_EQ(form.windowTitle(), caption);
    EXPECT_TRUE(label(u"lblCaption"_s).text().contains(u"…"_s));
    EXPECT_LE(label(u"lblCaption"_s).sizeHint().width(), label(u"lblCaption"_s).width());
    EXPECT_EQ(label(u"lblCaption"_s).toolTip(), caption);
}

TEST_F(TitleRowTest, the_invention_and_the_last_save_have_places_of_their_own) {
    title.showTitleInvention(u"Folding Easel"_s);
    title.showSaveState(u"Saved 10:15"_s);
    EXPECT_EQ(label(u"lblTitleInvention"_s).text(), u"Folding Easel"_s);
    EXPECT_EQ(label(u"lblSaveState"_s).text(), u"Saved 10:15"_s);
    EXPECT_FALSE(
        label(u"lblTitleInvention"_s).geometry().intersects(label(u"lblSaveState"_s).geometry()));
    EXPECT_GE(label(u"lblTitleInvention"_s).contentsRect().width(), 530);
}

TEST_F(TitleRowTest, a_reason_of_a_failure_has_room_for_two_lines_and_stands_in_the_tip) {
    const QLabel& line = label(u"lblSaveState"_s);
    for (const QString& text : {u"not saved: disk full"_s, u"not saved: file in use"_s,
                                u"not saved: file damaged"_s, u"not saved: no free name"_s,
                                u"not saved: folder does not exist"_s,
                                u"not exported: folder does not exist"_s,
                                u"not exported: folder is read-only"_s}) {
        title.showSaveState(text);
        EXPECT_EQ(line.text(), text);
        EXPECT_LE(line.heightForWidth(line.width()), line.height()) << qPrintable(text);
        EXPECT_EQ(line.toolTip(), text);
    }
    title.showSaveState({});
    EXPECT_EQ(line.toolTip(), QString());
}

TEST_F(TitleRowTest, what_the_user_typed_is_never_read_as_markup) {
    title.setCaption(u"<b>x</b>"_s);
    title.showTitleInvention(u"A & <i>B</i>"_s);
    for (const QString& name : {u"lblCaption"_s, u"lblTitleInvention"_s, u"lblSaveState"_s})
        EXPECT_EQ(label(name).textFormat(), Qt::PlainText) << qPrintable(name);
    EXPECT_EQ(label(u"lblTitleInvention"_s).text(), u"A & <i>B</i>"_s);
}
