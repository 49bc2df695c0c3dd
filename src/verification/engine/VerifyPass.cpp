#include "verification/engine/VerifyPass.h"

#include "core/rules/ReferenceNumerals.h"

namespace quillford {

VerifyPass::VerifyPass(const ProjectFields& fields, VerificationState& state, VerifyBar& bar)
    : fields_(fields), state_(state), bar_(bar) {}

bool VerifyPass::verifyElements(int& counter, const Corpus& corpus) {
    for (int panel = 0; panel < fields_.panelCount(FieldGroup::SubElements); ++panel) {
        for (int part = 0; part <= SubElementCount; ++part)
            prgCompletePercentOperate({panel, part}, corpus, counter);
        if (state_.verifyState == StopRequest::Exit) {
            state_.verifyState = StopRequest::None;
            state_.verifyStopped = true;
            return false;
        }
    }
    return true;
}

/// One step. A cell that is left empty moves the bar all the same, but nothing is looked for.
void VerifyPass::prgCompletePercentOperate(ElementCell cell, const Corpus& corpus, int& counter) {
    bar_.step(counter);
    if (cell.field(fields_).isFilled()) {
        testText(cell, corpus);
        testNumeral(cell, corpus);
    }
    ++counter;
}

void VerifyPass::testText(ElementCell cell, const Corpus& corpus) {
    const QString text = cell.field(fields_).trimmedText();
    if (corpus.contains(text))
        return;
    ++state_.verifyErrorCount;
    MissingLists& lists = state_.lists;
    (cell.isSubElement() ? lists.missingSubElements : lists.missingMainElements).add(text, cell);
}

void VerifyPass::testNumeral(ElementCell cell, const Corpus& corpus) {
    const QString numeral = cell.numeral();
    if (corpus.contains(numeral))
        return;
    ++state_.verifyErrorCount;
    state_.lists.missingNumerals.add(numeral, cell);
}

} // namespace quillford
