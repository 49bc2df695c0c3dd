#pragma once

#include "editors/binding/BoundFields.h"
#include "platform/TextMeasure.h"

#include <QWidget>

#include <memory>

namespace quillford {

namespace Ui {
class DescriptionPanel;
}

/// The panel of one Main Element in Section 7, `picfrmMainElementDes(i)`: two questions that quote
/// the element's name, and their answers. It is as high as its questions need.
class DescriptionPanel final : public QWidget {
    Q_OBJECT

public:
    /// Binds the fields of the element with this index, from 0, which exist already. `page` owns
    /// the panel. The questions are empty until `quoteName`.
    DescriptionPanel(int element, QWidget& page, BoundFields& bound);

    ~DescriptionPanel() override;

    DescriptionPanel(const DescriptionPanel&) = delete;
    DescriptionPanel& operator=(const DescriptionPanel&) = delete;

    /// Writes the captions for an element of this name, one of `count`, and takes the height that
    /// they need.
    void quoteName(const QString& name, int count, const TextMeasure& measure);

private:
    void fit();

    int element_;
    std::unique_ptr<Ui::DescriptionPanel> parts_;
};

} // namespace quillford
