#include "base/Error.h"
#include "persistence/project/ProjectReader.h"
#include "persistence/project/ProjectWriter.h"
#include "support/UnattendedPrompts.h"

#include <QFile>

#include <cstdio>

using namespace quillford;

/// write_project JSON FILE: saves the project of the JSON form into a project file, a new one or an
/// old one.
int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    try {
        Project project;
        readProject(QFile::decodeName(argv[1]), project);
        UnattendedPrompts prompts;
        ProjectWriter(project, prompts)
            .write(QFile::decodeName(argv[2]), ProjectWriter::Durability::Flushed);
        return 0;
    } catch (const Error& error) {
        std::fprintf(stderr, "write_project: %s: %s\n", qPrintable(error.source()),
                     qPrintable(error.description()));
        return 1;
    }
}
