#pragma once

#include "editors/binding/BoundFields.h"

#include <QWidget>

namespace quillford {

/// The panel of one Main Element in Section 5, `picElement(i)`: its name and its description.
class MainElementPanel final : public QWidget {
    Q_OBJECT

public:
    /// Binds the fields of the element with this index, from 0, which exist already. `view` owns
    /// the panel.
    MainElementPanel(int element, QWidget& view, BoundFields& bound);
};

} // namespace quillford
