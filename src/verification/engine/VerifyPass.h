#pragma once

#include "core/fields/ProjectFields.h"
#include "verification/engine/Corpus.h"
#include "verification/engine/VerificationState.h"
#include "verification/engine/VerifyBar.h"

namespace quillford {

/// One pass over the element tables: looks for every Main Element, Sub-Element and Reference
/// Numeral in what the user wrote.
class VerifyPass {
public:
    /// Owns none of its arguments; all outlive it. Misses are counted and listed in `state`.
    VerifyPass(const ProjectFields& fields, VerificationState& state, VerifyBar& bar);

    /// Goes through all panels, ten cells each. Ends with false behind the panel during which
    /// `verifyState` became `Exit`: the request is taken back then and `verifyStopped` set. True
    /// when the pass came to its end.
    ///
    /// @param counter  the number of the first step, raised with every cell
    bool verifyElements(int& counter, const Corpus& corpus);

private:
    void prgCompletePercentOperate(ElementCell cell, const Corpus& corpus, int& counter);
    void testText(ElementCell cell, const Corpus& corpus);
    void testNumeral(ElementCell cell, const Corpus& corpus);

    const ProjectFields& fields_;
    VerificationState& state_;
    VerifyBar& bar_;
};

} // namespace quillford
