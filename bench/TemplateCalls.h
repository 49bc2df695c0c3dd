#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace quillford {

/// One call that the composer makes on a template, with its ready values.
struct TemplateCall {
    enum class Operation { Load, SetItem, SetBlock, Parse };

    Operation operation;
    QStringList arguments; ///< in the order of the operation; of `Load` the name alone
};

/// The calls in a recording of `record_draft`. Raises `Error` naming the file when it cannot be
/// read or holds something else.
[[nodiscard]] QList<TemplateCall> readTemplateCalls(const QString& path);

/// Makes the calls on the template engine, which loads the template from the file, and gives the
/// text of the page. Raises what the engine raises.
[[nodiscard]] QString renderedByEngine(const QList<TemplateCall>& calls,
                                       const QString& templateFile);

} // namespace quillford
