#pragma once

#include "core/fields/Project.h"
#include "persistence/compound/Storage.h"
#include "platform/UserPrompts.h"

#include <QByteArray>
#include <QString>

namespace quillford {

/// Writes a project into its file, stream after stream. An existing file is written over in place:
/// every stream keeps its old length, and streams that the project no longer has stay. So a program
/// that is killed leaves every stream as it was or as it is, but for the one that it was writing.
/// Only where the number of Main Elements changes do the three sections that it counts change in
/// one step.
class ProjectWriter {
public:
    /// How far the bytes have come when `write` returns: handed to the system, or on the disk.
    enum class Durability { Flushed, OnDisk };

    /// Owns none of its arguments; all outlive it. The user is told in a box why a picture cannot
    /// be read.
    ProjectWriter(const Project& project, UserPrompts& prompts);

    /// A writer that tells nobody, for saves that nobody has asked for.
    explicit ProjectWriter(const Project& project);

    /// Writes the project into the file `path`, which is made if it is missing. The file is open
    /// only as long as the call lasts.
    ///
    /// Raises the `Error` of the first step that fails, of the storage layer or of a picture that
    /// cannot be read; the streams written so far are new then, the others old, and the file opens.
    void write(const QString& path, Durability durability);

    /// Writes the project into a new file that takes the place of `path` when it is whole, whatever
    /// stands there. Raises as the other, and when what stands there is in use or write-protected;
    /// it stays then.
    void writeNew(const QString& path, Durability durability);

    /// Writes the project into the root of an open file, without its property sets, and commits it.
    /// Raises as the other; nothing is synced.
    void write(Storage& root);

private:
    [[nodiscard]] bool changesElements(Storage& root) const;
    void replaceElementSections(const QString& path) const;
    void writeElementSections(const QString& path) const;

    void writeVersion(Storage& root) const;
    void writeSection1(Storage& root) const;
    void writeSection2(Storage& root) const;
    void writeSection3(Storage& root) const;
    void writeSection4(Storage& root) const;
    void writeSection5(Storage& root) const;
    void writeSection6(Storage& root) const;
    void writeSection7(Storage& root) const;
    void writeSection8(Storage& root) const;
    void writeVerify(Storage& root) const;
    void writePictures(Storage& root);
    void writePicture(Storage& pictures, int figure);

    void writeField(Stream& stream, const Field& field) const;
    void writePanel(Stream& stream, FieldGroup group, int index) const;
    [[nodiscard]] int elementCount(FieldGroup group) const;
    void writePanels(Stream& stream, FieldGroup group, int count) const;

    [[nodiscard]] QByteArray readFileBytes(const QString& path);

    const Project& project_;
    const ProjectFields& fields_;
    UserPrompts* prompts_ = nullptr; ///< not owned; null where nobody is told
};

} // namespace quillford
