#pragma once

#include <QColor>
#include <QFont>
#include <QStringView>

#include <initializer_list>

class QApplication;
class QLabel;
class QWidget;

/// The look of the program: one light palette whatever the desktop's own is, and one font.
namespace quillford::theme {

inline constexpr QColor Heading{50, 105, 196};     ///< headings, links, the main buttons
inline constexpr QColor HeadingDark{38, 82, 158};  ///< a main button under the mouse
inline constexpr QColor Line{191, 184, 191};       ///< lines between parts of the window
inline constexpr QColor Frame{173, 169, 157};      ///< frames around panels
inline constexpr QColor FieldFrame{183, 190, 200}; ///< frames around fields
inline constexpr QColor Window{244, 246, 248};
inline constexpr QColor MenuRow{230, 234, 240};
inline constexpr QColor Text{31, 41, 55};
inline constexpr QColor MutedText{122, 132, 146};
inline constexpr QColor Disabled{196, 202, 211}; ///< a button that cannot be pressed
inline constexpr QColor Star{196, 43, 43};
inline constexpr QColor Complete{46, 139, 87};
inline constexpr QColor White{255, 255, 255};
inline constexpr QColor Tint{231, 242, 255}; ///< the back of a required field that is empty

inline constexpr int CaptionPixels = 11; ///< labels; a line of them is 13 pixels high
inline constexpr int FieldPixels = 12;   ///< what the user types

[[nodiscard]] QFont captionFont();
[[nodiscard]] QFont headingFont();
[[nodiscard]] QFont fieldFont();

/// Gives a control a tip that shows the text as it stands, also where it looks like markup.
void setPlainToolTip(QWidget& control, const QString& text);

/// Makes a label a heading: bold, in the headings' colour.
void makeHeading(QLabel& label);

/// Makes the labels of a form with these names headings, each with every member of its control
/// array; a name that the form does not have is passed over.
void makeHeadings(QWidget& form, std::initializer_list<QStringView> names);

/// Gives a label or line a colour of its own; disabled, it is grey like others.
void colour(QWidget& widget, const QColor& colour);

/// Gives the application this look, before its first window is made.
void apply(QApplication& application);

/// Gives a field the back of an empty required field, or the one of all others again.
void setTint(QWidget& field, bool on);

} // namespace quillford::theme
