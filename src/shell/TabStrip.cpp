#include "shell/TabStrip.h"

#include "controls/HandCursor.h"
#include "core/rules/SectionRules.h"
#include "core/wizard/FocusOrder.h"

namespace quillford {

namespace {

/// Sections are numbered; the Final Draft and the Filing page have signs.
QString signOf(int tab) {
    if (tab < SectionRules::SectionCount)
        return QString::number(tab + 1);
    return tab == SectionRules::FinalDraftTab ? QStringLiteral("¶") : QStringLiteral("➔");
}

} // namespace

TabStrip::TabStrip(QWidget& form) : QObject(&form), hand_(handCursor()) {
    for (int tab = 0; tab < SectionRules::TabCount; ++tab) {
        auto* picture = form.findChild<TabPicture*>(controlName(u"picTab", tab));
        pictures_.append(picture);
        picture->setSign(signOf(tab));
        setTabLook(tab, tab == 0 ? TabLook::IncompleteSelected : TabLook::Incomplete);
        setTabPointer(tab, tab == 0 ? TabPointer::Default : TabPointer::Hand);
        connect(picture, &ClickLabel::clicked, this, [this, tab] { Q_EMIT picTab_Click(tab); });
    }
}

void TabStrip::setTabLook(int tab, TabLook look) {
    pictures_[tab]->setLook(look);
}

void TabStrip::setTabPointer(int tab, TabPointer pointer) {
    if (pointer == TabPointer::Hand)
        pictures_[tab]->setCursor(hand_);
    else
        pictures_[tab]->unsetCursor();
}

} // namespace quillford
