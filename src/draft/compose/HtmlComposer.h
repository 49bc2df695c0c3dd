#pragma once

#include "base/Error.h"
#include "core/fields/ProjectFields.h"
#include "draft/template/HTMLTemplate.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"

#include <QString>

#include <optional>

namespace quillford {

/// Composes the Final Draft as an HTML page: reads the fields and fills the template
/// "HTMLTEMPLATE".
class HtmlComposer {
public:
    /// Owns none of its arguments; all outlive it.
    HtmlComposer(const ProjectFields& fields, Folders& folders, UserPrompts& prompts);

    /// Composes the page. With a text in `html` the page is a preview: it is handed back there, in
    /// a body from which nothing can be selected or copied, and nothing is written. With an empty
    /// text the page is written to `path`, in a plain body.
    ///
    /// The fields are expected to be filled as their sections require; empty ones are composed as
    /// they are. Any failure ends the composition at once, also a Main Element without a panel of
    /// descriptions or a page that would be too long: the answer is false, `failure()` tells the
    /// reason, and no file is written. A template that does not load is told in a box.
    bool ExportToHTML(const QString& path, QString& html);

    /// What ended the last composition, or nothing.
    [[nodiscard]] const std::optional<Error>& failure() const noexcept { return failure_; }

private:
    bool compose(HTMLTemplate& page);
    void setHead(HTMLTemplate& page) const;
    void fillInventors(HTMLTemplate& page) const;
    void setTitles(HTMLTemplate& page) const;
    void fillObjects(HTMLTemplate& page) const;
    void fillFigureDescriptions(HTMLTemplate& page) const;
    void fillMainElements(HTMLTemplate& page) const;
    void setClosing(HTMLTemplate& page) const;
    void setAbstractTitles(HTMLTemplate& page) const;
    void fillDrawings(HTMLTemplate& page) const;

    [[nodiscard]] QString imageTag(int figure) const;

    const ProjectFields& fields_;
    Folders& folders_;
    UserPrompts& prompts_;
    std::optional<Error> failure_;
};

} // namespace quillford
