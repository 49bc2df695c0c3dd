#include "shell/FileMenuEntries.h"

#include "core/wizard/FocusOrder.h"
#include "shell/MainMenus.h"

#include <utility>

namespace quillford {

FileMenuEntries::FileMenuEntries(QMenu& menu) : QObject(&menu), menu_(menu) {
    // What stands behind a tab tells the key; the key itself is the form's business.
    add(QStringLiteral("mnuFileNew"), QStringLiteral("&New\tCtrl+N"),
        &FileMenuEntries::mnuFileNew_Click);
    add(QStringLiteral("mnuFileOpen"), QStringLiteral("&Open...\tCtrl+O"),
        &FileMenuEntries::mnuFileOpen_Click);
    project_ = {add(QStringLiteral("mnuFileSave"), QStringLiteral("&Save\tCtrl+S"),
                    &FileMenuEntries::mnuFileSave_Click),
                add(QStringLiteral("mnuFileSaveAs"), QStringLiteral("Save &As..."),
                    &FileMenuEntries::mnuFileSaveAs_Click)};
    menu_.addSeparator();
    draft_ = {add(QStringLiteral("mnuFileExportToWord"), QStringLiteral("Export to Word"),
                  &FileMenuEntries::mnuFileExportToWord_Click),
              add(QStringLiteral("mnuFileExportToHTML"), QStringLiteral("Export to HTML"),
                  &FileMenuEntries::mnuFileExportToHTML_Click)};
    menu_.addSeparator();
    draft_.append(add(QStringLiteral("mnuFilePrint"), QStringLiteral("Print Final Draft"),
                      &FileMenuEntries::mnuFilePrint_Click));
    recentLines_ = {addLine(QStringLiteral("mnuFileLine4")),
                    addLine(controlName(u"mnuFileRecent", 0))};
    project_.append(add(QStringLiteral("mnuGotoWelcomePage"),
                        QStringLiteral("Go to Welcome Page (Close Project)"),
                        &FileMenuEntries::mnuGotoWelcomePage_Click));
    menu_.addSeparator();
    add(QStringLiteral("mnuFileExit"), QStringLiteral("E&xit"),
        &FileMenuEntries::mnuFileExit_Click);
}

QAction* FileMenuEntries::addLine(const QString& name) {
    QAction* line = menu_.addSeparator();
    line->setObjectName(name);
    line->setVisible(false);
    return line;
}

QAction* FileMenuEntries::add(const QString& name, const QString& caption, Clicked clicked) {
    QAction& entry = MainMenus::addEntry(menu_, name, caption);
    connect(&entry, &QAction::triggered, this, clicked);
    return &entry;
}

void FileMenuEntries::enable(const FileMenu& state) {
    for (QAction* entry : std::as_const(project_))
        entry->setEnabled(state.isProjectEnabled());
    for (QAction* entry : std::as_const(draft_))
        entry->setEnabled(state.isDraftEnabled());
}

void FileMenuEntries::setRecentProjects(const QStringList& captions) {
    // The list may change by what one of its rows has started.
    for (QAction* entry : std::exchange(recent_, {})) {
        menu_.removeAction(entry);
        entry->setObjectName(QString());
        entry->deleteLater();
    }
    for (const QString& caption : captions) {
        const int index = static_cast<int>(recent_.size()) + 1;
        auto* entry = new QAction(caption, &menu_);
        entry->setObjectName(controlName(u"mnuFileRecent", index));
        connect(entry, &QAction::triggered, this,
                [this, index] { Q_EMIT mnuFileRecent_Click(index); });
        menu_.insertAction(recentLines_.last(), entry);
        recent_.append(entry);
    }
    for (QAction* line : std::as_const(recentLines_))
        line->setVisible(!recent_.isEmpty());
}

} // namespace quillford
