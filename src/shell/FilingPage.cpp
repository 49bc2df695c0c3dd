#include "shell/FilingPage.h"

#include "controls/ControlArrays.h"
#include "controls/Theme.h"
#include "core/wizard/FocusOrder.h"
#include "ui_FilingPage.h"

namespace quillford {

void fillFilingPage(QWidget& panel) {
    const auto designed = fillPanel<Ui::FilingPage>(panel);
    QFont bold = theme::captionFont();
    bold.setBold(true);
    for (QLabel* step : {designed.lblTab10_2, designed.lblTab10_3, designed.lblTab10_5,
                         designed.lblTab10_10, designed.lblTab10_22})
        step->setFont(bold);
    theme::makeHeading(*designed.lblTab10_0);
    theme::colour(*designed.lblTab10_22, theme::Star);
    theme::colour(*designed.lnTab10, theme::Line);
}

} // namespace quillford
