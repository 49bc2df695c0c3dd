#include "controls/Theme.h"
#include "shell/FormFixture.h"
#include "shell/WelcomePage.h"

#include <QImage>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class LinesTest : public FormFixture {
protected:
    /// The colour in the middle of a line, drawn alone on white.
    [[nodiscard]] QColor colourOf(const QString& line) {
        QWidget& widget = control(line);
        QImage picture(widget.size(), QImage::Format_RGB32);
        picture.fill(Qt::white);
        widget.render(&picture, {}, {}, QWidget::RenderFlags());
        return picture.pixelColor(widget.rect().center());
    }
};

} // namespace

TEST_F(LinesTest, every_line_between_parts_of_the_window_is_drawn_in_its_colour) {
    form.welcome().show(); // what is disabled is grey
    for (const QString& line : {u"lnTab1"_s, u"lnBtnStepContainer"_s, u"lnWelcome"_s, u"lnTab10"_s})
        EXPECT_EQ(colourOf(line), theme::Line) << qPrintable(line);
}
