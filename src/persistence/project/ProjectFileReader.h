#pragma once

#include "core/fields/Project.h"
#include "persistence/compound/Storage.h"
#include "persistence/project/PictureReceiver.h"
#include "persistence/project/ResumeNext.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quillford {

/// What came of reading a project file.
struct ReadReport {
    enum class Outcome {
        Read,          ///< the project holds what could be read
        NotFound,      ///< no file, or none with a version: no field was touched
        HigherVersion, ///< of a higher version, or of one that is no number: no field was touched
    };
    Outcome outcome = Outcome::NotFound;
    /// The text of "Section Version"; empty for a project that is no project file.
    QString version;
    /// The streams and storages that could not be opened, in the order of the reading.
    QStringList missing;
    /// The first failure that was passed over, if there was one.
    std::optional<Error> failure;
};

/// Reads a project file into the fields, stream after stream.
///
/// No failure stops the reading. A stream that is not there, or cannot be opened, is passed over,
/// and the reads that follow go on where the stream before it stands, which is behind its last
/// field: they give empty texts, or what an older save has left there. A stream that is cut short
/// gives empty texts from there on. A text that a list does not offer, an empty count, state or
/// country leaves the field as it was, and a value that cannot be read does too.
class ProjectFileReader {
public:
    /// Owns none of its arguments; all outlive it.
    ProjectFileReader(Project& project, PictureReceiver& pictures);

    /// Reads the file `path`, which is open only as long as the call lasts. Panels are laid out for
    /// each count as it is read. The changed marks stay as they are. Raises nothing.
    ReadReport read(const QString& path);

    /// Reads the open file whose root is given, and lets go of it; otherwise as the other.
    ReadReport read(Storage root);

private:
    [[nodiscard]] ReadReport readRoot();
    [[nodiscard]] bool hasReadableVersion();
    void readSection1();
    void readSection2();
    void readSection3();
    void readSection4();
    void readSection5();
    void readSection6();
    void readSection7();
    void readSection8();
    void readVerify();
    void readPictures();
    void readPicture(Storage& pictures, int figure);

    void openStream(const QString& name);
    [[nodiscard]] Stream& stream();
    [[nodiscard]] QString readText();
    void readField(Field& field);
    void readPanels(FieldGroup group, int count);

    Project& project_;
    ProjectFields& fields_;
    PictureReceiver& pictures_;
    ResumeNext resumeNext_;
    std::optional<Storage> root_;
    std::optional<Stream> stream_;
    ReadReport report_;
};

} // namespace quillford
