#include "verification/dialogs/VerifyDialogs.h"

#include "verification/dialogs/frmVerify.h"
#include "verification/dialogs/frmVerifyResult.h"

namespace quillford {

VerifyDialogs::VerifyDialogs(const Parts& parts, PrintReport printReport)
    : parts_(parts), printReport_(std::move(printReport)) {}

ExportCheck::Outcome VerifyDialogs::showVerify() {
    frmVerify form(&parts_.form, parts_.fields, parts_.state, parts_.clock, parts_.system);
    switch (form.ask()) {
    case frmVerify::Answer::Skip:
        return {Answer::Skip};
    case frmVerify::Answer::Successful:
        return showSuccess();
    case frmVerify::Answer::Errors:
        return showErrors();
    case frmVerify::Answer::Cancel:
        break;
    }
    return {Answer::Cancel};
}

ExportCheck::Outcome VerifyDialogs::showSuccess() {
    frmVerifyResult result(&parts_.form, parts_.measure, parts_.font);
    const auto answer = result.showVerificationSuccessful();
    // The export that was chosen stays so until the next choice.
    return {answer == frmVerifyResult::Answer::Continue ? Answer::Continue : Answer::Return};
}

ExportCheck::Outcome VerifyDialogs::showErrors() {
    frmVerifyResult result(&parts_.form, parts_.measure, parts_.font);
    QObject::connect(&result, &frmVerifyResult::imgReportPrint_Click, &result, printReport_);
    const auto answer = result.showVerificationErrors(parts_.state.lists);
    if (answer == frmVerifyResult::Answer::Continue)
        return {Answer::Continue};
    if (answer != frmVerifyResult::Answer::GoToCell)
        return {Answer::Return};
    // A run that was stopped leaves its entries; the panel may have gone since, or its project.
    const ElementCell cell = result.cell();
    return {Answer::GoToCell, cell.fieldId(), cell.panel};
}

} // namespace quillford
