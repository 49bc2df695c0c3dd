#pragma once

#include "controls/myImageButton.h"
#include "core/rules/TabLooks.h"

#include <QObject>

namespace quillford {

/// The two bars that share the place below the section: Back and Next with the star and "Required
/// Fields", and the buttons that export and print the Final Draft.
class StepBar final : public QObject {
    Q_OBJECT

public:
    /// The bars stand below `form`, which owns them.
    explicit StepBar(QWidget& form);

    void showBar(ButtonBar bar);
    void enableStepButton(StepButton button, bool on);
    void enableDraftCommands(bool on);

Q_SIGNALS:
    void btnStep_Click(int index);
    /// Index 1 is Word, 2 is HTML.
    void imgCreateToFile_Click(int index);
    void imgPrintFile_Click();

private:
    void showOne(QWidget& bar, bool shown);

    QWidget& form_;
    QWidget& stepBar_;
    QWidget& exportBar_;
};

} // namespace quillford
