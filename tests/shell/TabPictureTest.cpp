#include "shell/TabPicture.h"

#include "support/PrintQt.h"

#include <QImage>

#include <array>
#include <gtest/gtest.h>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array Looks{TabLook::Complete, TabLook::CompleteSelected, TabLook::Incomplete,
                           TabLook::IncompleteSelected};

class TabPictureTest : public testing::Test {
protected:
    TabPictureTest() {
        tab.resize(92, 46);
        tab.setText(u"Purpose"_s);
        tab.setSign(u"3"_s);
    }

    [[nodiscard]] QImage picture(TabLook look) {
        tab.setLook(look);
        return tab.grab().toImage();
    }

    /// The lines of the mark and the title: black where the brightness leaps from one pixel to the
    /// next, whatever the colours are and whichever side is the darker one.
    [[nodiscard]] QImage lines(TabLook look) {
        const QImage grey = picture(look).convertToFormat(QImage::Format_Grayscale8);
        QImage lines(grey.size(), QImage::Format_Grayscale8);
        lines.fill(Qt::white);
        for (int y = 0; y < grey.height(); ++y)
            for (int x = 1; x < grey.width(); ++x)
                if (std::abs(qGray(grey.pixel(x, y)) - qGray(grey.pixel(x - 1, y))) > 60)
                    lines.setPixel(x, y, 0);
        return lines;
    }

    static int differences(const QImage& left, const QImage& right) {
        int count = 0;
        for (int y = 0; y < left.height(); ++y)
            for (int x = 0; x < left.width(); ++x)
                count += left.pixel(x, y) != right.pixel(x, y);
        return count;
    }

    TabPicture tab;
};

} // namespace

TEST_F(TabPictureTest, the_four_looks_are_four_pictures) {
    for (const TabLook left : Looks)
        for (const TabLook right : Looks)
            EXPECT_EQ(picture(left) == picture(right), left == right);
}

TEST_F(TabPictureTest, the_four_looks_differ_in_their_lines_and_not_in_colour_alone) {
    for (const TabLook left : Looks)
        for (const TabLook right : Looks) {
            if (left == right)
                continue;
            EXPECT_GT(differences(lines(left), lines(right)), 15)
                << static_cast<int>(left) << " and " << static_cast<int>(right);
        }
}

TEST_F(TabPictureTest, an_incomplete_section_shows_its_sign_and_a_complete_one_does_not) {
    const QImage three = picture(TabLook::Incomplete);
    const QImage tick = picture(TabLook::Complete);
    tab.setSign(u"4"_s);
    EXPECT_NE(picture(TabLook::Incomplete), three);
    EXPECT_EQ(picture(TabLook::Complete), tick);
}

TEST_F(TabPictureTest, assistive_programs_hear_the_look) {
    tab.setLook(TabLook::Incomplete);
    EXPECT_EQ(tab.accessibleName(), u"Purpose"_s);
    tab.setLook(TabLook::IncompleteSelected);
    EXPECT_EQ(tab.accessibleName(), u"Purpose, current"_s);
    tab.setLook(TabLook::Complete);
    EXPECT_EQ(tab.accessibleName(), u"Purpose, complete"_s);
    tab.setLook(TabLook::CompleteSelected);
    EXPECT_EQ(tab.accessibleName(), u"Purpose, complete, current"_s);
}
