#pragma once

#include "controls/ClickLabel.h"

namespace quillford {

/// A word of the menu row. An "&" in its text underlines the letter behind it; the key that goes
/// with it is the form's business.
class MenuLabel final : public ClickLabel {
    Q_OBJECT

public:
    explicit MenuLabel(QWidget* parent = nullptr) : ClickLabel(parent) {}

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillford
