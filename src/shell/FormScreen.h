#pragma once

#include "core/wizard/ProjectScreen.h"
#include "shell/TitleRow.h"
#include "shell/WelcomePage.h"

#include <functional>

namespace quillford {

/// What the form shows of the project as a whole.
class FormScreen final : public ProjectScreen {
public:
    /// Empties the preview of the Final Draft.
    using BlankPreview = std::function<void()>;

    /// Owns none of its arguments; all outlive it.
    FormScreen(QWidget& form, TitleRow& title, WelcomePage& welcome, BlankPreview blankPreview)
        : form_(form), title_(title), welcome_(welcome), blankPreview_(std::move(blankPreview)) {}

    void setCaption(const QString& caption) override { title_.setCaption(caption); }

    void setHourglass(bool on) override;

    void showBlankPreview() override { blankPreview_(); }

    [[nodiscard]] bool isWelcomePageShown() const override { return !welcome_.page().isHidden(); }

    void showWelcomePage() override { welcome_.show(); }

    void hideWelcomePage() override { welcome_.hide(); }

private:
    QWidget& form_;
    TitleRow& title_;
    WelcomePage& welcome_;
    BlankPreview blankPreview_;
};

} // namespace quillford
