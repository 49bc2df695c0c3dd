#pragma once

#include "editors/rules/ElementIndexLayout.h"

#include <QFont>
#include <QWidget>

namespace quillford {

/// The surface on which the Index of Elements is drawn, as high as its text. It takes the focus
/// from a click, so that the wheel moves the index from then on.
class IndexSurface final : public QWidget {
    Q_OBJECT

public:
    /// @param font  the one in which the lines have been measured, in its regular weight
    IndexSurface(QWidget& view, const QFont& font);

    /// Draws this from now on, and is as high. Assistive programs read the lines as a description.
    void draw(const ElementIndex& index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont regular_;
    QFont bold_;
    ElementIndex index_;
};

} // namespace quillford
