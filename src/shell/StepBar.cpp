#include "shell/StepBar.h"

#include "controls/HandCursor.h"
#include "core/wizard/FocusOrder.h"

namespace quillford {

namespace {

constexpr QStringView ExportControls[] = {u"imgCreateToFile(1)", u"imgCreateToFile(2)",
                                          u"imgPrintFile(1)"};

} // namespace

StepBar::StepBar(QWidget& form)
    : QObject(&form),
      form_(form),
      stepBar_(*form.findChild<QWidget*>(QStringLiteral("picBtnStepContainer"))),
      exportBar_(*form.findChild<QWidget*>(QStringLiteral("picBtnStep9Container(1)"))) {
    const auto button = [&](QStringView name, int index) {
        auto* found = form.findChild<myImageButton*>(controlName(name, index));
        found->setCursor(handCursor());
        return found;
    };
    for (const int index : {0, 1})
        connect(button(u"btnStep", index), &myImageButton::clicked, this,
                [this, index] { Q_EMIT btnStep_Click(index); });
    for (const int index : {1, 2})
        connect(button(u"imgCreateToFile", index), &myImageButton::clicked, this,
                [this, index] { Q_EMIT imgCreateToFile_Click(index); });
    connect(button(u"imgPrintFile", 1), &myImageButton::clicked, this,
            [this] { Q_EMIT imgPrintFile_Click(); });
    showBar(ButtonBar::Step);
    enableDraftCommands(false);
}

void StepBar::showBar(ButtonBar bar) {
    showOne(stepBar_, bar == ButtonBar::Step);
    showOne(exportBar_, bar == ButtonBar::Export);
}

void StepBar::showOne(QWidget& bar, bool shown) {
    bar.setEnabled(shown);
    bar.setVisible(shown);
    if (shown)
        bar.raise();
}

void StepBar::enableStepButton(StepButton button, bool on) {
    form_.findChild<myImageButton*>(controlName(u"btnStep", static_cast<int>(button)))
        ->setEnabled(on);
}

void StepBar::enableDraftCommands(bool on) {
    for (const QStringView name : ExportControls)
        form_.findChild<myImageButton*>(name.toString())->setEnabled(on);
}

} // namespace quillford
