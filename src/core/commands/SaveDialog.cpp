#include "core/commands/SaveDialog.h"

#include "base/Text.h"
#include "core/settings/FileNames.h"
#include "core/settings/PathParts.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace quillford {

namespace {

constexpr QStringView ProjectsFolder = u"/Projects";
constexpr QStringView FinalProjectsFolder = u"/Projects/Final Projects";

/// What the dialog starts with for a kind of file that the program writes.
struct FileKind {
    QStringView extension;
    QStringView prefix;        ///< of a name; a blank and a number follow
    QStringView ending;        ///< behind the file number
    QStringView freeExtension; ///< of a name with a number that is free
    QStringView filterDescription;
    QStringView folder; ///< below the working folder
};

constexpr std::array<FileKind, 3> FileKinds{{
    {u"ivd", u"Project -", u".ivd", u"ivd", u"Quillford(.ivd)", ProjectsFolder},
    {u"doc", u"Final -", u"", u"doc", u"Word Document(.doc)", FinalProjectsFolder},
    {u"htm", u"Final -", u"", u"html", u"html files(.htm)", FinalProjectsFolder},
}};

/// The ending is looked for in the last four characters, however long the extension is.
bool hasEnding(const QString& path, const QString& ending) {
    constexpr qsizetype LookedAt = 4;
    return lowerCase(path.right(LookedAt)) == ending;
}

} // namespace

SaveDialog::SaveDialog(const ProjectFields& fields, WorkFolders& folders, UserPrompts& prompts)
    : fields_(fields), folders_(folders), prompts_(prompts) {}

QString SaveDialog::ask(const QString& extension) {
    const QString ending = u'.' + extension;
    const auto kind =
        std::find_if(FileKinds.begin(), FileKinds.end(),
                     [&](const FileKind& candidate) { return candidate.extension == extension; });
    UserPrompts::FileQuestion question;
    question.folder = folders_.getWorkDir();
    question.filterPattern = u'*' + ending;
    if (kind == FileKinds.end()) {
        question.folder += FinalProjectsFolder;
        question.filterDescription = extension + QStringLiteral(" files");
    } else {
        question.folder += kind->folder;
        question.filterDescription = kind->filterDescription.toString();
        question.name = proposedName(kind->prefix.toString(), kind->ending.toString(),
                                     kind->freeExtension.toString());
    }
    QString path;
    do
        path = prompts_.chooseFileToSave(question);
    while (!path.isEmpty() && !hasEnding(path, ending) && !mayTake(path += ending));
    return path;
}

/// The dialog has asked about the name that was chosen, but not about what becomes of it here.
bool SaveDialog::mayTake(const QString& path) {
    const QFileInfo file(path);
    return !file.isFile() ||
           prompts_.askYesNo(UserPrompts::Icon::Exclamation, QStringLiteral("Save As"),
                             QStringLiteral("%1 already exists.\nDo you want to replace it?")
                                 .arg(file.fileName()));
}

QString SaveDialog::askForProject() {
    QString path = ask(QStringLiteral("ivd"));
    while (isDraftPath(path)) {
        prompts_.showMessage(
            UserPrompts::Icon::None, QStringLiteral("Potential Data Loss Detected!"),
            QStringLiteral("It looks like you may be trying to save your project in the temporary "
                           "\"Drafts\" folder, which means you may experience data loss. It is "
                           "highly recommended you save projects in the \"Projects\" folder "
                           "only."));
        path = ask(QStringLiteral("ivd"));
    }
    return path;
}

QString SaveDialog::proposedName(const QString& prefix, const QString& ending,
                                 const QString& freeExtension) {
    const Field& fileNo = fields_.txtFileNo;
    return fileNo.isFilled() ? fileNameWith(prefix + u' ', fileNo.text(), ending)
                             : folders_.nextFreeName(prefix, freeExtension);
}

} // namespace quillford
