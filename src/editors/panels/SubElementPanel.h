#pragma once

#include "editors/binding/BoundFields.h"

#include <QWidget>

namespace quillford {

/// The block of one Main Element in Section 6, `picElementUsers(i)`: its name once more, and its
/// Sub-Elements, each beside its Reference Numeral.
class SubElementPanel final : public QWidget {
    Q_OBJECT

public:
    /// Binds the fields of the element with this index, from 0, which exist already. `view` owns
    /// the panel.
    SubElementPanel(int element, QWidget& view, BoundFields& bound);

private:
    void labelSubElement(int element, int part);
};

} // namespace quillford
