#pragma once

#include "controls/ClickLabel.h"

#include <QSvgRenderer>

namespace quillford {

/// A drawing of the program's own, sharp at any scale: an SVG file of the resources, fitted into
/// the label with its proportions kept. Without a click handler it is a plain picture.
class Picture : public ClickLabel {
    Q_OBJECT
    Q_PROPERTY(QString file READ file WRITE setFile)

public:
    explicit Picture(QWidget* parent = nullptr);

    /// The name below ":/pictures/", without its ending.
    [[nodiscard]] const QString& file() const { return file_; }

    void setFile(const QString& file);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString file_;
    QSvgRenderer drawing_;
};

} // namespace quillford
