#pragma once

#include "TemplateCalls.h"

#include <QList>
#include <QString>

namespace quillford {

/// A project that benchmarks are run on.
struct BenchProject {
    QString name;
    QString path; ///< its JSON form
};

/// How much a project that is made holds.
struct MadeSize {
    int textBytes = 1'000'000;
    int pictureBytes = 20'000; ///< of each of its 50 pictures
};

/// A project with every group of fields at its upper limit, which is made in `folder`. Raises
/// `Error` when that fails.
[[nodiscard]] BenchProject madeProject(const QString& name, const QString& folder,
                                       const MadeSize& size);

/// The middling project, which is a sample, and the largest one, which is made in `folder`. Raises
/// `Error` when that fails.
[[nodiscard]] QList<BenchProject> benchProjects(const QString& folder,
                                                const MadeSize& largest = {});

/// What the composer tells the template for this project. Uses a file in `folder`; raises `Error`
/// when the project cannot be composed.
[[nodiscard]] QList<TemplateCall> recordedCalls(const BenchProject& project, const QString& folder);

} // namespace quillford
