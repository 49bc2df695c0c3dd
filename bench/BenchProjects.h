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

/// A project with every group of fields at its upper limit and this much text, which is made in
/// `folder`. Raises `Error` when that fails.
[[nodiscard]] BenchProject madeProject(const QString& name, const QString& folder, int textBytes);

/// The middling project, which is a sample, and the largest one, which is made in `folder`. Raises
/// `Error` when that fails.
[[nodiscard]] QList<BenchProject> benchProjects(const QString& folder);

/// What the composer tells the template for this project. Uses a file in `folder`; raises `Error`
/// when the project cannot be composed.
[[nodiscard]] QList<TemplateCall> recordedCalls(const BenchProject& project, const QString& folder);

} // namespace quillford
