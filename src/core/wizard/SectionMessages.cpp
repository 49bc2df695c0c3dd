#include "core/wizard/SectionMessages.h"

#include "core/settings/SettingsNames.h"

namespace quillford {

SectionMessages::SectionMessages(mdlSystem& system, Settings& settings, UserPrompts& prompts)
    : system_(system), settings_(settings), prompts_(prompts) {}

bool SectionMessages::mayLeaveIncompleteSection() {
    if (system_.showmsgTab)
        return true;
    system_.msgAnswerYes = prompts_.showMsgWindow([this](bool ticked) {
        settings_.setFlag(settingsNames::ShowMsgTab, ticked);
        system_.showmsgTab = ticked;
    });
    return system_.msgAnswerYes;
}

void SectionMessages::adviseAboutDrawings() {
    if (system_.showmsgFigure)
        return;
    prompts_.showTab4MsgWindow([this](bool ticked) {
        settings_.setFlag(settingsNames::ShowMsgFigure, ticked);
        system_.showmsgFigure = ticked;
    });
}

void SectionMessages::tellNotReadyToFile() {
    prompts_.showMessage(
        UserPrompts::Icon::None, QStringLiteral("Your Provisional Is Not Ready to File"),
        QStringLiteral("Some of the sections in Quillford are not complete yet.  Please complete "
                       "these sections and then return to this section."));
}

} // namespace quillford
