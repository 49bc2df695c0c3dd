#include "typed/SampleTypist.h"

namespace quillford {

SampleTypist::SampleTypist()
    : ProjectTypist(QStringLiteral(QUILLFORD_SAMPLES "/folding-easel/folding-easel.json")) {}

void SampleTypist::expectWarning(const Answer& answer) {
    whenAsked(u"Section Not Complete"_s, answer);
}

void SampleTypist::expectAdvice(const Answer& answer) {
    whenAsked(u"Drawings - Important Information!"_s, answer);
}

void SampleTypist::next() {
    hands->click(u"btnStep(1)"_s);
    hands->comeBack();
}

void SampleTypist::back() {
    hands->click(u"btnStep(0)"_s);
}

void SampleTypist::typeIntroduction() {
    expectWarning(presses(u"cmdNo"_s));
    next();
    typeSection(1);
    next();
}

void SampleTypist::typeInventors() {
    chooseCount(u"cboInventorsNum"_s, told.fields.cboInventorsNum.number());
    whenAsked(u"Information"_s, QMessageBox::Yes,
              u"Do you want Quillford 3.1 to use the information provided in section "
              "1.Introduction for the First Inventor?"_s);
    hands->tabTo(u"chkSameAsContact"_s);
    hands->press(Qt::Key_Space);
    hands->comeBack();
    typeSection(2);
    clickTab(2);
}

void SampleTypist::typeObjects() {
    chooseCount(u"cboObjectNum"_s, told.fields.cboObjectNum.number());
    typeSection(3);
    expectAdvice(presses(u"cmdOK"_s));
    next();
}

void SampleTypist::typeFigures() {
    chooseCount(u"cboFiguresNum"_s, told.fields.cboFiguresNum.number());
    attachPictures();
    // A look back at the section before, and in again.
    expectWarning(ticksAndPresses(u"cmdYes"_s));
    clickTab(2);
    expectAdvice(ticksAndPresses(u"cmdOK"_s));
    next();
    typeSection(4);
    back();
    next();
    next();
}

void SampleTypist::typeElements() {
    chooseCount(u"cboMainElementNum"_s, told.fields.cboMainElementNum.number());
    typeSection(5);
    next();
    typeSection(6);
    clickTab(6);
    typeSection(7);
    next();
    typeSection(8);
}

void SampleTypist::typeAll() {
    typeIntroduction();
    typeInventors();
    typeObjects();
    typeFigures();
    typeElements();
}

} // namespace quillford
