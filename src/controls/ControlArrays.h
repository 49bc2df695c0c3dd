#pragma once

#include <QWidget>

namespace quillford {

/// Turns the names of a designed form's members of control arrays into those that they bear in the
/// program: "picTab_3" becomes "picTab(3)". A designed form cannot hold the round brackets.
void nameControlArrays(QWidget& form);

/// Puts the controls of a designed form onto a panel, which keeps its own name and place, and names
/// the members of control arrays. Returns the designed form, whose pointers lead to the controls.
template <typename Designed>
Designed fillPanel(QWidget& panel) {
    const QString name = panel.objectName();
    const QRect place = panel.geometry();
    Designed designed;
    designed.setupUi(&panel);
    nameControlArrays(panel);
    panel.setObjectName(name);
    panel.setGeometry(place);
    return designed;
}

/// Gives the controls of a panel that repeats, and the panel itself, the index of its row:
/// "txtObject" becomes "txtObject(3)". Names that are empty or the toolkit's own stay.
void nameRepeated(QWidget& panel, int index);

} // namespace quillford
