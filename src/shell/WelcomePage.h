#pragma once

#include <QList>
#include <QObject>
#include <QWidget>

namespace quillford {

class ClickLabel;

/// `picWelcomePage`, which lies over the sections until the user begins or opens a project. Row 0
/// of its list, `lblRecentPatents(0)`, begins a new one; the rows of recent projects follow, and
/// `imgMoreObjects` stands under the last.
class WelcomePage final : public QObject {
    Q_OBJECT

public:
    /// The page stands below `form`, which owns this object.
    explicit WelcomePage(QWidget& form);

    [[nodiscard]] QWidget& page() const { return *page_; }

    /// Brings the page to the front, shows and enables it.
    void show();

    /// Hides and disables the page.
    void hide();

    /// Shows these captions as the rows from 1 on, and moves `imgMoreObjects` under the last.
    void setRecentProjects(const QList<QString>& captions);

Q_SIGNALS:
    void newWanted();
    void openWanted();
    /// The row `lblRecentPatents(row)` was clicked, `row` from 1 on.
    void recentWanted(int row);

private:
    ClickLabel* makeRow(int row);
    void dropRow();

    QWidget* page_;
    ClickLabel* more_;
    QList<ClickLabel*> rows_;
};

} // namespace quillford
