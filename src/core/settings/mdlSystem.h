#pragma once

#include <QString>

namespace quillford {

/// The values of the whole program that are set at its start. One of them exists; it is handed down
/// to whoever needs it.
struct mdlSystem {
    /// The program's folder, with a closing separator also where it is a root folder.
    QString appFolder;
    /// All arguments as they were given, joined by one blank.
    QString commandLine;
    /// True when the Section Not Complete window is not to be shown any more.
    bool showmsgTab = false;
    /// True when the Drawings window is not to be shown any more.
    bool showmsgFigure = false;
    /// How many switches of the tab there were since the program began.
    int tabSwitchCount = 0;
    /// What the Section Not Complete window was answered last.
    bool msgAnswerYes = false;
    /// Whether there is a word processor to export to.
    bool wordInstalled = false;
    /// The program is told to exit: waits end early.
    bool exiting = false;
};

} // namespace quillford
