#pragma once

#include <QStringView>

/// The keys and values of the settings that more than one part of the program knows.
namespace quillford::settingsNames {

/// The key of the program's own settings, under `Hive::CurrentUser`.
inline constexpr QStringView SettingsKey = u"Software\\Tarnbeck Software\\Quillford";

/// The key with the header and footer of printed pages, under `Hive::CurrentUser`. It is not the
/// program's own: what is changed for a print is put back after it.
inline constexpr QStringView PageSetupKey = u"Software\\Microsoft\\Internet Explorer\\PageSetup";

// Values of the settings key. Those that begin with "show" are true when their message is *not* to
// be shown any more.
inline constexpr QStringView ShowMsgTab = u"showmsgTab";
inline constexpr QStringView ShowMsgFigure = u"showmsgFigure";
inline constexpr QStringView ShowMsgUpdate = u"showMsgUpdate";
inline constexpr QStringView LastDir = u"LastDir";

/// The recent projects are "file1", the newest, to "file5".
inline constexpr QStringView RecentFile = u"file";

} // namespace quillford::settingsNames
