#include "persistence/project/ProjectWriter.h"

#include "base/Files.h"
#include "core/rules/FigureSize.h"
#include "persistence/compound/FileByteStore.h"
#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/project/ProjectFileFormat.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>

namespace quillford {

namespace {

constexpr qint64 SubscriptOutOfRange = 9;
constexpr qint64 Overflow = 6;
constexpr qint64 PathFileAccess = 75;

Stream createStream(Storage& storage, const QString& name) {
    return storage.CreateStream(name, StorageMode::Exclusive);
}

Stream createSection(Storage& root, int section) {
    return createStream(root, ProjectFileFormat::sectionStream(section));
}

/// What is made in a folder beside a project, of which nothing stays unless the program is killed.
const QString MadeFile = QStringLiteral("project.ivd");

/// Takes away what killed programs have left in a folder. What another one has just made there is
/// not a day old, and of what anybody else may have put there nothing is touched.
void removeLeftovers(const QDir& folder) {
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
    const QFileInfoList found = folder.entryInfoList({QStringLiteral(".new-??????")},
                                                     QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& left : found) {
        if (left.lastModified() >= yesterday)
            continue;
        const QDir place(left.filePath());
        // The toolkit copies into a file of its own and gives it its name at the end.
        for (const QString& file :
             place.entryList({MadeFile, QStringLiteral("qt_temp.*")}, QDir::Files | QDir::Hidden))
            QFile::remove(place.filePath(file));
        folder.rmdir(left.fileName());
    }
}

/// The pattern for a folder in which a file is made that will take the place of `path`.
QString placeBeside(const QString& path) {
    const QDir folder = QFileInfo(path).absoluteDir();
    removeLeftovers(folder);
    return folder.filePath(QStringLiteral(".new-XXXXXX"));
}

bool haveOneOwner(const QFileInfo& file, const QFileInfo& other) {
    return file.ownerId() == other.ownerId() && file.groupId() == other.groupId();
}

/// The number of bytes as it is stored. A file without bytes gives an array without bounds, which
/// has no count either.
qint32 storedCount(const QByteArray& bytes, const QString& path) {
    if (bytes.isNull())
        throw Error(SubscriptOutOfRange, QStringLiteral("the picture holds no bytes"), path);
    if (bytes.size() > std::numeric_limits<qint32>::max())
        throw Error(Overflow, QStringLiteral("the picture is too large to be stored"), path);
    return static_cast<qint32>(bytes.size());
}

} // namespace

ProjectWriter::ProjectWriter(const Project& project, UserPrompts& prompts)
    : project_(project), fields_(project.fields), prompts_(&prompts) {}

ProjectWriter::ProjectWriter(const Project& project) : project_(project), fields_(project.fields) {}

void ProjectWriter::write(const QString& path, Durability durability) {
    bool createProps = true;
    bool overwrite = false;
    constexpr bool ansi = true;
    Storage root = CreateStorageFile(path, createProps, ansi, overwrite);
    if (changesElements(root)) {
        root = Storage();
        replaceElementSections(path);
        root = CreateStorageFile(path, createProps, ansi, overwrite);
    }
    write(root);
    if (durability == Durability::OnDisk)
        root.Sync();
}

void ProjectWriter::writeNew(const QString& path, Durability durability) {
    const QTemporaryDir beside(placeBeside(path));
    if (!beside.isValid())
        throw Error(PathFileAccess, beside.errorString(), path);
    const QString made = beside.filePath(MadeFile);
    write(made, durability);
    // Another program may be in the middle of a save into the file that is to go.
    const auto old = QFileInfo::exists(path) ? FileByteStore::open(path) : nullptr;
    takePlaceOf(made, path);
}

/// One number, in Section 5, counts the panels of Sections 5 to 7, and a reader who counts wrongly
/// takes the last texts of Section 7 for those of a panel.
bool ProjectWriter::changesElements(Storage& root) const {
    try {
        Stream stream =
            root.OpenStream(ProjectFileFormat::sectionStream(5), StorageMode::Exclusive);
        static_cast<void>(stream.ReadData(FieldType::String));
        const auto stored = std::get<QString>(stream.ReadData(FieldType::String));
        return stored != fields_.cboMainElementNum.text();
    } catch (const Error&) {
        // A new file has no sections yet, and of a damaged one there is nothing to keep together.
        return false;
    }
}

/// Gives the file the Sections 5 to 7 of the project in one step. Where no file can be made beside
/// it that would be its owner's and take its place, they are written one after the other with all
/// the rest.
void ProjectWriter::replaceElementSections(const QString& path) const {
    const QString place = QFileInfo(path).canonicalFilePath();
    const QTemporaryDir beside(placeBeside(place));
    const QString made = beside.filePath(MadeFile);
    // Another program may have begun a save into the file meanwhile.
    const auto old = FileByteStore::open(place);
    if (!beside.isValid() || !QFile::copy(place, made) ||
        !haveOneOwner(QFileInfo(place), QFileInfo(made)))
        return;
    try {
        writeElementSections(made);
        takePlaceOf(made, place);
    } catch (const Error&) {
        return; // what is wrong with the file itself will be told of it
    }
}

void ProjectWriter::writeElementSections(const QString& path) const {
    Storage root = OpenStorageFile(path);
    writeSection5(root);
    writeSection6(root);
    writeSection7(root);
    root.Sync();
}

void ProjectWriter::write(Storage& root) {
    writeVersion(root);
    writeSection1(root);
    writeSection2(root);
    writeSection3(root);
    writeSection4(root);
    writeSection5(root);
    writeSection6(root);
    writeSection7(root);
    writeSection8(root);
    writeVerify(root);
    writePictures(root);
    root.Commit(0);
}

void ProjectWriter::writeVersion(Storage& root) const {
    createStream(root, ProjectFileFormat::VersionStream).WriteData(ProjectFileFormat::Version);
}

void ProjectWriter::writeSection1(Storage& root) const {
    Stream stream = createSection(root, 1);
    for (const FieldRow& row : fieldTable())
        if (row.section == 1)
            writeField(stream, fields_.at(row.id));
}

void ProjectWriter::writeSection2(Storage& root) const {
    Stream stream = createSection(root, 2);
    writeField(stream, fields_.cboInventorsNum);
    stream.WriteData(static_cast<qint16>(fields_.chkSameAsContact.number()));
    writePanels(stream, FieldGroup::Inventors,
                std::min(fields_.cboInventorsNum.number(), fields_.txtNameStep2.count()));
}

void ProjectWriter::writeSection3(Storage& root) const {
    Stream stream = createSection(root, 3);
    writeField(stream, fields_.txtPurpose);
    writeField(stream, fields_.cboObjectNum);
    writePanels(stream, FieldGroup::Objects, fields_.panelCount(FieldGroup::Objects));
}

/// With no figure the group of the one panel that always stands is written all the same; a reader
/// stops at the count.
void ProjectWriter::writeSection4(Storage& root) const {
    Stream stream = createSection(root, 4);
    writeField(stream, fields_.cboFiguresNum);
    writePanels(stream, FieldGroup::Figures, fields_.panelCount(FieldGroup::Figures));
}

void ProjectWriter::writeSection5(Storage& root) const {
    Stream stream = createSection(root, 5);
    writeField(stream, fields_.txtMainElement);
    writeField(stream, fields_.cboMainElementNum);
    writePanels(stream, FieldGroup::MainElements, fields_.panelCount(FieldGroup::MainElements));
}

/// The panels of Sections 6 and 7 follow the number of Main Elements when the user leaves
/// Section 5. The file has as many at any time, since its reader counts by that number.
int ProjectWriter::elementCount(FieldGroup group) const {
    const int number = fields_.cboMainElementNum.number();
    return number > 0 ? number : fields_.panelCount(group);
}

void ProjectWriter::writeSection6(Storage& root) const {
    Stream stream = createSection(root, 6);
    writePanels(stream, FieldGroup::SubElements, elementCount(FieldGroup::SubElements));
}

void ProjectWriter::writeSection7(Storage& root) const {
    Stream stream = createSection(root, 7);
    writePanels(stream, FieldGroup::Descriptions, elementCount(FieldGroup::Descriptions));
    writeField(stream, fields_.txtDesConnections);
    writeField(stream, fields_.txtDesAlterative);
}

void ProjectWriter::writeSection8(Storage& root) const {
    Stream stream = createSection(root, 8);
    writeField(stream, fields_.txtOperation);
}

void ProjectWriter::writeVerify(Storage& root) const {
    createStream(root, ProjectFileFormat::VerifyStream)
        .WriteData(project_.state.verifyPassed ? ProjectFileFormat::True
                                               : ProjectFileFormat::False);
}

void ProjectWriter::writePictures(Storage& root) {
    Storage pictures =
        root.CreateStorage(ProjectFileFormat::PicturesStorage, StorageMode::Exclusive);
    if (fields_.cboFiguresNum.number() == 0)
        return;
    for (int i = 0; i < fields_.panelCount(FieldGroup::Figures); ++i)
        if (fields_.txtAttachFig(i).isFilled())
            writePicture(pictures, i);
}

void ProjectWriter::writePicture(Storage& pictures, int figure) {
    const QString path = figurePath(fields_, figure);
    Stream stream = createStream(pictures, ProjectFileFormat::pictureStream(figure));
    stream.WriteData(path);
    const QByteArray bytes = readFileBytes(path);
    stream.WriteData(storedCount(bytes, path));
    stream.WriteBuf(bytes);
}

void ProjectWriter::writeField(Stream& stream, const Field& field) const {
    stream.WriteData(ProjectFileFormat::isWrittenTrimmed(field.row()) ? field.trimmedText()
                                                                      : field.text());
}

/// A panel that is not there yet has empty fields.
void ProjectWriter::writePanel(Stream& stream, FieldGroup group, int index) const {
    for (const FieldRow& row : fieldTable()) {
        if (row.group != group)
            continue;
        if (index < fields_.count(row.id))
            writeField(stream, fields_.at(row.id, index));
        else
            stream.WriteData(QString());
    }
}

void ProjectWriter::writePanels(Stream& stream, FieldGroup group, int count) const {
    for (int i = 0; i < count; ++i)
        writePanel(stream, group, i);
}

/// The bytes of a file, or an array without bounds for one that is empty or cannot be read; the
/// user, if there is one, is told why it cannot.
QByteArray ProjectWriter::readFileBytes(const QString& path) {
    try {
        const QByteArray bytes = contentOfFile(path);
        return bytes.isEmpty() ? QByteArray() : bytes;
    } catch (const Error& error) {
        if (prompts_)
            prompts_->showMessage(UserPrompts::Icon::None, {}, error.description());
        return {};
    }
}

} // namespace quillford
