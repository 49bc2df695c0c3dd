#pragma once

#include "core/commands/FileMenu.h"

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QStringList>

namespace quillford {

/// The entries of the File menu. What is enabled is set when the menu opens.
class FileMenuEntries final : public QObject {
    Q_OBJECT

public:
    /// Fills `menu`, which owns this object.
    explicit FileMenuEntries(QMenu& menu);

    /// Enables the entries as `state` says.
    void enable(const FileMenu& state);

    /// Shows these captions as `mnuFileRecent(1)` and so on.
    void setRecentProjects(const QStringList& captions);

Q_SIGNALS:
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSave_Click();
    void mnuFileSaveAs_Click();
    void mnuFileExportToWord_Click();
    void mnuFileExportToHTML_Click();
    void mnuFilePrint_Click();
    void mnuFileRecent_Click(int index);
    void mnuGotoWelcomePage_Click();
    void mnuFileExit_Click();

private:
    using Clicked = void (FileMenuEntries::*)();

    QAction* add(const QString& name, const QString& caption, Clicked clicked);
    QAction* addLine(const QString& name);

    QMenu& menu_;
    QList<QAction*> project_;     ///< enabled while a project is shown
    QList<QAction*> draft_;       ///< enabled while all sections are complete
    QList<QAction*> recentLines_; ///< above and below the recent projects, shown with the first
    QList<QAction*> recent_;
};

} // namespace quillford
