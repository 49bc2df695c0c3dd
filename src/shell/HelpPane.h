#pragma once

#include "controls/HtmlView.h"

#include <QCursor>
#include <QObject>

namespace quillford {

class ClickLabel;
class Picture;

/// The help beside the sections, `picHelpOn`: the start page of the tab that is shown, what it
/// links to, and the way back. The pages lie below the program's folder, "help/Section
/// N/index.htm".
class HelpPane final : public QObject {
    Q_OBJECT

public:
    /// The pane stands below `form`, which owns this object.
    ///
    /// @param appFolder  the program's folder with a closing separator
    HelpPane(QWidget& form, const QString& appFolder);

    /// Shows the start page of a tab, 0 to 9. A page that is missing is told in its place.
    void HelpOn(int tab);

    [[nodiscard]] HtmlView& view() { return *view_; }

    [[nodiscard]] QWidget& pane() { return *pane_; }

Q_SIGNALS:
    void imgHelpPrint_Click();

private:
    void pageLoaded(const QString& address);
    void goBack();

    QString folder_;
    QWidget* pane_;
    HtmlView* view_;
    Picture* backPicture_;
    QWidget* backCaption_;
    ClickLabel* backArea_;
    Picture* print_;
    QCursor hand_;
};

} // namespace quillford
