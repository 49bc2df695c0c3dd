#pragma once

#include "core/fields/ProjectState.h"
#include "editors/binding/BoundFields.h"

#include <QWidget>

namespace quillford {

/// Section 1, Introduction: the file number, the two titles and the contact for the application.
class PageIntroduction final : public QObject {
    Q_OBJECT

public:
    /// Fills `panel`, which owns the page, and binds its fields.
    PageIntroduction(QWidget& panel, BoundFields& bound);
};

} // namespace quillford
