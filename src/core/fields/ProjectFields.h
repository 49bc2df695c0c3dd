#pragma once

#include "core/fields/Field.h"
#include "core/fields/FieldObserver.h"
#include "core/fields/FigureState.h"

#include <array>
#include <deque>
#include <type_traits>

namespace quillford {

/// The project: the one record of all that the user has entered. Every member bears the name of its
/// control on screen; a field that repeats is indexed by its panel, `fields.txtNameStep2(i)`. All
/// values are text, counts too. What saves, checks, composes or shows a project reads this record,
/// and what opens one writes it; there is no second copy.
class ProjectFields {
public:
    /// The values and panels of a new project, nothing marked as changed.
    ProjectFields();

    ProjectFields(const ProjectFields&) = delete;
    ProjectFields& operator=(const ProjectFields&) = delete;

    template <FieldGroup group>
    using Member = std::conditional_t<group == FieldGroup::Single, Field, FieldArray>;

#define QF_FIELD(name, section, group, ...) Member<FieldGroup::group> name{*this, FieldId::name};
#include "core/fields/FieldRows.def"
#undef QF_FIELD

    /// The field with this name on panel `index`, for whoever walks the field table; `index` is 0
    /// for a field that stands once, and below `count(id)` for others.
    [[nodiscard]] Field& at(FieldId id, int index = 0);
    [[nodiscard]] const Field& at(FieldId id, int index = 0) const;

    /// All members of a repeated field.
    [[nodiscard]] const FieldArray& array(FieldId id) const;

    /// How many members the field has: 1 for a field that stands once.
    [[nodiscard]] int count(FieldId id) const;

    /// How many panels of a repeating group there are; of the inventors, how many are shown. It is
    /// kept apart from the text of the count field, which may already say something else.
    [[nodiscard]] int panelCount(FieldGroup group) const;

    /// Makes a group have `count` panels; the count field is neither read nor written. `count` is
    /// bounded by the group's limits, and one panel always stays, also for a count of 0 figures.
    ///
    /// A new panel's fields hold what they hold in a new project. A dropped panel's texts are gone.
    /// The eight inventors' panels are never dropped: one that is hidden loses its texts and its
    /// state, and its citizenship goes back to the first of the list. With fewer Main Elements the
    /// Sub-Elements and descriptions of those that went are emptied at once, on panels that still
    /// stand.
    void setPanelCount(FieldGroup group, int count);

    /// The two values beside the fields of figure `index`, which is below the number of figure
    /// panels. They come and go with the panel.
    [[nodiscard]] FigureState& figureState(int index);
    [[nodiscard]] const FigureState& figureState(int index) const;

    /// Names the one observer of changes, or none with null. It is not owned and must outlive its
    /// time as observer.
    void setObserver(FieldObserver* observer) noexcept {
        observer_ = observer;
    }

private:
    friend class Field;
    friend class FieldArray;

    void tellChange(FieldId id, int index);
    void resizeGroup(FieldGroup group, int count);
    void emptyHiddenInventors(int shown, int shownBefore);
    void emptyPartsOfElementsFrom(int first);

    std::array<int, FieldGroupCount> panelCounts_{};
    std::deque<FigureState> figureStates_;
    FieldObserver* observer_ = nullptr;
};

} // namespace quillford
