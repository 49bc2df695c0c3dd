#pragma once

#include "core/wizard/FinalDraftEntry.h"
#include "core/wizard/PageStack.h"
#include "draft/commands/PreviewScreen.h"
#include "platform/PictureLoader.h"

#include <QWidget>

class QLabel;

namespace quillford {

class HtmlView;

/// The page of the Final Draft: the preview `webPreview`, locked, with `lblPopTab9` over it once a
/// draft was built.
class FinalDraftPage final : public SectionPage, public PreviewScreen {
public:
    using Build = FinalDraftEntry::Build;

    /// Fills `panel`, which owns the controls. The other arguments outlive the page.
    FinalDraftPage(QWidget& panel, FinalDraftEntry& entry, PictureLoader& pictures);

    /// What builds the draft when the page is entered; without it nothing is built.
    void setBuild(Build build) { build_ = std::move(build); }

    void entered() override;
    void switched() override;
    void showPreview(const QString& html) override;

    /// Empties the preview and gives it the whole page.
    void showBlankPreview();

private:
    FinalDraftEntry& entry_;
    PictureLoader& pictures_;
    HtmlView* preview_;
    QLabel* advice_;
    Build build_ = [] { return false; };
};

} // namespace quillford
