#pragma once

#include "core/fields/Project.h"
#include "core/settings/Settings.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace quillford {

/// The five projects that were open last: the list in the settings, and the rows of it that the
/// File menu and the Welcome page show. An entry is one text: path, "|", file number, "|", title,
/// and behind them "|FILEOPEN" while the project is open; what is still marked when the program
/// starts was not closed. Nothing guards against a path or a title that holds a "|" itself.
///
/// Settings that cannot be read or written leave the list as it is, without a word.
class RecentProjects : public QObject {
    Q_OBJECT

public:
    static constexpr int MostEntries = 5;

    /// What the row with one number shows: `mnuFileRecent(number)`, `lblRecentPatents(number)`.
    struct Row {
        QString menuName;  ///< the menu's text behind the number
        QString labelName; ///< the text on the Welcome page; empty for an entry without a "|"
        QString entry;     ///< the tag of both
    };

    /// Owns none of its arguments; all outlive it. Shows no row until it is loaded.
    RecentProjects(Settings& settings, const Project& project);

    /// How many rows are shown; they are numbered from 1.
    [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }

    /// The text of `mnuFileRecent(number)`, "&1 - easel"; an "&" of the file's name is doubled, so
    /// that a menu shows it. `number` is 1 to `rowCount()`, as in the two calls below.
    [[nodiscard]] QString menuCaption(int number) const;

    /// The text of `lblRecentPatents(number)`.
    [[nodiscard]] const QString& labelCaption(int number) const;

    /// The entry behind a row; empty for a row that is not shown.
    [[nodiscard]] QString entry(int number) const;

    /// Reads the list and builds the rows. What an earlier run has left marked is shown as
    /// recovered only when the program starts, not in session.
    void loadRecentProjects(bool inSession);

    /// Builds the rows of a list that already stands, after a change.
    void refreshRecentProjects() { loadRecentProjects(true); }

    /// Sets the counters of the names "Project - 1 Recovered" to 1.
    void resetCounters();

    [[nodiscard]] int countRecentEntries() const;

    /// Puts an entry in the place of each that holds its path anywhere, or the path of the working
    /// copy where the project has one: so a copy's entry becomes that of the saved project. Without
    /// one it becomes the first, and the fifth falls off. The rows follow when `refresh` is set.
    void addRecentEntry(const QString& entry, bool refresh);

    /// The project was saved under `path`: adds its entry, marked as open.
    void projectSaved(const QString& path, bool refresh);

    /// The project was opened from `path`; `argument` is what `OpenFile` was called with. Each
    /// entry that holds the path moves to the top and is marked as open; without one the project's
    /// entry is added. True when the first row is shown as recovered.
    bool projectOpened(const QString& argument, const QString& path);

    /// Takes the mark out of the open project's entry, or out of the first where it has none.
    void clearOpenMarker();

    /// Keeps the open project's entry, or the first where it has none, without its mark, to be put
    /// back by `restoreFirstEntry`.
    void keepFirstEntry();

    /// Gives the project's entry the text it had when it was kept.
    void restoreFirstEntry();

    /// Takes a project's entry out of the list; the one that fell off when it came in comes back.
    void dropEntry(const QString& path);

Q_SIGNALS:
    /// Rows came, went, or show something else.
    void rowsChanged();

private:
    using Change = std::function<void(QStringList& entries)>;

    [[nodiscard]] QStringList entries() const;
    void change(const Change& step);
    [[nodiscard]] bool replaceRecentEntry(QStringList& entries, const QString& entry) const;
    void addRecentEntryToScreen(const QString& entry, bool inSession);
    [[nodiscard]] QString recentMenuName(const QString& entry, bool inSession);
    [[nodiscard]] QString recentLabelName(const QString& entry, bool inSession);
    [[nodiscard]] QString entryOf(const QString& path) const;
    [[nodiscard]] qsizetype ownIndex(const QStringList& entries) const;
    [[nodiscard]] bool isShown(const QStringList& entries) const;
    void moveRowsToTop(const QStringList& paths, const QString& entry);

    Settings& settings_;
    const Project& project_;
    QList<Row> rows_;
    QString firstRecentEntry_;
    QString droppedRecentEntry_;
    int recoveredMenuNumber_ = 1;
    int recoveredLabelNumber_ = 1;
};

} // namespace quillford
