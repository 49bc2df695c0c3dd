#pragma once

#include "draft/template/TemplateItems.h"

#include <QJsonArray>
#include <QString>

namespace quillford {

/// Stands in for the template engine where the composer is compiled to be recorded: has the same
/// calls, renders nothing, and writes down every call that has an effect on the page, in order.
class HTMLTemplate final : public TemplateItems {
public:
    bool Load(const QString& name, const QString& path);

    /// Replaces the file by the recording: a JSON list with one list a call, its name and its
    /// arguments as texts. `Load` is recorded without its path.
    void SaveAs(const QString& path, const QString& text) const;

    void SetItem(const QString& name, const QString& value, bool append = false) override;

    void SetBlock(const QString& parent, const QString& block, const QString& placeholder = {});

    void Parse(const QString& target, const QString& block, const QString& separator);

    [[nodiscard]] QString p(const QString& name) const;

private:
    QJsonArray calls_;
};

} // namespace quillford
