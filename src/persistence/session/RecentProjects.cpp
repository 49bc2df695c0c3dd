#include "persistence/session/RecentProjects.h"

#include "core/settings/FileNames.h"
#include "core/settings/SettingsNames.h"
#include "persistence/project/WorkingCopies.h"

#include <algorithm>

namespace quillford {

namespace {

const QString OpenMarker = QStringLiteral("|FILEOPEN");
const QString Recovered = QStringLiteral(" (RECOVERED FILE)");
const QString Provisional = QStringLiteral("Provisional Project");

enum Part { PathPart, NumberPart, TitlePart, MarkerPart };

QString part(const QString& entry, Part which) {
    return entry.section(u'|', which, which);
}

bool hasPart(const QString& entry, Part which) {
    return entry.count(u'|') >= which;
}

QString withoutMarker(QString entry) {
    return entry.remove(OpenMarker);
}

QString recoveredSuffix(const QString& entry, bool inSession) {
    return hasPart(entry, MarkerPart) && !inSession ? Recovered : QString();
}

QString recoveredName(int& number) {
    return QStringLiteral("Project - %1 Recovered").arg(number++);
}

QString nameOfProject(const QString& path) {
    const QString ending = QStringLiteral(".ivd");
    QString name = GetFileName(path);
    if (name.endsWith(ending, Qt::CaseInsensitive))
        name.chop(ending.size());
    return name;
}

QString valueName(int index) {
    return settingsNames::RecentFile.toString() + QString::number(index + 1);
}

QStringList entriesIn(const SettingsValues& values) {
    QStringList entries;
    for (int i = 0; i < RecentProjects::MostEntries; ++i) {
        const QString entry =
            Settings::regRead(values, Hive::CurrentUser, settingsNames::SettingsKey, valueName(i));
        if (!entry.isEmpty())
            entries.append(entry);
    }
    return entries;
}

void writeEntries(SettingsValues& values, const QStringList& entries) {
    for (int i = 0; i < RecentProjects::MostEntries; ++i)
        if (i < entries.size())
            values.setValue(Hive::CurrentUser, settingsNames::SettingsKey, valueName(i),
                            entries[i]);
        else
            values.removeValue(Hive::CurrentUser, settingsNames::SettingsKey, valueName(i));
}

/// The search is one for plain text: a path that is a part of another's entry finds that as well.
bool replaceWhereFound(QStringList& entries, const QString& sought, const QString& entry) {
    bool found = false;
    for (QString& candidate : entries)
        if (candidate.contains(sought)) {
            candidate = entry;
            found = true;
        }
    return found;
}

} // namespace

RecentProjects::RecentProjects(Settings& settings, const Project& project)
    : settings_(settings), project_(project) {}

QString RecentProjects::menuCaption(int number) const {
    QString name = rows_.at(number - 1).menuName;
    // A menu would set what stands behind a tab character apart, as the name of a key.
    return QStringLiteral("&%1 - ").arg(number) +
           name.replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

const QString& RecentProjects::labelCaption(int number) const {
    return rows_.at(number - 1).labelName;
}

QString RecentProjects::entry(int number) const {
    return rows_.value(number - 1).entry;
}

void RecentProjects::loadRecentProjects(bool inSession) {
    resetCounters();
    rows_.clear();
    for (const QString& entry : entries())
        addRecentEntryToScreen(entry, inSession);
    Q_EMIT rowsChanged();
}

void RecentProjects::resetCounters() {
    recoveredMenuNumber_ = 1;
    recoveredLabelNumber_ = 1;
}

void RecentProjects::addRecentEntryToScreen(const QString& entry, bool inSession) {
    rows_.append({recentMenuName(entry, inSession), recentLabelName(entry, inSession), entry});
}

QString RecentProjects::recentMenuName(const QString& entry, bool inSession) {
    const QString path = part(entry, PathPart);
    if (path.contains(Provisional))
        return recoveredName(recoveredMenuNumber_);
    return nameOfProject(path) + recoveredSuffix(entry, inSession);
}

QString RecentProjects::recentLabelName(const QString& entry, bool inSession) {
    if (!hasPart(entry, NumberPart))
        return {};
    const QString path = part(entry, PathPart);
    const QString number = part(entry, NumberPart);
    const QString title = part(entry, TitlePart);
    const QString suffix = recoveredSuffix(entry, inSession);
    if (path.contains(Provisional))
        return recoveredName(recoveredLabelNumber_) + suffix;
    if (!number.isEmpty() && !title.isEmpty())
        return number + QStringLiteral(" (") + title + u')' + suffix;
    const QString name = nameOfProject(path);
    const bool saysProject = name.contains(QStringLiteral("Project -"));
    return (saysProject ? name : QStringLiteral("Project - ") + name) + suffix;
}

int RecentProjects::countRecentEntries() const {
    return static_cast<int>(entries().size());
}

QStringList RecentProjects::entries() const {
    QStringList entries;
    settings_.look([&](const SettingsValues& values) { entries = entriesIn(values); });
    return entries;
}

/// Another program may change the list too: what is read here is what is written over.
void RecentProjects::change(const Change& step) {
    settings_.change([&](SettingsValues& values) {
        QStringList entries = entriesIn(values);
        step(entries);
        writeEntries(values, entries);
    });
}

bool RecentProjects::replaceRecentEntry(QStringList& entries, const QString& entry) const {
    const QString path = part(entry, PathPart);
    const QString& draft = project_.state.draftFileName;
    bool found = replaceWhereFound(entries, draft.isEmpty() ? path : draft, entry);
    if (path.contains(Provisional) && replaceWhereFound(entries, path, entry))
        found = true;
    return found;
}

void RecentProjects::addRecentEntry(const QString& entry, bool refresh) {
    change([&](QStringList& entries) {
        if (replaceRecentEntry(entries, entry))
            return;
        droppedRecentEntry_.clear();
        if (entries.size() == MostEntries)
            droppedRecentEntry_ = entries.takeLast();
        entries.prepend(entry);
    });
    if (refresh)
        refreshRecentProjects();
}

/// Of a longer entry the settings would not give the end back, and with it the mark; so it is the
/// title and the number that are cut.
QString RecentProjects::entryOf(const QString& path) const {
    constexpr qsizetype Bars = 2;
    const qsizetype room =
        Settings::MostBytesRead - path.toUtf8().size() - Bars - OpenMarker.size();
    const QString title = cutToBytes(project_.fields.txtInventionTitle.trimmedText(), room / 2);
    const QString number =
        cutToBytes(project_.fields.txtFileNo.trimmedText(), room - title.toUtf8().size());
    return path + u'|' + number + u'|' + title;
}

void RecentProjects::projectSaved(const QString& path, bool refresh) {
    addRecentEntry(entryOf(path) + OpenMarker, refresh);
}

bool RecentProjects::projectOpened(const QString& argument, const QString& path) {
    const QString entry = argument.contains(u'|') ? argument : entryOf(path);
    QStringList moved;
    QStringList listed;
    change([&](QStringList& entries) {
        for (int i = 0; i < entries.size(); ++i)
            if (entries[i].contains(path)) {
                entries.move(i, 0);
                if (!entries[0].contains(OpenMarker))
                    entries[0] += OpenMarker;
                moved.append(part(entries[0], PathPart));
            }
        listed = entries;
    });
    moveRowsToTop(moved, entry);
    const bool recovered = listed.value(0).contains(OpenMarker) && !rows_.isEmpty() &&
                           rows_.first().menuName.contains(Recovered);
    if (!moved.isEmpty())
        droppedRecentEntry_.clear();
    if (moved.isEmpty())
        addRecentEntry(entry, true);
    else if (!isShown(listed))
        refreshRecentProjects();
    keepFirstEntry();
    return recovered;
}

/// A row keeps its names, and with them what tells that it was recovered.
void RecentProjects::moveRowsToTop(const QStringList& paths, const QString& entry) {
    for (qsizetype moved = 0; moved < paths.size(); ++moved) {
        const auto row = std::find_if(rows_.begin() + moved, rows_.end(), [&](const Row& shown) {
            return part(shown.entry, PathPart) == paths[moved];
        });
        if (row == rows_.end())
            return;
        std::rotate(rows_.begin(), row, row + 1);
        rows_.first().entry = entry;
        Q_EMIT rowsChanged();
    }
}

/// Not where the timer or another program has changed the list since the rows were built.
bool RecentProjects::isShown(const QStringList& entries) const {
    return std::equal(rows_.begin(), rows_.end(), entries.begin(), entries.end(),
                      [](const Row& row, const QString& entry) {
                          return part(row.entry, PathPart) == part(entry, PathPart);
                      });
}

void RecentProjects::clearOpenMarker() {
    change([this](QStringList& entries) {
        if (!entries.isEmpty())
            entries[ownIndex(entries)] = withoutMarker(entries[ownIndex(entries)]);
    });
}

void RecentProjects::keepFirstEntry() {
    const QStringList listed = entries();
    firstRecentEntry_ = withoutMarker(listed.value(ownIndex(listed)));
}

/// The first entry is the open project's, unless another program has opened one since.
qsizetype RecentProjects::ownIndex(const QStringList& entries) const {
    const auto own = std::find_if(entries.begin(), entries.end(), [this](const QString& entry) {
        return part(entry, PathPart) == project_.state.projectFileName;
    });
    return own == entries.end() ? 0 : own - entries.begin();
}

void RecentProjects::restoreFirstEntry() {
    change([this](QStringList& entries) {
        for (QString& entry : entries)
            if (part(entry, PathPart) == part(firstRecentEntry_, PathPart))
                entry = firstRecentEntry_;
    });
}

void RecentProjects::dropEntry(const QString& path) {
    change([&](QStringList& entries) {
        const bool wasFull = entries.size() == MostEntries;
        const auto removed =
            entries.removeIf([&](const QString& entry) { return part(entry, PathPart) == path; });
        // Another program may have opened that project meanwhile.
        const bool isListed =
            std::any_of(entries.begin(), entries.end(), [this](const QString& entry) {
                return part(entry, PathPart) == part(droppedRecentEntry_, PathPart);
            });
        if (removed > 0 && wasFull && !droppedRecentEntry_.isEmpty() && !isListed)
            entries.append(droppedRecentEntry_);
    });
}

} // namespace quillford
