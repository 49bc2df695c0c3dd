#pragma once

#include "core/wizard/FocusOrder.h"
#include "editors/binding/BoundFields.h"
#include "editors/columns/PanelColumn.h"
#include "editors/rules/DescriptionFlow.h"
#include "platform/TextMeasure.h"

#include <functional>
#include <memory>

namespace quillford {

namespace Ui {
class PageDescriptions;
}

/// Section 7, Descriptions: one long page, `picMElements`, with a panel for each Main Element, the
/// text on their connections, and the text on alternatives.
class PageDescriptions final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, binds its fields and makes the panels that the project
    /// has. All other arguments outlive the page.
    ///
    /// @param stackSubElements  scrolls the blocks of Section 6 to their top
    PageDescriptions(QWidget& panel, ProjectFields& fields, BoundFields& bound, FocusOrder& order,
                     const TextMeasure& measure, std::function<void()> stackSubElements);

    ~PageDescriptions() override;

    PageDescriptions(const PageDescriptions&) = delete;
    PageDescriptions& operator=(const PageDescriptions&) = delete;

    /// Makes `count` panels stand, scrolled to their top. Fields of new panels are empty.
    void LayoutDescriptions(int count);

    /// Scrolls the blocks of Section 6 to their top, lays the panels out where they differ from the
    /// count field, and writes the captions from the names of the Main Elements. What stands below
    /// a panel follows its height.
    void RefreshDescriptionCaptions();

    void scrollDescriptionsToTop();

    [[nodiscard]] PanelColumn& column() { return *column_; }

private:
    void writeCaptions();
    void ReflowDescriptions();
    void placeParts(const DescriptionParts& parts);
    void focusReached(const FieldPlace& place, bool byTab);
    void follow(const std::optional<PanelTarget>& target);

    ProjectFields& fields_;
    FocusOrder& order_;
    const TextMeasure& measure_;
    std::function<void()> stackSubElements_;
    std::unique_ptr<Ui::PageDescriptions> parts_;
    PanelColumn* column_;
    int focusedPanel_ = 0;
};

} // namespace quillford
