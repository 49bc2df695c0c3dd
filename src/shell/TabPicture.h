#pragma once

#include "controls/ClickLabel.h"
#include "core/rules/TabLooks.h"

namespace quillford {

/// The picture of one tab, `picTab(i)`: a round mark over a short title, in one of four looks. A
/// complete section shows a tick on green, an incomplete one its number in a ring; the current tab
/// is filled. The last two tabs have signs of their own in place of a number.
class TabPicture final : public ClickLabel {
    Q_OBJECT

public:
    explicit TabPicture(QWidget* parent = nullptr);

    [[nodiscard]] TabLook look() const { return look_; }

    void setLook(TabLook look);

    /// What stands in the ring.
    void setSign(const QString& sign);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawMark(QPainter& painter) const;
    void tellLook();

    TabLook look_ = TabLook::Incomplete;
    QString sign_;
};

} // namespace quillford
