#pragma once

#include "core/fields/ProjectFields.h"
#include "core/wizard/EditorColumns.h"
#include "core/wizard/PageStack.h"
#include "editors/binding/BoundFields.h"

#include <QObject>
#include <QTimer>

#include <array>

namespace quillford {

/// Turns a choice in one of the four lists of counts into a layout of its column, 2 milliseconds
/// later, so that the list has closed by then. Two quick choices make one layout, with the second
/// number.
class CountTimers final : public QObject {
    Q_OBJECT

public:
    /// Owns none of its arguments; all outlive it.
    CountTimers(const ProjectFields& fields, BoundFields& bound, PageStack& pages,
                EditorColumns& columns);

private:
    void countChosen(const FieldPlace& place);
    void Timer_Timer(int index);

    const ProjectFields& fields_;
    PageStack& pages_;
    EditorColumns& columns_;
    std::array<QTimer, 4> Timer_;
};

} // namespace quillford
