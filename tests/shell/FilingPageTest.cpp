#include "shell/FilingPage.h"

#include "shell/FormFixture.h"

#include <QLabel>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class FilingPageTest : public FormFixture {
protected:
    [[nodiscard]] QString text(int label) {
        return control<QLabel>(u"lblTab10(%1)"_s.arg(label)).text();
    }
};

} // namespace

TEST_F(FilingPageTest, the_page_tells_the_three_steps) {
    QStringList texts;
    for (const QLabel* label : form.panel(9).findChildren<QLabel*>())
        texts.append(label->text());
    for (
        const QString& told :
        {u"STEP 1 COMPLETED! "_s,
         u"Congratulations on preparing the first draft of your provisional patent application!  Below is the Three-Step Provisional Process we recommend that you use to effectively prepare and file your provisional application."_s,
         u"Step 2:  Patent Attorney Reviews Your Provisional Application (Recommended)"_s,
         u"Step 3:  File Your Provisional Application with U.S. Patent Office"_s})
        EXPECT_TRUE(texts.contains(told)) << qPrintable(told);
}

TEST_F(FilingPageTest, what_can_be_opened_bears_its_index) {
    EXPECT_EQ(text(9), u"Patent Attorney Review"_s);
    EXPECT_EQ(text(11), u"Electronic Provisional Filing Service"_s);
    EXPECT_EQ(text(14), u"Provisional Filing Form"_s);
    EXPECT_EQ(text(18), u"Sample Completed Filing Form"_s);
    EXPECT_EQ(text(20), u"Detailed Filing Instructions"_s);
    EXPECT_EQ(text(21), u"Certification of Micro Entity Status"_s);
}

TEST_F(FilingPageTest, all_stands_within_the_panel_and_no_line_is_cut) {
    for (const QLabel* label : form.panel(9).findChildren<QLabel*>()) {
        EXPECT_TRUE(form.panel(9).rect().contains(label->geometry()))
            << qPrintable(label->objectName());
        if (label->text().isEmpty())
            continue;
        const QRect needed = label->fontMetrics().boundingRect(
            label->contentsRect(), label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
        EXPECT_LE(needed.height(), label->height() + 1) << qPrintable(label->objectName());
        EXPECT_LE(needed.width(), label->width() + 1) << qPrintable(label->objectName());
    }
}
