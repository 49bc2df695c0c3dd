#pragma once

#include <QString>

namespace quillford {

/// What the window shows of the project as a whole, as the navigation, the project commands and
/// the filing see it. Nothing here fails.
class ProjectScreen {
public:
    virtual ~ProjectScreen() = default;

    /// The caption of the window, whole.
    virtual void setCaption(const QString& caption) = 0;

    /// Turns the mouse pointer over the window into the hourglass, or back.
    virtual void setHourglass(bool on) = 0;

    /// Empties the preview of the Final Draft and gives it its whole place: top 0, height 428.
    virtual void showBlankPreview() = 0;

    [[nodiscard]] virtual bool isWelcomePageShown() const = 0;

    /// Brings `picWelcomePage` to the front, shows and enables it.
    virtual void showWelcomePage() = 0;

    /// Hides and disables `picWelcomePage`.
    virtual void hideWelcomePage() = 0;
};

} // namespace quillford
