#include "persistence/project/ProjectFileReader.h"

#include "base/Text.h"
#include "core/fields/FieldLists.h"
#include "persistence/compound/StorageError.h"
#include "persistence/compound/StorageModes.h"
#include "persistence/compound/mdlStorage.h"
#include "persistence/project/ProjectFileFormat.h"

#include <QLocale>

#include <algorithm>

namespace quillford {

namespace {

constexpr qint64 TypeMismatch = 13;

/// A version text as a number; nothing for a text that is none.
std::optional<float> versionNumber(const QString& text) {
    bool isNumber = false;
    const float number = QLocale::c().toFloat(trimBlanks(text), &isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// The truth of a stored flag: a word in any case, or a number that is not 0.
bool flagIn(const QString& text) {
    const QString word = lowerCase(trimBlanks(text));
    if (word == lowerCase(ProjectFileFormat::True))
        return true;
    if (word == lowerCase(ProjectFileFormat::False))
        return false;
    bool isNumber = false;
    const double number = QLocale::c().toDouble(word, &isNumber);
    if (!isNumber)
        throw Error(TypeMismatch, QStringLiteral("\"%1\" is neither true nor false").arg(text));
    return number != 0.0;
}

} // namespace

ProjectFileReader::ProjectFileReader(Project& project, PictureReceiver& pictures)
    : project_(project), fields_(project.fields), pictures_(pictures) {}

ReadReport ProjectFileReader::read(const QString& path) {
    resumeNext_([&] { root_ = OpenStorageFile(path); });
    return readRoot();
}

ReadReport ProjectFileReader::read(Storage root) {
    root_ = std::move(root);
    return readRoot();
}

ReadReport ProjectFileReader::readRoot() {
    openStream(ProjectFileFormat::VersionStream);
    resumeNext_([&] { report_.version = readText(); });
    if (report_.version.isEmpty()) {
        report_.outcome = ReadReport::Outcome::NotFound;
    } else if (!hasReadableVersion()) {
        report_.outcome = ReadReport::Outcome::HigherVersion;
    } else {
        report_.outcome = ReadReport::Outcome::Read;
        readSection1();
        readSection2();
        readSection3();
        readSection4();
        readSection5();
        readSection6();
        readSection7();
        readSection8();
        readVerify();
        readPictures();
    }
    stream_.reset();
    root_.reset();
    report_.failure = resumeNext_.firstFailure();
    return std::move(report_);
}

/// Versions are compared as single-precision numbers: "3.10" is "3.1". A text like "nan" compares
/// false with every number and is refused with them.
bool ProjectFileReader::hasReadableVersion() {
    const auto version = versionNumber(report_.version);
    return version && *version <= *versionNumber(ProjectFileFormat::Version);
}

void ProjectFileReader::readSection1() {
    openStream(ProjectFileFormat::sectionStream(1));
    for (const FieldRow& row : fieldTable())
        if (row.section == 1)
            readField(fields_.at(row.id));
}

void ProjectFileReader::readSection2() {
    openStream(ProjectFileFormat::sectionStream(2));
    readField(fields_.cboInventorsNum);
    resumeNext_([&] {
        const bool checked = std::get<bool>(stream().ReadData(FieldType::Boolean));
        fields_.chkSameAsContact.loadText(checked ? QStringLiteral("1") : QStringLiteral("0"));
    });
    const int count = fields_.cboInventorsNum.number();
    fields_.setPanelCount(FieldGroup::Inventors, count);
    readPanels(FieldGroup::Inventors, count);
}

void ProjectFileReader::readSection3() {
    openStream(ProjectFileFormat::sectionStream(3));
    readField(fields_.txtPurpose);
    readField(fields_.cboObjectNum);
    const int count = fields_.cboObjectNum.number();
    fields_.setPanelCount(FieldGroup::Objects, count);
    readPanels(FieldGroup::Objects, count);
}

void ProjectFileReader::readSection4() {
    openStream(ProjectFileFormat::sectionStream(4));
    readField(fields_.cboFiguresNum);
    const int count = fields_.cboFiguresNum.number();
    if (count == 0)
        return;
    fields_.setPanelCount(FieldGroup::Figures, count);
    readPanels(FieldGroup::Figures, fields_.panelCount(FieldGroup::Figures));
}

void ProjectFileReader::readSection5() {
    openStream(ProjectFileFormat::sectionStream(5));
    readField(fields_.txtMainElement);
    readField(fields_.cboMainElementNum);
    const int count = fields_.cboMainElementNum.number();
    fields_.setPanelCount(FieldGroup::MainElements, count);
    fields_.setPanelCount(FieldGroup::SubElements, count);
    fields_.setPanelCount(FieldGroup::Descriptions, count);
    readPanels(FieldGroup::MainElements, count);
}

void ProjectFileReader::readSection6() {
    openStream(ProjectFileFormat::sectionStream(6));
    readPanels(FieldGroup::SubElements, fields_.cboMainElementNum.number());
}

void ProjectFileReader::readSection7() {
    openStream(ProjectFileFormat::sectionStream(7));
    readPanels(FieldGroup::Descriptions, fields_.cboMainElementNum.number());
    readField(fields_.txtDesConnections);
    readField(fields_.txtDesAlterative);
}

void ProjectFileReader::readSection8() {
    openStream(ProjectFileFormat::sectionStream(8));
    readField(fields_.txtOperation);
}

void ProjectFileReader::readVerify() {
    openStream(ProjectFileFormat::VerifyStream);
    resumeNext_([&] { project_.state.verifyPassed = flagIn(readText()); });
}

void ProjectFileReader::readPictures() {
    std::optional<Storage> pictures;
    if (!resumeNext_([&] {
            pictures =
                root_->OpenStorage(ProjectFileFormat::PicturesStorage, StorageMode::Exclusive);
        }))
        report_.missing.append(ProjectFileFormat::PicturesStorage);
    if (!pictures || fields_.cboFiguresNum.number() == 0)
        return;
    for (int i = 0; i < fields_.panelCount(FieldGroup::Figures); ++i)
        if (fields_.txtAttachFig(i).isFilled())
            readPicture(*pictures, i);
}

/// A picture is one statement: the stream of another figure has nothing to say about this one.
void ProjectFileReader::readPicture(Storage& pictures, int figure) {
    const QString name = ProjectFileFormat::pictureStream(figure);
    const bool opened =
        resumeNext_([&] { stream_ = pictures.OpenStream(name, StorageMode::Exclusive); });
    if (!opened) {
        report_.missing.append(ProjectFileFormat::PicturesStorage + u'/' + name);
        return;
    }
    resumeNext_([&] {
        const QString path = readText();
        const qint32 count = std::get<qint32>(stream().ReadData(FieldType::Int32));
        QByteArray bytes;
        stream().ReadBuf(bytes, count);
        pictures_.takePicture(figure, path, bytes);
    });
}

/// When the stream cannot be opened the one before it stays open.
void ProjectFileReader::openStream(const QString& name) {
    if (!resumeNext_([&] {
            if (root_)
                stream_ = root_->OpenStream(name, StorageMode::Exclusive);
            else
                throw Error(NotBoundNumber, QStringLiteral("no file is open"));
        }))
        report_.missing.append(name);
}

Stream& ProjectFileReader::stream() {
    if (!stream_)
        throw Error(NotBoundNumber, QStringLiteral("no stream is open"));
    return *stream_;
}

QString ProjectFileReader::readText() {
    return std::get<QString>(stream().ReadData(FieldType::String));
}

void ProjectFileReader::readField(Field& field) {
    resumeNext_([&] {
        const FieldRow& row = field.row();
        const QString text = readText();
        const bool keeps = (text.isEmpty() && ProjectFileFormat::keepsValueWhenEmpty(row)) ||
                           (row.kind == FieldKind::List && !listRows(row.list).contains(text));
        if (!keeps)
            field.loadText(text);
    });
}

/// Reads the fields of the panels 0 to `count` - 1, as far as there are panels.
void ProjectFileReader::readPanels(FieldGroup group, int count) {
    for (int i = 0; i < std::min(count, fields_.panelCount(group)); ++i)
        for (const FieldRow& row : fieldTable())
            if (row.group == group)
                readField(fields_.at(row.id, i));
}

} // namespace quillford
