#include "cli/NewCommand.h"

#include "base/Files.h"
#include "cli/CliPrompts.h"
#include "cli/OutputPlaces.h"
#include "core/fields/Project.h"
#include "persistence/project/JsonReader.h"
#include "persistence/project/ProjectWriter.h"

#include <QFile>
#include <QFileInfo>

namespace quillford {

namespace {

constexpr int EmptyPicture = 9; // as a save of such a picture fails

/// A picture that is not there, or has no bytes, is told by its own name before anything is made.
void requirePictures(const ProjectFields& fields) {
    for (int i = 0; i < fields.txtAttachFig.count(); ++i) {
        if (!fields.txtAttachFig(i).isFilled())
            continue;
        QFile picture(fields.txtAttachFig(i).text());
        if (!picture.open(QIODevice::ReadOnly))
            raiseFileError(picture);
        if (picture.size() == 0)
            throw Error(EmptyPicture, QStringLiteral("the picture holds no bytes"),
                        picture.fileName());
    }
}

} // namespace

void NewCommand::addOptions(QCommandLineParser&) const {}

ExitStatus NewCommand::execute(const QCommandLineParser& parser, CliContext& context) {
    const QStringList files = parser.positionalArguments();
    if (files.size() != 2 || files.contains(QString()))
        refuse(name(), QStringLiteral("expects two files: %1 %2").arg(name(), usage()));
    const QString& json = files[0];
    const QString& out = files[1];
    OutputPlaces places;
    places.keep(json, QStringLiteral("the fields"));
    Project project;
    about(json,
          [&] { readProjectJson(contentOfFile(json), QFileInfo(json).absolutePath(), project); });
    requirePictures(project.fields);
    places.keepPictures(project.fields);
    places.take(out, QStringLiteral("new"));
    CliPrompts prompts(context.errors);
    about(out, [&] {
        ProjectWriter(project, prompts).writeNew(out, ProjectWriter::Durability::OnDisk);
    });
    return ExitStatus::Done;
}

} // namespace quillford
