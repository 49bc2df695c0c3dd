#pragma once

#include "editors/binding/BoundFields.h"

#include <QWidget>

namespace quillford {

/// Section 8, Operation: one text.
class PageOperation final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, and binds its field.
    PageOperation(QWidget& panel, BoundFields& bound);
};

} // namespace quillford
