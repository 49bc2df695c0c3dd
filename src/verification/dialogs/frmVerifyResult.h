#pragma once

#include "controls/FormDialog.h"
#include "verification/dialogs/ReportLines.h"

#include <memory>
#include <optional>

namespace quillford {

namespace Ui {
class frmVerifyResult;
}

/// Tells what a verification found: a short all-clear, or a report of what is missing, which can be
/// scrolled and printed.
class frmVerifyResult final : public FormDialog {
    Q_OBJECT

public:
    enum class Answer { Continue, Cancel, ReturnToProject, GoToCell };

    /// @param font  the font that `measure` measures, in its regular weight; `measure` outlives the
    ///              form
    frmVerifyResult(QWidget* parent, const TextMeasure& measure, QFont font);
    ~frmVerifyResult() override;

    /// The all-clear: waits for Continue or Cancel.
    [[nodiscard]] Answer showVerificationSuccessful();

    /// The report. Takes the lists over and clears those of the verification.
    [[nodiscard]] Answer showVerificationErrors(MissingLists& lists);

    /// The cell that the user wants to go to, after `GoToCell`.
    [[nodiscard]] const ElementCell& cell() const { return cell_; }

Q_SIGNALS:
    /// The report is to be printed; the lists live as long as the form.
    void imgReportPrint_Click(const quillford::MissingLists& lists);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] Answer ask();
    void end(Answer answer);
    void drawReport();
    void placeReport(int top);
    void bringIntoView(int top, int bottom);

    std::unique_ptr<Ui::frmVerifyResult> ui_;
    const TextMeasure& measure_;
    QFont font_;
    MissingLists lists_;
    Report report_;
    ElementCell cell_;
    Answer answer_ = Answer::Cancel;
    int turned_ = 0; ///< of the wheel, since its last whole notch
};

} // namespace quillford
