#pragma once

#include "typed/ProjectTypist.h"

namespace quillford {

/// Types the sample of the folding easel in, from the first section to the eighth; each call begins
/// on its section and ends on the next one.
class SampleTypist : public ProjectTypist {
protected:
    SampleTypist();

    void next();
    void back();

    void typeIntroduction();
    void typeInventors();
    void typeObjects();
    void typeFigures();
    void typeElements(); ///< and their descriptions, up to the last section

    void typeAll();

private:
    void expectWarning(const Answer& answer);
    void expectAdvice(const Answer& answer);
};

} // namespace quillford
