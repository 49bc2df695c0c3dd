#pragma once

#include "core/fields/FieldTable.h"

#include <QString>

/// What both sides of a project file need to know. The whole layout stands in docs/file-format.md.
///
///     root
///     |- "Section Version"   string, "3.1"
///     |- "Section 1" ... "Section 8"   the fields, in the order of the field table
///     |- "Section Verify"    string, "True" or "False"
///     |- "Pictures"          storage
///     |  |- "Index 0" ...    string path, 32-bit count, that many bytes
///     |- three empty property sets
///
/// Nothing in a stream says what it holds: fields follow one another in their encoding, repeats are
/// driven by counts that stand before them, and whatever lies behind the last field is left over
/// from an older save and is never read.
namespace quillford::ProjectFileFormat {

inline const QString VersionStream = QStringLiteral("Section Version");
inline const QString VerifyStream = QStringLiteral("Section Verify");
inline const QString PicturesStorage = QStringLiteral("Pictures");

/// The version that is written, and the highest that is read.
inline const QString Version = QStringLiteral("3.1");

inline const QString True = QStringLiteral("True");
inline const QString False = QStringLiteral("False");

/// "Section 1" to "Section 8".
[[nodiscard]] inline QString sectionStream(int section) {
    return QStringLiteral("Section %1").arg(section);
}

/// The stream of the picture of one figure, in `PicturesStorage`.
[[nodiscard]] inline QString pictureStream(int figure) {
    return QStringLiteral("Index %1").arg(figure);
}

/// False for the few fields that are written with the blanks at their ends.
[[nodiscard]] inline bool isWrittenTrimmed(const FieldRow& row) {
    return row.kind != FieldKind::List && row.id != FieldId::cboStateStep2;
}

/// True for the fields that keep what they hold when an empty text is read for them.
[[nodiscard]] inline bool keepsValueWhenEmpty(const FieldRow& row) {
    return row.kind == FieldKind::List || row.id == FieldId::cboStateStep1 ||
           row.id == FieldId::cboCountryStep1;
}

} // namespace quillford::ProjectFileFormat
